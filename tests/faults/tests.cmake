# The application that script/faults uses, and each of its faults as a test, on the desktop that it names in a line
# "# session: OPTIONS".
add_executable(fault_application faults/application.cpp faults/queries.cpp)
target_include_directories(fault_application PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(fault_application PRIVATE zo_ui PkgConfig::GTK3 PkgConfig::X11)
file(GLOB faults CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/faults/*.py)
list(FILTER faults EXCLUDE REGEX "/fault\\.py$")
foreach(fault ${faults})
  get_filename_component(name ${fault} NAME_WE)
  file(STRINGS ${fault} options REGEX "^# session: ")
  string(REPLACE "# session: " "" options "${options}")
  separate_arguments(options)
  add_test(NAME fault.${name}
    COMMAND ${session} ${options} -- ${ENV_PROGRAM} ${test_environment} /usr/bin/python3 ${fault} $<TARGET_FILE:fault_application>)
  set_tests_properties(fault.${name} PROPERTIES TIMEOUT 120)
endforeach()
# Its servers start beside the sessions' own, and X servers that start or end at that moment take each other's sockets.
set_tests_properties(fault.x_server_killed PROPERTIES RUN_SERIAL TRUE)
