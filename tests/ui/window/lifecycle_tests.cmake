# The window's properties and its life.
foreach(name defaults flags null_handles casting callbacks texts events content_child move restore)
  zo_ui_test(window/window_${name}_test)
endforeach()
