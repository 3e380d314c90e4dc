// SPDX-License-Identifier: MIT
// A GObject with the properties that the rows read and write, its values under a GMutex.
#pragma once

#include <glib-object.h>

#define BENCH_TYPE_THING (bench_thing_get_type())
G_DECLARE_FINAL_TYPE(BenchThing, bench_thing, BENCH, THING, GObject)
