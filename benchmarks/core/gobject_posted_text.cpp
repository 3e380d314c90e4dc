// SPDX-License-Identifier: MIT
// A GObject whose change is followed on the loop by a function that gets the object, the old text and the new
// one.
#include <core/access.hpp>
#include <core/gobject_class.hpp>

namespace {

struct change {
    BenchThing* thing;
    gchar* old;
    gchar* text;
};

gboolean on_changed(gpointer data) {
    bench::use(*static_cast<change*>(data));
    return G_SOURCE_REMOVE;
}

void let_go(gpointer data) {
    const auto* done = static_cast<change*>(data);
    g_object_unref(done->thing);
    g_free(done->old);
    g_free(done->text);
    g_free(data);
}

void post(BenchThing* thing, gchar* old, const gchar* text) {
    change* next = g_new(change, 1);
    *next = {BENCH_THING(g_object_ref(thing)), old, g_strdup(text)};
    g_idle_add_full(G_PRIORITY_DEFAULT, on_changed, next, let_go);
}

}  // namespace

int main(int count, char** arguments) {
    GObject* object = G_OBJECT(g_object_new(BENCH_TYPE_THING, "title", bench::texts[1].c_str(), nullptr));
    bench_thing_follow(BENCH_THING(object), post);
    const int status = bench::access_main(
        count, arguments, [](int) {},
        [&](int turn) { g_object_set(object, "title", bench::texts[turn % 2].c_str(), nullptr); },
        [] {
            while (g_main_context_iteration(nullptr, FALSE)) {
            }
        });
    g_object_unref(object);
    return status;
}
