# Notifications.
add_library(popup_support STATIC ui/notification/popup.cpp)
target_link_libraries(popup_support PUBLIC ui_support)

zo_ui_test(notification/notification_null_handles_test notification/notification_tree_test
  notification/notification_content_test notification/notification_stack_test notification/notification_manager_test
  notification/notification_close_test notification/notification_link_test notification/notification_many_test
  notification/notification_service_end_test)
zo_ui_inner_test(notification/notification_table_test notification/notification_timeout_test
  notification/notification_requests_test notification/notification_posts_test notification/notification_order_test)
zo_test(notification_accessibility_test FILES ui/notification/notification_accessibility_test.cpp
  LIBRARIES ui_support zo_ui SESSIONS openbox)
zo_test(notification_displayless_test FILES ui/notification/notification_displayless_test.cpp LIBRARIES zo_ui)
# One program, at scale 2 and with text from right to left.
foreach(kind scaled right_to_left)
  zo_test(notification_places_${kind}_test FILES ui/notification/notification_places_test.cpp
    LIBRARIES popup_support zo_ui SESSIONS openbox none ARGUMENTS ${kind})
  target_precompile_headers(notification_places_${kind}_test REUSE_FROM test_precompiled)
endforeach()
foreach(name null_handles tree content stack manager close link many service_end table timeout requests posts
    order accessibility)
  target_link_libraries(notification_${name}_test PRIVATE popup_support)
endforeach()
foreach(name manager many timeout order)
  target_link_libraries(notification_${name}_test PRIVATE panel_support)
endforeach()
