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
  window_maximise_test window_size_test window_title_test window_title_theme_test window_title_text_test
  window_title_clicks_test window_title_ending_test window_title_keys_test
  window_photo_test window_tool_menu_test window_tool_menu_grid_test window_tool_menu_closing_test
  window_tool_menu_keys_test window_tool_menu_kept_test window_tool_menu_place_test window_active_test window_drag_test
  window_accessibility_test)

zo_ui_inner_test(window/window_drag_target_test)
target_link_libraries(window_drag_target_test PRIVATE window_tree_support)

zo_test_at_scale_2(window_photo_test window_tool_menu_test window_tool_menu_place_test window_drag_test
  window_maximise_test window_move_test window_place_test)
