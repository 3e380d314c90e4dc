# The panel.
add_library(panel_support STATIC ui/window_manager/panel.cpp)
target_link_libraries(panel_support PUBLIC ui_support)

# zo_panel_test(name...), zo_panel_inner_test(name...): like zo_ui_test and zo_ui_inner_test, with panel.hpp.
function(zo_panel_test)
  foreach(name ${ARGN})
    zo_ui_test(window_manager/${name})
    target_link_libraries(${name} PRIVATE panel_support)
  endforeach()
endfunction()
function(zo_panel_inner_test)
  foreach(name ${ARGN})
    zo_ui_inner_test(window_manager/${name})
    target_link_libraries(${name} PRIVATE panel_support)
  endforeach()
endfunction()


zo_panel_test(manager_null_handles_test manager_lifecycle_test manager_destroy_test manager_layout_test
  manager_slots_test manager_task_buttons_test manager_extend_test manager_menu_test manager_right_to_left_test)
zo_panel_inner_test(manager_table_test manager_table_order_test manager_slot_order_test manager_lock_test
  manager_task_clicks_test manager_task_reports_test manager_task_reentry_test manager_service_end_test
  manager_cost_test manager_task_row_test manager_notification_reason_test)
pkg_check_modules(XEXT REQUIRED IMPORTED_TARGET xext)
target_link_libraries(manager_menu_test PRIVATE PkgConfig::XEXT)
zo_panel_test(manager_many_test manager_foreign_menu_test manager_interleaving_test manager_locks_test
  manager_task_titles_test manager_crossing_test manager_after_destroy_test manager_accessibility_test
  manager_threads_test manager_task_properties_test manager_notifications_test)

# One program, on a monitor that is moved and on one of scale 2.
foreach(monitor moved scaled)
  zo_test(manager_${monitor}_monitor_test FILES ui/window_manager/manager_monitor_test.cpp
    LIBRARIES panel_support zo_ui SESSIONS openbox none ARGUMENTS ${monitor})
endforeach()

# One program, in both directions of text.
foreach(direction left_to_right right_to_left)
  zo_test(manager_scrolling_${direction}_test FILES ui/window_manager/manager_scrolling_test.cpp
    LIBRARIES panel_support zo_ui SESSIONS openbox none ARGUMENTS ${direction})
endforeach()

# On two monitors: one program for each place of the second one.
foreach(second beside before above)
  zo_test(manager_monitor_${second}_second_test FILES ui/window_manager/manager_two_monitors_test.cpp
    LIBRARIES panel_support zo_ui SESSIONS openbox none SESSION_OPTIONS -m ARGUMENTS ${second})
  target_precompile_headers(manager_monitor_${second}_second_test REUSE_FROM test_precompiled)
endforeach()
zo_test(manager_monitor_above_test FILES ui/window_manager/manager_monitor_above_test.cpp
  LIBRARIES panel_support zo_ui SESSIONS openbox none SESSION_OPTIONS -m)

# Window managers differ in what they do about popups when other windows come.
zo_test(manager_on_top_test FILES ui/window_manager/manager_on_top_test.cpp LIBRARIES panel_support zo_ui
  SESSIONS openbox xfwm4 marco none)
