// SPDX-License-Identifier: MIT
// Loading and replacing sheets, seen by the colour that a label gets from them.
#include "support/temporary_folder.hpp"
#include "support/ui.hpp"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace {

namespace fs = std::filesystem;

class Theme : public testing::Test {
  protected:
    void SetUp() override {
        zo_theme_set_theme_path(folder_.string() + "/");
        label_ = GTK_WIDGET(g_object_ref_sink(gtk_label_new("x")));
        gtk_style_context_add_class(gtk_widget_get_style_context(label_), "theme-test");
    }
    void TearDown() override {
        zo_theme_uninit();
        gtk_widget_destroy(label_);
        g_object_unref(label_);
    }

    void write(const std::string& file, const std::string& css) {
        fs::create_directories((folder_ / file).parent_path());
        std::ofstream(folder_ / file) << css;
    }
    void write_theme(const std::string& name, const std::string& colour) {
        write(name + "/style.css", ".theme-test { color: " + colour + "; }");
    }

    // What the label's text would be drawn with, as CSS spells it.
    std::string colour() {
        GtkStyleContext* context = gtk_widget_get_style_context(label_);
        GdkRGBA rgba{};
        gtk_style_context_get_color(context, gtk_style_context_get_state(context), &rgba);
        char* text = gdk_rgba_to_string(&rgba);
        const std::string result = text;
        g_free(text);
        return result;
    }

    const test::temporary_folder temporary_;
    const fs::path folder_ = temporary_.path();
    GtkWidget* label_ = nullptr;
};

constexpr const char* red = "rgb(255,0,0)";
constexpr const char* lime = "rgb(0,255,0)";
constexpr const char* blue = "rgb(0,0,255)";

bool use(const std::string& name) {
    GError* error = reinterpret_cast<GError*>(1);  // is set to null first
    zo_theme_use_theme(name, error);
    const bool done = !error;
    g_clear_error(&error);
    return done;
}

TEST_F(Theme, TheLastOneChosenIsTheOnlyOne) {
    const std::string plain = colour();
    write_theme("one", "red");
    write_theme("two", "blue");
    EXPECT_TRUE(use("one"));
    EXPECT_EQ(colour(), red);
    EXPECT_TRUE(use("two"));
    EXPECT_EQ(colour(), blue);
    EXPECT_EQ(zo_theme_get_theme_name(), "two");
    zo_theme_uninit();
    EXPECT_EQ(colour(), plain) << "one provider was on the screen, not two";
    EXPECT_EQ(zo_theme_get_theme_name(), "two");
    zo_theme_uninit();
}

TEST_F(Theme, AFailureLeavesNoneAndKeepsTheNewName) {
    const std::string plain = colour();
    write_theme("one", "red");
    EXPECT_TRUE(use("one"));
    EXPECT_FALSE(use("missing"));
    EXPECT_EQ(colour(), plain);
    EXPECT_EQ(zo_theme_get_theme_name(), "missing");
}

TEST_F(Theme, PathsAreGluedAsTheyAre) {
    write("themesx/style.css", ".theme-test { color: red; }");
    zo_theme_set_theme_path((folder_ / "themes").string());
    EXPECT_EQ(zo_theme_get_theme_path(), (folder_ / "themes").string());
    EXPECT_TRUE(use("x"));
    EXPECT_EQ(colour(), red);
}

TEST_F(Theme, AnErrorOfTheSheetIsOneLineEach) {
    write("bad/style.css", ".theme-test { color: red; nonsense: 1; }\n.theme-test { colr: 2; }");
    test::captured_output output;
    GError* error = nullptr;
    zo_theme_use_theme("bad", error);
    EXPECT_EQ(output.text(),
              "css parsing error: 'nonsense' is not a valid property name\n"
              "css parsing error: 'colr' is not a valid property name\n");
    EXPECT_NE(error, nullptr) << "whether the sheet is rejected is GTK's decision; it does";
    g_clear_error(&error);
}

// Permanent sheets cannot be taken away again, so all of them are tested in one place, each with a class of
// its own.
TEST_F(Theme, PermanentSheetsStayAndTheLastAddedWins) {
    write_theme("one", "red");
    write("extra.css", ".theme-test { color: lime; }");
    const std::string plain = colour();
    EXPECT_TRUE(use("one"));
    GError* error = reinterpret_cast<GError*>(1);
    zo_theme_add_css_permanent("extra.css", error);
    EXPECT_EQ(error, nullptr);
    EXPECT_EQ(colour(), lime) << "added after the theme";
    EXPECT_TRUE(use("one"));
    EXPECT_EQ(colour(), red) << "the theme was added after it";
    zo_theme_uninit();
    EXPECT_EQ(colour(), lime) << "it survives the theme";
    EXPECT_NE(colour(), plain);
    zo_theme_add_css_permanent("missing.css", error);
    EXPECT_NE(error, nullptr);
    g_clear_error(&error);
}

TEST_F(Theme, AFileThatCannotBeReadIsAnError) {
    const std::string plain = colour();
    fs::create_directories(folder_ / "folder" / "style.css");
    write_theme("one", "red");
    EXPECT_TRUE(use("one"));
    test::captured_output output;
    EXPECT_FALSE(use("folder"));
    EXPECT_EQ(output.lines().size(), 1U) << "GTK's own message of it, and nothing else: " << output.text();
    EXPECT_EQ(colour(), plain);
    EXPECT_EQ(zo_theme_get_theme_name(), "folder");
}

TEST_F(Theme, APermanentSheetThatFailsLeavesTheThemeAlone) {
    write_theme("one", "red");
    write("bad.css", ".theme-test { color: blue; nonsense: 1; }");
    fs::create_directories(folder_ / "folder.css");
    EXPECT_TRUE(use("one"));
    for (const char* file : {"missing.css", "folder.css", "bad.css"}) {
        test::captured_output output;
        GError* error = nullptr;
        zo_theme_add_css_permanent(file, error);
        EXPECT_NE(error, nullptr) << file;
        g_clear_error(&error);
        EXPECT_EQ(colour(), red) << file;
        EXPECT_EQ(zo_theme_get_theme_name(), "one");
    }
    EXPECT_TRUE(use("one")) << "the theme is replaced as ever";
    EXPECT_EQ(colour(), red);
}

}  // namespace
