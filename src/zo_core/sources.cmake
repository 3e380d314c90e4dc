zo_library(zo_core
  SOURCES
    zo_core/zo_catalogue.cpp
    zo_core/zo_describe.cpp
    zo_core/zo_diagnostics.cpp
    zo_core/zo_lang.cpp
    zo_core/zo_object.cpp
    zo_core/zo_object_refs.cpp
    zo_core/zo_place.cpp
    zo_core/zo_property.cpp
    zo_core/zo_service.cpp
    zo_core/zo_service_queue.cpp
    zo_core/zo_service_timers.cpp
    zo_core/zo_trace.cpp
    zo_core/zo_unique_id.cpp
  HEADERS
    zo_core/zo_core.hpp
    zo_core/zo_diagnostics.hpp
    zo_core/zo_export.hpp
    zo_core/zo_lang.hpp
    zo_core/zo_object.hpp
    zo_core/zo_property.hpp
    zo_core/zo_property_mutex.hpp
    zo_core/zo_service.hpp
    zo_core/zo_service_task.hpp
    zo_core/zo_unique_id.hpp
  PUBLIC Boost::headers
  PRIVATE PkgConfig::GLIB)
target_compile_definitions(zo_core_objects PRIVATE
  ZO_LOCALEDIR="${CMAKE_INSTALL_FULL_LOCALEDIR}" G_LOG_DOMAIN="zo_core")
