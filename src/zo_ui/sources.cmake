zo_library(zo_ui
  SOURCES
    zo_ui/platform/linux/active_window.cpp
    zo_ui/platform/linux/connection.cpp
    zo_ui/platform/linux/pointer.cpp
    zo_ui/platform/linux/search.cpp
    zo_ui/platform/linux/steering.cpp
    zo_ui/platform/linux/window_facts.cpp
    zo_ui/platform/linux/x_errors.cpp
    zo_ui/toolkit/connect.cpp
    zo_ui/toolkit/process_state.cpp
    zo_ui/toolkit/redraw_ticker.cpp
    zo_ui/toolkit/screen.cpp
    zo_ui/toolkit/style.cpp
    zo_ui/toolkit/theme.cpp
    zo_ui/toolkit/tools.cpp
    zo_ui/toolkit/widgets.cpp
  HEADERS
    zo_ui/platform/linux.hpp
    zo_ui/zo_handles.hpp
    zo_ui/zo_theme.hpp
    zo_ui/zo_ui.hpp
    zo_ui/zo_ui_connect.hpp
    zo_ui/zo_ui_screen.hpp
    zo_ui/zo_ui_tools.hpp
    zo_ui/zo_ui_widgets.hpp
    zo_ui/zo_window.hpp
    zo_ui/zo_window_event.hpp
  PUBLIC zo_core PkgConfig::GTK3
  PRIVATE PkgConfig::X11 PkgConfig::XMU)
target_compile_definitions(zo_ui_objects PRIVATE G_LOG_DOMAIN="zo_ui")
