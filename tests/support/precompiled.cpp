// SPDX-License-Identifier: MIT
// Not run: the program whose precompiled header the tests take over.
int main() {}
