// SPDX-License-Identifier: MIT
#pragma once

#include <glib.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace test {

// A new folder among the temporary files, which goes at the end of the scope with all that is in it.
class temporary_folder {
  public:
    temporary_folder() {
        gchar* const made = g_dir_make_tmp(nullptr, nullptr);
        EXPECT_TRUE(made);
        if (made) path_ = made;
        g_free(made);
    }
    ~temporary_folder() {
        if (!path_.empty()) std::filesystem::remove_all(path_);
    }
    temporary_folder(const temporary_folder&) = delete;
    temporary_folder& operator=(const temporary_folder&) = delete;

    const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_;
};

}  // namespace test
