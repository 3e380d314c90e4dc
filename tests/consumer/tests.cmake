# Programs that know only what is installed.
set(consumer_flags "")
if(ZO_SANITIZE)
  set(consumer_flags "-fsanitize=${ZO_SANITIZE} -fno-omit-frame-pointer")
endif()
foreach(way pkg-config cmake readme examples alone)
  add_test(NAME consumer.${way}
    COMMAND ${session} -w openbox -- ${ENV_PROGRAM} ${test_environment}
      ${CMAKE_CURRENT_SOURCE_DIR}/consumer/build_and_run ${way} ${PROJECT_BINARY_DIR} "${consumer_flags}")
  set_tests_properties(consumer.${way} PROPERTIES TIMEOUT 300)
endforeach()
