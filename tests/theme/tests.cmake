# Shows everything that a theme dresses and prints what it measures; script/theme-lint judges it.
add_executable(theme_probe theme/ink.cpp theme/ordinary_widgets.cpp theme/probe.cpp theme/scene.cpp theme/states.cpp
  theme/walk.cpp support/loop.cpp)
target_include_directories(theme_probe PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(theme_probe PRIVATE zo_ui)
