// SPDX-License-Identifier: MIT
// Every exported function with the signature that programs compile against: a changed one does not compile
// here, a missing one does not link.
#include <zo_core/zo_core.hpp>

#include "signatures.hpp"

namespace {

void check_1() {
    check<bool(::property_list&, std::string, boost::any&)>(zo_property_get);
    check<void(zo_object_ptr)>(zo_object_ref);
    check<void(zo_object_ptr)>(zo_object_unref);
    check<void(zo_object_ptr)>(zo_object_unref_real);
    check<void(std::string)>(zo_object_ref_increment);
    check<void(std::string)>(zo_object_ref_decrement);
    check<long(std::string)>(zo_object_ref_count);
    check<void(bool, std::string, std::string, std::string, int)>(zo_assertion_faild);
    check<void(std::function<void()>, std::string, int)>(zo_system_service_exec);
    check<unsigned long(std::function<void()>, unsigned long, std::string, int)>(zo_system_service_timeout);
    check<void(unsigned long)>(zo_system_service_timeout_clear);
    check<bool()>(zo_system_service_done);
    check<void()>(zo_system_service_end);
    check<std::string(std::string)>(zo_lang_get_string);
    check<unsigned long()>(zo_get_unique_id);
}

}  // namespace

void check_core_signatures() { check_1(); }
