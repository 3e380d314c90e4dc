# Sanitizers and coverage put symbols of their own into the libraries, which are then no longer those of a release.
if(NOT ZO_SANITIZE AND NOT ZO_COVERAGE AND CMAKE_BUILD_TYPE STREQUAL Debug)
  add_test(NAME abi_test COMMAND ${ENV_PROGRAM} ${test_environment} ${Python3_EXECUTABLE}
    ${CMAKE_CURRENT_SOURCE_DIR}/abi/abi_test.py)
  set_tests_properties(abi_test PROPERTIES TIMEOUT 300)
endif()
