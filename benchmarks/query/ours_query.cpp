// SPDX-License-Identifier: MIT
#include "query.hpp"

#include <zo_ui/platform/linux.hpp>

namespace {

bench::facts ask() {
    bench::facts found;
    unsigned long window = 0;
    getActiveWindowInfo(window, found.name, found.res_name, found.res_class, found.pid);
    return found;
}

}  // namespace

int main(int argc, char** argv) { return bench::run_query(argc, argv, ask); }
