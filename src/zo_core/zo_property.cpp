// SPDX-License-Identifier: MIT
#include <zo_core/zo_property.hpp>

#include <zo_core/zo_property_access_p.hpp>

#include <atomic>

namespace {

template <typename Name>
bool get(property_list& list, const Name& name, boost::any& out) {
    const auto place = list.find(zo::property_key(name));
    boost::any found;
    if (place != list.end()) found = place->second;
    out.swap(found);
    return place != list.end();
}

}  // namespace

bool zo_property_get(::property_list& list, std::string name, boost::any& out) {
    return get(list, name, out);
}

bool zo_property_get(::property_list& list, const char* name, boost::any& out) {
    return get(list, name, out);
}

// Numbers are never given back: names are literals of a library.
zo::flag_name::flag_name(const char* text) : text_(text) {
    constexpr int most = 0x7fff;
    static std::atomic<int> last{0};
    const int number = ++last;
    number_ = number <= most ? static_cast<std::uint16_t>(number) : std::uint16_t{0};
}

std::string zo::access_text(const char* operation, const char* type, std::string_view name,
                            const spelling& how) {
    const char* quote = how.literal_name ? "\"" : "";
    std::string text(operation);
    text.append("<").append(type).append(">(").append(how.list).append(",").append(quote);
    text.append(how.literal_name ? name : "name").append(quote);
    return text.append(",").append(how.value).append(")");
}
