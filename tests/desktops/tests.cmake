# The program that script/desktops looks at under each window manager; no test of ctest's.
add_executable(zo-desktops-driver EXCLUDE_FROM_ALL desktops/driver.cpp desktops/objects.cpp desktops/widgets.cpp)
target_include_directories(zo-desktops-driver PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(zo-desktops-driver PRIVATE zo_ui PkgConfig::GDK_X11 PkgConfig::X11)
