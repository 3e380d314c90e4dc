// SPDX-License-Identifier: MIT
// A damaged catalogue is recognised before gettext follows it.
#include "support/temporary_folder.hpp"

#include <zo_core/zo_catalogue_p.hpp>

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace {

namespace fs = std::filesystem;

fs::path locale_folder() { return fs::path(std::getenv("ZO_BINARY_DIR")) / "share" / "locale"; }

std::string content_of(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string german() { return content_of(locale_folder() / "de" / "LC_MESSAGES" / "zo.mo"); }

// A word of the head, in the byte order of this machine, as msgfmt writes it.
void put_word(std::string& content, std::size_t index, std::uint32_t value) {
    content.replace(index * sizeof value, sizeof value, reinterpret_cast<const char*>(&value), sizeof value);
}

TEST(Catalogue, EachOfTheProjectIsSound) {
    int seen = 0;
    for (const auto& entry : fs::recursive_directory_iterator(locale_folder()))
        if (entry.path().filename() == "zo.mo") {
            EXPECT_TRUE(zo::is_sound_catalogue(content_of(entry.path()))) << entry.path();
            ++seen;
        }
    EXPECT_GE(seen, 6);
}

TEST(Catalogue, CutOffAnywhereIsDamaged) {
    const std::string whole = german();
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(zo::is_sound_catalogue(whole.substr(0, length))) << length;
}

TEST(Catalogue, ThatPointsOutsideIsDamaged) {
    const std::string whole = german();
    // The number of texts, the places of the tables, the size and the place of the hash table.
    for (const std::size_t index : {2U, 3U, 4U, 5U, 6U})
        for (const std::uint32_t value :
             {0xffffffffU, 0x7fffffffU, static_cast<std::uint32_t>(whole.size())}) {
            std::string damaged = whole;
            put_word(damaged, index, value);
            EXPECT_FALSE(zo::is_sound_catalogue(damaged)) << index << " " << value;
        }
    std::string other = whole;
    put_word(other, 0, 0x12345678);
    EXPECT_FALSE(zo::is_sound_catalogue(other)) << "another kind of file";
}

TEST(Catalogue, OfAnotherLanguageDisturbsNobody) {
    const test::temporary_folder temporary;
    const fs::path& folder = temporary.path();
    fs::create_directories(folder / "de" / "LC_MESSAGES");
    std::ofstream(folder / "de" / "LC_MESSAGES" / "zo.mo") << "noise";
    setenv("LANGUAGE", "pl", 1);
    EXPECT_TRUE(zo::are_catalogues_sound(folder.string(), "zo"));
    setenv("LANGUAGE", "pl:de", 1);
    EXPECT_FALSE(zo::are_catalogues_sound(folder.string(), "zo"));
}

// These words, in the byte order of this machine, and these bytes behind them.
std::string catalogue_of(const std::vector<std::uint32_t>& words, const std::string& texts) {
    return std::string(reinterpret_cast<const char*>(words.data()), words.size() * sizeof words[0]) + texts;
}

// Without any text, and with the empty one for the empty message.
TEST(Catalogue, TheSmallestAreSound) {
    constexpr std::uint32_t magic = 0x950412de;
    EXPECT_TRUE(zo::is_sound_catalogue(catalogue_of({magic, 0, 0, 28, 28, 0, 28}, "")));
    EXPECT_TRUE(zo::is_sound_catalogue(
        catalogue_of({magic, 0, 1, 28, 36, 0, 44, 0, 44, 0, 45}, std::string(2, '\0'))));
}

}  // namespace
