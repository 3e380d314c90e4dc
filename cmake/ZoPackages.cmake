# Debian packages, made by CPack: libzo1 (the libraries, themes and catalogues), libzo-dev and zo-demo. What belongs
# into which is said where it is installed, by component. See script/package.
set(packaging ${PROJECT_SOURCE_DIR}/packaging)
set(packaging_built ${PROJECT_BINARY_DIR}/packaging)
set(zo_maintainer "The zo authors <authors@zo.invalid>" CACHE STRING "Who answers for the packages")

file(STRINGS ${packaging}/changelog newest_version LIMIT_COUNT 1)
if(NOT newest_version MATCHES "^zo \\(${PROJECT_VERSION}\\) ")
  message(FATAL_ERROR "packaging/changelog does not begin with version ${PROJECT_VERSION}: ${newest_version}")
endif()

# The licence as a field of a Debian control file: each line indented, a dot on empty ones.
file(READ ${PROJECT_SOURCE_DIR}/LICENSE licence_text)
string(REGEX REPLACE "^.*\n\n(Permission)" "\\1" licence_text "${licence_text}")
string(STRIP "${licence_text}" licence_text)
string(REPLACE "\n\n" "\n.\n" licence_text " ${licence_text}")
string(REPLACE "\n" "\n " licence_text "${licence_text}")
configure_file(${packaging}/copyright.in ${packaging_built}/copyright @ONLY)

find_program(GZIP gzip REQUIRED)
foreach(file changelog zo-demo.1)
  add_custom_command(OUTPUT ${packaging_built}/${file}.gz
    COMMAND sh -c "'${GZIP}' --best --no-name --stdout '${packaging}/${file}' >'${packaging_built}/${file}.gz'"
    DEPENDS ${packaging}/${file} VERBATIM)
  list(APPEND compressed ${packaging_built}/${file}.gz)
endforeach()
add_custom_target(zo_packaging ALL DEPENDS ${compressed})

# What only packages hold is left out of a plain installation.
foreach(package libzo1 libzo-dev zo-demo)
  install(FILES ${packaging_built}/copyright ${packaging_built}/changelog.gz
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package} COMPONENT ${package} EXCLUDE_FROM_ALL)
endforeach()
install(FILES ${packaging}/libzo1.lintian-overrides DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
  RENAME libzo1 COMPONENT libzo1 EXCLUDE_FROM_ALL)
install(FILES ${packaging_built}/zo-demo.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1
  COMPONENT zo-demo EXCLUDE_FROM_ALL)
install(FILES README.md CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/libzo-dev
  COMPONENT libzo-dev EXCLUDE_FROM_ALL)
# The guides are pages of the site, which script/site builds.
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/libzo-dev COMPONENT libzo-dev EXCLUDE_FROM_ALL
  FILES_MATCHING PATTERN "*.md" PATTERN "*.png" PATTERN "site" EXCLUDE PATTERN "guides" EXCLUDE)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/build/site/ DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/libzo-dev/html
  COMPONENT libzo-dev EXCLUDE_FROM_ALL OPTIONAL)
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/libzo-dev COMPONENT libzo-dev EXCLUDE_FROM_ALL
  FILES_MATCHING PATTERN "*.cpp" PATTERN "*.css")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT ${zo_maintainer})
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_SOURCE_DIR}/build/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_ALL libzo1 libzo-dev zo-demo)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE zo)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_POST_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/ZoPackagesFinish.cmake)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")  # each description begins with its own
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})

set(CPACK_DEBIAN_LIBZO1_PACKAGE_NAME libzo1)
set(CPACK_DEBIAN_LIBZO1_PACKAGE_SECTION libs)
# The themes' icons are SVG, which GTK reads through this.
set(CPACK_DEBIAN_LIBZO1_PACKAGE_DEPENDS librsvg2-common)
set(CPACK_DEBIAN_LIBZO1_DESCRIPTION "user-interface library of a Linux desktop shell
Windows with a title bar of their own, a panel that slides away, stacked
notifications, a tray icon and themes in CSS, on GTK 3 and X11.

This package holds the shared libraries, the themes and the translations.")

set(CPACK_DEBIAN_LIBZO-DEV_PACKAGE_NAME libzo-dev)
set(CPACK_DEBIAN_LIBZO-DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_LIBZO-DEV_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_LIBZO-DEV_PACKAGE_DEPENDS "libzo1 (= ${PROJECT_VERSION}), libgtk-3-dev, libboost-dev")
set(CPACK_DEBIAN_LIBZO-DEV_DESCRIPTION "user-interface library of a Linux desktop shell - development files
Windows with a title bar of their own, a panel that slides away, stacked
notifications, a tray icon and themes in CSS, on GTK 3 and X11.

This package holds the headers, the pkg-config modules, the CMake package,
the documentation and examples.")

set(CPACK_DEBIAN_ZO-DEMO_PACKAGE_NAME zo-demo)
set(CPACK_DEBIAN_ZO-DEMO_PACKAGE_SECTION x11)
set(CPACK_DEBIAN_ZO-DEMO_PACKAGE_DEPENDS "libzo1 (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_ZO-DEMO_DESCRIPTION "user-interface library of a Linux desktop shell - demonstration
A gallery of what the zo library offers: a page for every feature, with live
switches and the code that makes it.")
include(CPack)
