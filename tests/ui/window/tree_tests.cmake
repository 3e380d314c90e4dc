# Tests of the window's widgets.
add_library(window_tree_support STATIC ui/window/tree_support.cpp)
target_link_libraries(window_tree_support PUBLIC ui_support)
target_include_directories(window_tree_support PRIVATE ${PROJECT_SOURCE_DIR}/src)

# tree_test(name...): ui/window/NAME.cpp against the shared libraries, under openbox and without a window manager.
function(tree_test)
  foreach(name ${ARGN})
    zo_test(${name} FILES ui/window/${name}.cpp LIBRARIES window_tree_support zo_ui SESSIONS openbox none)
  endforeach()
endfunction()

tree_test(window_tree_test window_tree_popup_test window_tree_toplevel_test window_tree_opening_test
  window_tree_reads_test window_tree_signals_test window_tree_geometry_test window_tree_unprepared_test
  window_maximise_test)
