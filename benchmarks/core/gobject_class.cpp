// SPDX-License-Identifier: MIT
#include <core/gobject_class.hpp>

struct _BenchThing {
    GObject parent;
    GMutex mutex;
    gboolean keep_above;
    gchar* title;
    BenchThingFollower follower;
};

G_DEFINE_FINAL_TYPE(BenchThing, bench_thing, G_TYPE_OBJECT)

namespace {

enum { property_keep_above = 1, property_title };

void get_property(GObject* object, guint id, GValue* value, GParamSpec* spec) {
    BenchThing* self = BENCH_THING(object);
    g_mutex_lock(&self->mutex);
    switch (id) {
        case property_keep_above:
            g_value_set_boolean(value, self->keep_above);
            break;
        case property_title:
            g_value_set_string(value, self->title);
            break;
        default:
            G_OBJECT_WARN_INVALID_PROPERTY_ID(object, id, spec);
    }
    g_mutex_unlock(&self->mutex);
}

void set_property(GObject* object, guint id, const GValue* value, GParamSpec* spec) {
    BenchThing* self = BENCH_THING(object);
    gchar* old = nullptr;
    g_mutex_lock(&self->mutex);
    switch (id) {
        case property_keep_above:
            self->keep_above = g_value_get_boolean(value);
            break;
        case property_title:
            old = self->title;
            self->title = g_value_dup_string(value);
            break;
        default:
            G_OBJECT_WARN_INVALID_PROPERTY_ID(object, id, spec);
    }
    g_mutex_unlock(&self->mutex);
    if (id != property_title) return;
    if (self->follower)
        self->follower(self, old, g_value_get_string(value));
    else
        g_free(old);
}

void finalize(GObject* object) {
    BenchThing* self = BENCH_THING(object);
    g_free(self->title);
    g_mutex_clear(&self->mutex);
    G_OBJECT_CLASS(bench_thing_parent_class)->finalize(object);
}

// As the library's properties, these tell nobody of a change.
constexpr auto flags =
    static_cast<GParamFlags>(G_PARAM_READWRITE | G_PARAM_STATIC_STRINGS | G_PARAM_EXPLICIT_NOTIFY);

}  // namespace

static void bench_thing_class_init(BenchThingClass* type) {
    GObjectClass* object = G_OBJECT_CLASS(type);
    object->get_property = get_property;
    object->set_property = set_property;
    object->finalize = finalize;
    g_object_class_install_property(object, property_keep_above,
                                    g_param_spec_boolean("keep-above", nullptr, nullptr, TRUE, flags));
    g_object_class_install_property(object, property_title,
                                    g_param_spec_string("title", nullptr, nullptr, "", flags));
}

void bench_thing_follow(BenchThing* thing, BenchThingFollower follower) { thing->follower = follower; }

static void bench_thing_init(BenchThing* self) {
    g_mutex_init(&self->mutex);
    self->keep_above = TRUE;
    self->title = g_strdup("");
}
