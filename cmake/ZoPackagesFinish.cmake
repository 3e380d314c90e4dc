# Run by CPack on the packages it made. It gives a package with shared libraries scripts that call ldconfig, and knows
# neither triggers nor Multi-Arch; Debian wants the trigger and no scripts.
foreach(package ${CPACK_PACKAGE_FILES})
  set(unpacked ${CPACK_TOPLEVEL_DIRECTORY}/finish)
  file(REMOVE_RECURSE ${unpacked})
  execute_process(COMMAND dpkg-deb --raw-extract ${package} ${unpacked} COMMAND_ERROR_IS_FATAL ANY)
  if(package MATCHES "/libzo")
    file(READ ${unpacked}/DEBIAN/control control)
    string(STRIP "${control}" control)
    file(WRITE ${unpacked}/DEBIAN/control "${control}\nMulti-Arch: same\n")
  endif()
  if(package MATCHES "/libzo1_")
    file(REMOVE ${unpacked}/DEBIAN/postinst ${unpacked}/DEBIAN/postrm)
    file(WRITE ${unpacked}/DEBIAN/triggers "activate-noawait ldconfig\n")
  endif()
  execute_process(COMMAND dpkg-deb --root-owner-group --build ${unpacked} ${package}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
  file(REMOVE_RECURSE ${unpacked})
endforeach()
