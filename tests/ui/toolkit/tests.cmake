# Connectors, widgets, screen, clipboard, redraw ticker, theme.
zo_ui_test(toolkit/connectors_test toolkit/connector_lifetime_test toolkit/widget_destroy_test toolkit/widgets_test
  toolkit/screen_test toolkit/clipboard_test toolkit/redraw_ticker_test toolkit/tools_test toolkit/theme_test
  toolkit/theme_cover_test toolkit/theme_priority_test toolkit/theme_focus_test toolkit/theme_motion_test
  toolkit/connector_lists_test)
zo_ui_inner_test(toolkit/trampolines_test)
# Before zo_ui_init, and without any display.
zo_ui_test(toolkit/unprepared_test toolkit/exit_test)
zo_test(displayless_test FILES ui/toolkit/displayless_test.cpp LIBRARIES zo_ui PkgConfig::GTK3)
zo_test_at_scale_2(screen_test)
