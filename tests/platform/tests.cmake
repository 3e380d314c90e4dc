# The desktop queries. openbox frames every window; jwm gives no frame to a window that asks for none.
add_executable(platform_window_maker platform/window_maker.cpp)
target_link_libraries(platform_window_maker PRIVATE PkgConfig::X11)

add_library(platform_support STATIC platform/foreign_window.cpp platform/private_server.cpp platform/x_client.cpp
  support/x_wire.cpp)
target_compile_definitions(platform_support PRIVATE WINDOW_MAKER="$<TARGET_FILE:platform_window_maker>")
target_include_directories(platform_support PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(platform_support PUBLIC PkgConfig::X11)
add_dependencies(platform_support platform_window_maker)

# What is public, from the library.
set(from_library LIBRARIES platform_support zo_ui)
zo_test(platform_tree_test FILES platform/tree_test.cpp ${from_library} SESSIONS none)
zo_test(platform_facts_test FILES platform/facts_test.cpp ${from_library} SESSIONS none openbox)
zo_test(platform_facts_reference_test FILES platform/facts_reference_test.cpp ${from_library} SESSIONS none)
zo_test(platform_framed_test FILES platform/framed_test.cpp ${from_library} SESSIONS openbox)
zo_test(platform_unframed_test FILES platform/unframed_test.cpp ${from_library} SESSIONS none jwm)
zo_test(platform_messages_test FILES platform/messages_test.cpp ${from_library} SESSIONS none)
zo_test(platform_threads_test FILES platform/threads_test.cpp ${from_library} SESSIONS openbox)

# What is private, or is watched at its connections, from the library's objects.
set(from_objects LIBRARIES platform_support zo_ui_objects)
zo_test(platform_no_display_test FILES platform/no_display_test.cpp ${from_objects})
zo_test(platform_search_test FILES platform/search_test.cpp ${from_objects} SESSIONS none)
zo_test(platform_search_framed_test FILES platform/search_framed_test.cpp ${from_objects} SESSIONS openbox jwm)
zo_test(platform_pointer_test FILES platform/pointer_test.cpp ${from_objects} SESSIONS none openbox)
zo_test(platform_pointer_nowhere_test FILES platform/pointer_nowhere_test.cpp ${from_objects} SESSIONS none)
zo_test(platform_screens_test FILES platform/screens_test.cpp ${from_objects})
zo_test(platform_errors_test FILES platform/errors_test.cpp ${from_objects} SESSIONS none)
zo_test(platform_client_search_test FILES platform/client_search_test.cpp platform/random_tree.cpp
  ${from_objects} PkgConfig::XMU SESSIONS none)
zo_test(platform_pipeline_test FILES platform/pipeline_test.cpp ${from_objects} SESSIONS none)
zo_test(platform_vanish_test FILES platform/vanish_test.cpp platform/opened_connection.cpp ${from_objects} SESSIONS none)
zo_test(platform_round_trips_test FILES platform/round_trips_test.cpp ${from_library}
  SESSIONS none openbox jwm icewm)

set(platform_dir ${PROJECT_SOURCE_DIR}/src/zo_ui/platform/linux)
zo_test(platform_fatal_test
  FILES platform/fatal_test.cpp ${platform_dir}/pointer.cpp ${platform_dir}/connection.cpp ${platform_dir}/x_errors.cpp
  LIBRARIES PkgConfig::X11)
target_compile_definitions(platform_fatal_test PRIVATE NDEBUG)

# The header in its orders with the others, as C++17 with GNU extensions and as C++20: compiling is the test.
function(zo_include_order name)
  foreach(standard 17 20)
    set(target platform_include_${name}_${standard})
    add_library(${target} OBJECT platform/include_order.cpp)
    target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR}/src)
    set_target_properties(${target} PROPERTIES CXX_STANDARD ${standard})
    if(standard EQUAL 17)
      set_target_properties(${target} PROPERTIES CXX_EXTENSIONS ON)
    endif()
    set(headers ${ARGN})
    foreach(place FIRST SECOND THIRD)
      list(POP_FRONT headers header)
      if(header)
        target_compile_definitions(${target} PRIVATE ${place}="${header}")
      endif()
      if(header STREQUAL "zo_ui/zo_ui.hpp")
        target_link_libraries(${target} PRIVATE zo_ui)
      endif()
    endforeach()
  endforeach()
endfunction()

set(queries zo_ui/platform/linux.hpp)
zo_include_order(alone ${queries})
zo_include_order(before_xlib ${queries} X11/Xlib.h)
zo_include_order(after_xlib X11/Xlib.h ${queries})
zo_include_order(first ${queries} X11/Xlib.h zo_ui/zo_ui.hpp)
zo_include_order(between zo_ui/zo_ui.hpp ${queries} X11/Xlib.h)
zo_include_order(last X11/Xlib.h zo_ui/zo_ui.hpp ${queries})
