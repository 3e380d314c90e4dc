# A short run with every test run; script/endurance makes the long one.
pkg_check_modules(XRES REQUIRED IMPORTED_TARGET xres)
add_executable(endurance endurance/endurance.cpp endurance/lives.cpp endurance/memory.cpp support/output.cpp)
target_include_directories(endurance PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(endurance PRIVATE zo_ui PkgConfig::GTK3 PkgConfig::GDK_X11 PkgConfig::X11 PkgConfig::XRES)
add_test(NAME endurance COMMAND ${session} -- ${ENV_PROGRAM} ${test_environment} $<TARGET_FILE:endurance> 100)
set_tests_properties(endurance PROPERTIES TIMEOUT 300)
