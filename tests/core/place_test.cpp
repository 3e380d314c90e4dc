// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <zo_core/zo_place_p.hpp>

#include <cstdlib>
#include <filesystem>

namespace {

namespace fs = std::filesystem;

std::string build_folder() { return fs::canonical(std::getenv("ZO_BINARY_DIR")).string(); }

TEST(Place, IsTheNearestFolderThatHoldsWhatIsLookedFor) {
    const fs::path library = fs::canonical(fs::path(build_folder()) / "lib" / "libzo_core.so.1");
    EXPECT_EQ(zo::installed_folder("lib", library.filename().c_str(), "/configured"),
              build_folder() + "/lib");
    EXPECT_EQ(zo::installed_folder("share/themes", "brevant/brevant/style.css", "/configured"),
              build_folder() + "/share/themes");
}

TEST(Place, IsTheConfiguredOneWhenNoneHoldsIt) {
    EXPECT_EQ(zo::installed_folder("lib", "missing", "/configured"), "/configured");
    EXPECT_EQ(zo::installed_folder("missing", "", "/configured"), "/configured");
}

}  // namespace
