# The tray indicator, on the session's own bus; a test starts the tray host that it needs.
pkg_check_modules(GIO REQUIRED IMPORTED_TARGET gio-2.0)
add_library(tray_support STATIC support/tray.cpp support/tray_host.cpp)
target_link_libraries(tray_support PUBLIC ui_support PkgConfig::GIO)

# zo_tray_test(name...), zo_tray_inner_test(name...): like zo_ui_test and zo_ui_inner_test, with tray.hpp.
function(zo_tray_test)
  foreach(name ${ARGN})
    zo_ui_test(appindicator/${name})
    target_link_libraries(${name} PRIVATE tray_support)
  endforeach()
endfunction()
function(zo_tray_inner_test)
  foreach(name ${ARGN})
    zo_ui_inner_test(appindicator/${name})
    target_link_libraries(${name} PRIVATE tray_support PkgConfig::APPINDICATOR)
  endforeach()
endfunction()

zo_tray_test(appindicator_show_test)
