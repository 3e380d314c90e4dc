zo_test(core_object_test FILES core/object_test.cpp)
zo_test(core_refs_test FILES core/refs_test.cpp)
zo_test(core_counters_test FILES core/counters_test.cpp)
zo_test(core_unique_id_test FILES core/unique_id_test.cpp)
zo_test(core_destroy_guard_test FILES core/destroy_guard_test.cpp)

zo_test(core_property_list_test FILES core/property_list_test.cpp)
zo_test(core_property_overloads_test FILES core/property_overloads_test.cpp)
zo_test(core_property_key_test FILES core/property_key_test.cpp)
zo_test(core_property_access_test FILES core/property_access_test.cpp)
zo_test(core_property_flags_test FILES core/property_flags_test.cpp)
zo_test(core_property_lock_test FILES core/property_lock_test.cpp)

zo_test(core_diagnostics_test FILES core/diagnostics_test.cpp core/child_process.cpp)
zo_test(core_lang_test FILES core/lang_test.cpp core/child_process.cpp)
add_dependencies(core_lang_test zo_catalogues)
zo_test(core_catalogue_test
  FILES core/catalogue_test.cpp ${PROJECT_SOURCE_DIR}/src/zo_core/zo_catalogue.cpp LIBRARIES PkgConfig::GLIB)
add_dependencies(core_catalogue_test zo_catalogues)

zo_test(core_place_test FILES core/place_test.cpp)
zo_test(core_describe_test FILES core/describe_test.cpp)

zo_test(core_service_order_test FILES core/service_order_test.cpp core/sleeping_loop.cpp)
zo_test(core_service_gathering_test FILES core/service_gathering_test.cpp)
zo_test(core_service_task_test FILES core/service_task_test.cpp)
zo_test(core_service_captures_test FILES core/service_captures_test.cpp)
zo_test(core_service_fairness_test FILES core/service_fairness_test.cpp)
zo_test(core_service_timeout_test
  FILES core/service_timeout_test.cpp core/child_process.cpp core/sleeping_loop.cpp)
zo_test(core_service_end_test
  FILES core/service_end_test.cpp core/child_process.cpp core/sleeping_loop.cpp)
zo_test(core_service_exit_test FILES core/service_exit_test.cpp core/child_process.cpp)
zo_test(core_service_trace_test FILES core/service_trace_test.cpp core/child_process.cpp)
zo_test(core_threads_test FILES core/threads_test.cpp)

# At a fixed address, so that the address of a library's function is the program's own entry for it.
add_executable(outside_program core/outside_program.cpp)
target_link_libraries(outside_program PRIVATE zo_core)
target_compile_options(outside_program PRIVATE -fno-pie)
target_link_options(outside_program PRIVATE -no-pie)
zo_test(core_lang_outside_test FILES core/lang_outside_test.cpp)
add_dependencies(core_lang_outside_test zo_catalogues outside_program)
