# metacity takes a withdrawn window's hints away most often.
zo_test(window_hints_test FILES ui/window/window_hints_test.cpp LIBRARIES ui_support zo_ui
  SESSIONS openbox metacity none)
zo_ui_test(window/window_place_test)
include(ui/window/tree_tests.cmake)
include(ui/window/lifecycle_tests.cmake)
