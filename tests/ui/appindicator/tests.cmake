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

zo_tray_test(appindicator_show_test appindicator_menu_test appindicator_callback_test appindicator_destroy_test
  appindicator_icon_test appindicator_host_test appindicator_no_bus_test appindicator_null_handles_test
  appindicator_reports_test appindicator_threads_test appindicator_service_end_test)
zo_tray_inner_test(appindicator_posts_test appindicator_table_test appindicator_late_bus_test appindicator_answers_test
  appindicator_hearing_test)
zo_test(appindicator_displayless_test FILES ui/appindicator/appindicator_displayless_test.cpp
  LIBRARIES zo_ui PkgConfig::GTK3)

# jwm's panel is a tray of the old kind.
zo_test(appindicator_fallback_test FILES ui/appindicator/appindicator_fallback_test.cpp LIBRARIES tray_support zo_ui
  SESSIONS jwm)

add_executable(leaving_program ui/appindicator/leaving_program.cpp)
target_link_libraries(leaving_program PRIVATE zo_ui PkgConfig::GTK3)
zo_tray_test(appindicator_exit_test)
target_compile_definitions(appindicator_exit_test PRIVATE LEAVING_PROGRAM="$<TARGET_FILE:leaving_program>")
add_dependencies(appindicator_exit_test leaving_program)
