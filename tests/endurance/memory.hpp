// SPDX-License-Identifier: MIT
// What a process holds: its heap, point after point, and what the X server keeps for it.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace endurance {

// Bytes of heap in use.
double heap();

struct point {
    double items, bytes;
};

// Bytes that each item left behind: the slope of the line with the least squares.
double slope(const std::vector<point>& points);

// By how much the last points lie above the first ones.
double growth(const std::vector<point>& points);

// How many resources of each type the X server keeps for this process, and the bytes of its pixmaps.
using x_resources = std::map<std::string, unsigned long>;
x_resources count_x_resources();

std::string text_of(const x_resources& counted);

}  // namespace endurance
