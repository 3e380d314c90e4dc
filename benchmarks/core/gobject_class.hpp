// SPDX-License-Identifier: MIT
// A GObject with the properties that the rows read and write, its values under a GMutex.
#pragma once

#include <glib-object.h>

#define BENCH_TYPE_THING (bench_thing_get_type())
G_DECLARE_FINAL_TYPE(BenchThing, bench_thing, BENCH, THING, GObject)

// Called with each title that is set: it owns the old one.
using BenchThingFollower = void (*)(BenchThing* thing, gchar* old, const gchar* text);
void bench_thing_follow(BenchThing* thing, BenchThingFollower follower);
