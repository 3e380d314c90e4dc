// SPDX-License-Identifier: MIT
#pragma once

// Where the pointer is, in the root coordinates of its screen; either pointer may be null. False, with a line
// on standard error, when no screen has the pointer. Without a display the process ends, in every build.
bool GetCursorPos(int* x, int* y);
