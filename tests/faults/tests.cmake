# The application that script/faults uses, and each of its faults as a test.
add_executable(fault_application faults/application.cpp)
target_link_libraries(fault_application PRIVATE zo_ui PkgConfig::GTK3)
file(GLOB faults CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/faults/*.py)
list(FILTER faults EXCLUDE REGEX "/fault\\.py$")
foreach(fault ${faults})
  get_filename_component(name ${fault} NAME_WE)
  add_test(NAME fault.${name}
    COMMAND ${session} -- ${ENV_PROGRAM} ${test_environment} /usr/bin/python3 ${fault} $<TARGET_FILE:fault_application>)
  set_tests_properties(fault.${name} PROPERTIES TIMEOUT 120)
endforeach()
