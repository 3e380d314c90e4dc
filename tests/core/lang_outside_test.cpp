// SPDX-License-Identifier: MIT
// The catalogues are those beside the library, wherever the program stands that uses it.
#include "support/temporary_folder.hpp"

#include <glib.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace {

namespace fs = std::filesystem;

// A folder of its own for the program, without catalogues near it.
class LangOutside : public testing::Test {
  protected:
    LangOutside() {
        fs::copy_file(fs::path(std::getenv("ZO_BINARY_DIR")) / "bin" / "outside_program", program());
    }

    fs::path program() const { return folder_ / "program"; }

    std::string spoken() const {
        gchar** environment = g_get_environ();
        environment = g_environ_setenv(environment, "LC_ALL", "C.UTF-8", TRUE);
        environment = g_environ_setenv(environment, "LANGUAGE", "de", TRUE);
        std::string path = program().string();
        gchar* arguments[] = {path.data(), nullptr};
        gchar* output = nullptr;
        gint status = -1;
        EXPECT_TRUE(g_spawn_sync(nullptr, arguments, environment, G_SPAWN_DEFAULT, nullptr, nullptr, &output,
                                 nullptr, &status, nullptr));
        EXPECT_EQ(status, 0);
        const std::string result = output ? output : "";
        g_free(output);
        g_strfreev(environment);
        return result;
    }

  private:
    const test::temporary_folder temporary_;
    const fs::path folder_ = temporary_.path();
};

TEST_F(LangOutside, AProgramElsewhereSpeaksItsUsersLanguage) { EXPECT_EQ(spoken(), "Zurück\n"); }

}  // namespace
