// SPDX-License-Identifier: MIT
#include <core/access.hpp>
#include <core/gobject_class.hpp>

int main(int count, char** arguments) {
    GObject* object = G_OBJECT(g_object_new(BENCH_TYPE_THING, nullptr));
    const int status = bench::access_main(
        count, arguments,
        [&](int) {
            gboolean value = FALSE;
            g_object_get(object, "keep-above", &value, nullptr);
            bench::use(value);
        },
        [&](int turn) { g_object_set(object, "keep-above", turn % 2, nullptr); });
    g_object_unref(object);
    return status;
}
