// SPDX-License-Identifier: MIT
#include <core/access.hpp>
#include <core/gobject_class.hpp>

int main(int count, char** arguments) {
    GObject* object = G_OBJECT(g_object_new(BENCH_TYPE_THING, "title", bench::texts[1].c_str(), nullptr));
    const int status = bench::access_main(
        count, arguments,
        [&](int) {
            gchar* text = nullptr;
            g_object_get(object, "title", &text, nullptr);
            bench::use(text);
            g_free(text);
        },
        [&](int turn) { g_object_set(object, "title", bench::texts[turn % 2].c_str(), nullptr); });
    g_object_unref(object);
    return status;
}
