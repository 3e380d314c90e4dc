# Tests with windows on a real screen.
pkg_check_modules(GDK_X11 REQUIRED IMPORTED_TARGET gdk-x11-3.0)
add_library(ui_support STATIC support/desktop.cpp support/ui.cpp)
target_link_libraries(ui_support PUBLIC test_support PkgConfig::GTK3 PkgConfig::GDK_X11 PkgConfig::X11)
target_include_directories(ui_support PRIVATE ${PROJECT_SOURCE_DIR}/src)

add_executable(test_precompiled support/precompiled.cpp)
target_link_libraries(test_precompiled PRIVATE ui_support zo_ui)
target_precompile_headers(test_precompiled PRIVATE support/precompiled.hpp)

# zo_ui_test(name...): ui/NAME.cpp against the shared libraries, under openbox and without a window manager.
function(zo_ui_test)
  foreach(name ${ARGN})
    get_filename_component(program ${name} NAME)
    zo_test(${program} FILES ui/${name}.cpp LIBRARIES ui_support zo_ui SESSIONS openbox none)
    target_precompile_headers(${program} REUSE_FROM test_precompiled)
  endforeach()
endfunction()

# zo_ui_inner_test(name...): likewise, but linked with the library's objects, for tests that reach private parts.
function(zo_ui_inner_test)
  foreach(name ${ARGN})
    get_filename_component(program ${name} NAME)
    zo_test(${program} FILES ui/${name}.cpp LIBRARIES ui_support zo_ui_objects SESSIONS openbox none)
    target_link_libraries(${program} PRIVATE PkgConfig::X11 PkgConfig::XMU)
    target_precompile_headers(${program} REUSE_FROM test_precompiled)
  endforeach()
endfunction()

include(ui/window/tests.cmake)
include(ui/toolkit/tests.cmake)
include(ui/window_manager/tests.cmake)
include(ui/notification/tests.cmake)
include(ui/appindicator/tests.cmake)

zo_ui_test(describe_test inspector_test long_texts_test)
zo_test(virtual_ends_test FILES ui/virtual_ends_test.cpp
  LIBRARIES zo_ui_objects PkgConfig::APPINDICATOR PkgConfig::X11 PkgConfig::XMU)
