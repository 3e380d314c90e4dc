zo_test(core_service_order_test FILES core/service_order_test.cpp core/sleeping_loop.cpp)
zo_test(core_service_captures_test FILES core/service_captures_test.cpp)
zo_test(core_service_timeout_test FILES core/service_timeout_test.cpp core/sleeping_loop.cpp)
