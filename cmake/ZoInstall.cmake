# Installed files: libraries, public headers, pkg-config modules and the CMake package "zo".
include(CMakePackageConfigHelpers)

install(TARGETS zo_core zo_ui EXPORT zo
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT libzo1 NAMELINK_COMPONENT libzo-dev
  FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

set(zo_cmake_dir ${CMAKE_INSTALL_LIBDIR}/cmake/zo)
install(EXPORT zo NAMESPACE zo:: DESTINATION ${zo_cmake_dir} FILE zoTargets.cmake)
configure_package_config_file(cmake/zoConfig.cmake.in zoConfig.cmake INSTALL_DESTINATION ${zo_cmake_dir})
write_basic_package_version_file(zoConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/zoConfig.cmake ${PROJECT_BINARY_DIR}/zoConfigVersion.cmake
  DESTINATION ${zo_cmake_dir})

# The modules find their prefix from their own place, so that a staged or moved tree works as it is.
file(RELATIVE_PATH zo_pc_to_prefix "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
foreach(module zo_core zo_ui)
  configure_file(cmake/${module}.pc.in ${module}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${module}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()

# gdb loads the printers by this name together with the library: beside it in a build tree, where gdb must be told
# that the tree is safe, and installed in its own folder.
set(zo_printers libzo_core.so.${PROJECT_VERSION}-gdb.py)
configure_file(share/gdb/zo_printers.py ${CMAKE_LIBRARY_OUTPUT_DIRECTORY}/${zo_printers} COPYONLY)
install(FILES share/gdb/zo_printers.py RENAME ${zo_printers}
  DESTINATION ${CMAKE_INSTALL_DATADIR}/gdb/auto-load${CMAKE_INSTALL_FULL_LIBDIR})
