// SPDX-License-Identifier: MIT
// A map whose change is followed on the loop by a function that gets the object, the old text and the new
// one.
#include <core/access.hpp>
#include <core/floor_values.hpp>
#include <support/task_source.hpp>

#include <memory>

namespace {

struct change {
    std::shared_ptr<bench::floor_values> object;
    std::string old;
    std::string text;

    void operator()() { bench::use(*this); }
};

}  // namespace

int main(int count, char** arguments) {
    bench::task_source<change> tasks;
    const auto object = std::make_shared<bench::floor_values>();
    object->set<std::string>("window-title-text", bench::texts[1]);
    const auto write = [&](int turn) {
        const std::string& text = bench::texts[turn % 2];
        std::string value = text;
        object->exchange("window-title-text", value);
        tasks.post({object, std::move(value), text});
    };
    return bench::access_main(
        count, arguments, [](int) {}, write,
        [] {
            while (g_main_context_iteration(nullptr, FALSE)) {
            }
        });
}
