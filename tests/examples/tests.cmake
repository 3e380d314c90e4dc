# The example programs, each run as its reader would.
if(ZO_BUILD_EXAMPLES)
  add_test(NAME example.active_window
    COMMAND ${session} -w openbox -- ${ENV_PROGRAM} ${test_environment}
      ${CMAKE_CURRENT_SOURCE_DIR}/examples/active_window $<TARGET_FILE:example_active_window>)
  set_tests_properties(example.active_window PROPERTIES TIMEOUT 300)
endif()
