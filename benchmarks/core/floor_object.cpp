// SPDX-License-Identifier: MIT
#include <core/floor_values.hpp>
#include <core/objects.hpp>

#include <memory>

int main() {
    return bench::objects_main([] { const auto object = std::make_shared<bench::floor_values>(); });
}
