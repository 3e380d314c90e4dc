# The window's properties and its life.
foreach(name defaults flags null_handles casting callbacks texts events content_child move restore
        lifecycle activate close_request threads many service_end)
  zo_ui_test(window/window_${name}_test)
endforeach()
foreach(name order text_order slots table reports wrong_type posts destroy manager_link reentry
        reopening outside_destroy)
  zo_ui_inner_test(window/window_${name}_test)
endforeach()
