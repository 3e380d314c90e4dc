# What gdb prints. The leak checker cannot run beside a debugger, and optimised code hides what is printed.
if(NOT ZO_SANITIZE AND NOT ZO_COVERAGE AND CMAKE_BUILD_TYPE STREQUAL Debug)
  add_executable(printed_program gdb/printed.cpp)
  target_link_libraries(printed_program PRIVATE zo_ui)
  add_test(NAME gdb_test COMMAND ${ENV_PROGRAM} -u DISPLAY ${test_environment} ${Python3_EXECUTABLE}
    ${CMAKE_CURRENT_SOURCE_DIR}/gdb/gdb_test.py $<TARGET_FILE:printed_program>)
  set_tests_properties(gdb_test PROPERTIES TIMEOUT 300)
endif()
