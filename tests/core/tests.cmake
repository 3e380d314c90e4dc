zo_test(core_service_test FILES core/service_test.cpp)
