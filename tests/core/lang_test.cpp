// SPDX-License-Identifier: MIT
// The language belongs to the process, so each one has a process of its own.
#include "core/child_process.hpp"
#include "support/temporary_folder.hpp"

#include <glib.h>
#include <gtest/gtest.h>
#include <zo_core/zo_core.hpp>

#include <libintl.h>
#include <clocale>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <vector>

namespace {

namespace fs = std::filesystem;

using texts = std::map<std::string, std::string>;

const texts english{
    {"tooltip_back", "Go back"},
    {"tooltip_close_app", "Exit the application"},
    {"tooltip_close_window", "Close the window"},
    {"tooltip_how_to", "How to use this window"},
    {"tooltip_menu", "Menu"},
    {"tooltip_minimize_window", "Minimize the window"},
    {"tooltip_save_window_photo", "Save a picture of the window"},
    {"tooltip_close_notification", "Close the notification"},
    {"toolbar-locked", "The panel stays open. Click to let it slide away."},
    {"toolbar-unlocked", "The panel slides away. Click to keep it open."},
};

void say_all() {
    for (const auto& [key, text] : english) test::say(key + "=" + zo_lang_get_string(key));
}

const test::scene all("all", [] {
    setlocale(LC_ALL, "");
    say_all();
    test::say("=" + zo_lang_get_string(""));
    test::say("tooltip_unknown=" + zo_lang_get_string("tooltip_unknown"));
});
const test::scene no_locale("no locale", say_all);
const test::scene other_domain("other domain", [] {
    setlocale(LC_ALL, "");
    bindtextdomain("messages", "/nowhere");
    test::say(gettext("tooltip_back"));
    say_all();
    test::say(textdomain(nullptr));
});

texts parse(const std::string& output) {
    texts result;
    std::istringstream input(output);
    for (std::string line; std::getline(input, line);) {
        const std::size_t equals = line.find('=');
        if (equals != std::string::npos) result[line.substr(0, equals)] = line.substr(equals + 1);
    }
    return result;
}

texts spoken(const std::string& scene, const std::string& locale, const std::string& language,
             std::vector<std::pair<std::string, std::string>> environment = {}) {
    environment.insert(environment.end(), {{"LC_ALL", locale}, {"LANGUAGE", language}});
    const test::child_end end = test::play(scene, environment);
    EXPECT_EQ(end.status, 0);
    return parse(end.output);
}

texts only_keys(texts all_texts) {
    all_texts.erase("");
    all_texts.erase("tooltip_unknown");
    return all_texts;
}

fs::path folder(const char* variable) {
    const char* value = std::getenv(variable);
    return value ? value : ".";
}

// The pairs of a catalogue's source, whose texts each stand on one line.
texts catalogue(const std::string& language) {
    texts result;
    std::ifstream input(folder("ZO_SOURCE_DIR") / "po" / (language + ".po"));
    std::string key;
    for (std::string line; std::getline(input, line);) {
        const auto quoted = [&line](std::size_t begin) {
            return line.substr(begin, line.size() - begin - 1);
        };
        if (line.rfind("msgid \"", 0) == 0) key = quoted(7);
        if (line.rfind("msgstr \"", 0) == 0 && !key.empty()) result[key] = quoted(8);
    }
    return result;
}

bool is_plain_markup(const std::string& text) {
    const GMarkupParser no_elements{[](GMarkupParseContext*, const gchar* name, const gchar**, const gchar**,
                                       gpointer, GError**) { EXPECT_STREQ(name, "text"); },
                                    nullptr, nullptr, nullptr, nullptr};
    GMarkupParseContext* context =
        g_markup_parse_context_new(&no_elements, GMarkupParseFlags(0), nullptr, nullptr);
    const std::string document = "<text>" + text + "</text>";
    const bool valid = g_markup_parse_context_parse(context, document.c_str(), -1, nullptr) &&
                       g_markup_parse_context_end_parse(context, nullptr);
    g_markup_parse_context_free(context);
    return valid;
}

class Lang : public testing::TestWithParam<const char*> {};

TEST_P(Lang, EveryKeyHasItsText) {
    const texts expected = catalogue(GetParam());
    EXPECT_EQ(expected.size(), english.size());
    texts heard = spoken("all", "C.UTF-8", GetParam());
    EXPECT_EQ(heard.at(""), "") << "not the catalogue's head";
    EXPECT_EQ(heard.at("tooltip_unknown"), "tooltip_unknown");
    heard = only_keys(heard);
    EXPECT_EQ(heard, expected);
    std::set<std::string> distinct;
    for (const auto& [key, text] : heard) {
        EXPECT_NE(text, key);
        EXPECT_NE(text, "");
        EXPECT_TRUE(is_plain_markup(text)) << text;
        EXPECT_TRUE(g_utf8_validate(text.c_str(), -1, nullptr));
        distinct.insert(text);
    }
    EXPECT_EQ(distinct.size(), english.size()) << "two keys with one text";
}

// What is the language's as a whole; a catalogue that is a region's own serves that region only.
TEST_P(Lang, ARegionHasTheTextsOfItsLanguage) {
    const std::string language = GetParam();
    const std::string region =
        language.find('_') == std::string::npos ? language + "_XX" : language + ".UTF-8";
    EXPECT_EQ(only_keys(spoken("all", "C.UTF-8", region)), catalogue(language));
}

constexpr const char* shipped[] = {"ar", "de", "el", "en", "es",    "fr", "he", "hi",
                                   "it", "ja", "ko", "pl", "pt_BR", "ru", "uk", "zh_CN"};

INSTANTIATE_TEST_SUITE_P(, Lang, testing::ValuesIn(shipped),
                         [](const auto& info) { return std::string(info.param); });

TEST(LangChoice, IsEnglishWithoutACatalogue) {
    EXPECT_EQ(catalogue("en"), english) << "the built-in texts and the English catalogue are one list";
    EXPECT_EQ(only_keys(spoken("all", "C.UTF-8", "tlh")), english);
    EXPECT_EQ(only_keys(spoken("all", "C", "de")), english);
    EXPECT_EQ(spoken("no locale", "C.UTF-8", "de"), english);
}

TEST(LangChoice, TakesTheFirstLanguageThatHasACatalogue) {
    EXPECT_EQ(only_keys(spoken("all", "C.UTF-8", "tlh:pl:de")), catalogue("pl"));
}

TEST(LangChoice, IsUtf8WhateverTheTerminalSpeaks) {
    EXPECT_EQ(only_keys(spoken("all", "C.UTF-8", "de", {{"OUTPUT_CHARSET", "ISO-8859-1"}})), catalogue("de"));
}

TEST(LangChoice, LeavesTheApplicationsDomainAlone) {
    const test::child_end end = test::play("other domain", {{"LC_ALL", "C.UTF-8"}, {"LANGUAGE", "de"}});
    EXPECT_EQ(end.output.substr(0, 13), "tooltip_back\n");
    EXPECT_EQ(end.output.substr(end.output.size() - 9), "messages\n");
    EXPECT_EQ(parse(end.output), catalogue("de"));
}

TEST(LangChoice, ShippedAreSixteenLanguages) {
    std::set<std::string> languages;
    std::ifstream input(folder("ZO_SOURCE_DIR") / "po" / "LINGUAS");
    for (std::string line; std::getline(input, line);) languages.insert(line);
    EXPECT_EQ(languages, std::set<std::string>(std::begin(shipped), std::end(shipped)));
}

// A prefix that was moved: the library and the catalogues of this build, elsewhere.
class MovedPrefix : public testing::TestWithParam<const char*> {
  protected:
    MovedPrefix() {
        fs::create_directories(prefix_ / GetParam());
        fs::copy_file(folder("ZO_BINARY_DIR") / "lib" / "libzo_core.so.1",
                      prefix_ / GetParam() / "libzo_core.so.1");
    }

    texts spoken_there() {
        return only_keys(
            spoken("all", "C.UTF-8", "fr", {{"LD_LIBRARY_PATH", (prefix_ / GetParam()).string()}}));
    }
    const test::temporary_folder temporary_;
    const fs::path prefix_ = temporary_.path();
};

TEST_P(MovedPrefix, HasItsCataloguesBesideTheLibrary) {
    EXPECT_EQ(spoken_there(), english);
    fs::create_directories(prefix_ / "share");
    fs::copy(folder("ZO_BINARY_DIR") / "share" / "locale", prefix_ / "share" / "locale",
             fs::copy_options::recursive);
    EXPECT_EQ(spoken_there(), catalogue("fr"));
}

INSTANTIATE_TEST_SUITE_P(, MovedPrefix, testing::Values("lib", "lib/x86_64-linux-gnu"));

}  // namespace
