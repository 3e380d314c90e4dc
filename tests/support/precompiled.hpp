// SPDX-License-Identifier: MIT
// What almost every test with widgets includes; compiled once for all of them.
#pragma once

#include <gtest/gtest.h>
#include <gtk/gtk.h>
#include <zo_ui/zo_ui.hpp>
