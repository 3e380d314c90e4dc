# Window managers differ most in what they do with a window that goes and comes at once.
zo_test(window_hints_test FILES ui/window/window_hints_test.cpp LIBRARIES ui_support zo_ui
  SESSIONS openbox xfwm4 metacity marco icewm fluxbox none)
# The test answers in the place of openbox, as openbox would.
zo_test(window_hints_waits_test FILES ui/window/window_hints_waits_test.cpp
  LIBRARIES ui_support zo_ui_objects PkgConfig::X11 PkgConfig::XMU SESSIONS openbox)
# icewm loses the showing of a window most often.
zo_test(window_place_test FILES ui/window/window_place_test.cpp LIBRARIES ui_support zo_ui SESSIONS openbox icewm none)
zo_test(window_late_manager_test FILES ui/window/window_late_manager_test.cpp LIBRARIES ui_support zo_ui SESSIONS none)
include(ui/window/tree_tests.cmake)
include(ui/window/lifecycle_tests.cmake)
