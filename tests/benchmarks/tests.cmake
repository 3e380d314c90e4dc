add_test(NAME benchmarks_judging COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/benchmarks/judging_test.py)
