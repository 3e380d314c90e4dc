// SPDX-License-Identifier: MIT
// What a sheet of another priority, of the application itself, does to those of the library.
#include "support/temporary_folder.hpp"
#include "support/ui.hpp"

#include <filesystem>
#include <fstream>

namespace {

namespace fs = std::filesystem;

// A sheet on the default screen for one scope.
class foreign_sheet {
  public:
    foreign_sheet(const std::string& css, guint priority) : provider_(gtk_css_provider_new()) {
        gtk_css_provider_load_from_data(provider_, css.c_str(), -1, nullptr);
        gtk_style_context_add_provider_for_screen(gdk_screen_get_default(), GTK_STYLE_PROVIDER(provider_),
                                                  priority);
    }
    ~foreign_sheet() {
        gtk_style_context_remove_provider_for_screen(gdk_screen_get_default(), GTK_STYLE_PROVIDER(provider_));
        g_object_unref(provider_);
    }
    foreign_sheet(const foreign_sheet&) = delete;
    foreign_sheet& operator=(const foreign_sheet&) = delete;

  private:
    GtkCssProvider* provider_;
};

constexpr const char* red = "rgb(255,0,0)";
constexpr const char* blue = "rgb(0,0,255)";

class ThemePriority : public testing::Test {
  protected:
    void SetUp() override { zo_theme_set_theme_path(folder_.string() + "/"); }
    void TearDown() override { zo_theme_uninit(); }

    void write(const std::string& file, const std::string& css) {
        fs::create_directories((folder_ / file).parent_path());
        std::ofstream(folder_ / file) << css;
    }

    // The colour of a label of this class, while the sheets are there and one of `priority` says blue.
    static std::string colour_against(const std::string& style_class, guint priority) {
        const foreign_sheet foreign("." + style_class + " { color: blue; }", priority);
        GtkWidget* label = GTK_WIDGET(g_object_ref_sink(gtk_label_new("x")));
        GtkStyleContext* context = gtk_widget_get_style_context(label);
        gtk_style_context_add_class(context, style_class.c_str());
        GdkRGBA rgba{};
        gtk_style_context_get_color(context, gtk_style_context_get_state(context), &rgba);
        char* text = gdk_rgba_to_string(&rgba);
        const std::string result = text;
        g_free(text);
        gtk_widget_destroy(label);
        g_object_unref(label);
        return result;
    }

    const test::temporary_folder temporary_;
    const fs::path folder_ = temporary_.path();
};

// The foreign sheet comes later each time, so that only its priority can make it lose.
TEST_F(ThemePriority, OfAThemeIsExactlyTheApplications) {
    write("one/style.css", ".theme-class { color: red; }");
    GError* error = nullptr;
    zo_theme_use_theme("one", error);
    ASSERT_EQ(error, nullptr);
    EXPECT_EQ(colour_against("theme-class", 599), red);
    EXPECT_EQ(colour_against("theme-class", 600), blue) << "of one priority the later one wins";
    EXPECT_EQ(colour_against("theme-class", 601), blue);
}

// And here the library's sheets come later.
TEST_F(ThemePriority, LosesAgainstAnEarlierSheetOfAHigherOne) {
    write("one/style.css", ".late-class { color: red; }");
    write("more.css", ".late-class { color: red; }");
    for (const guint priority : {601u, 600u}) {
        const foreign_sheet before(".late-class { color: blue; }", priority);
        GError* error = nullptr;
        zo_theme_use_theme("one", error);
        ASSERT_EQ(error, nullptr);
        EXPECT_EQ(colour_against("late-class", 1), priority == 600 ? red : blue);
    }
    zo_theme_uninit();
    const foreign_sheet before(".late-class { color: blue; }", 601);
    GError* error = nullptr;
    zo_theme_add_css_permanent("more.css", error);
    ASSERT_EQ(error, nullptr);
    EXPECT_EQ(colour_against("late-class", 1), blue);
}

TEST_F(ThemePriority, OfAPermanentSheetIsTheSame) {
    write("extra.css", ".permanent-class { color: red; }");
    GError* error = nullptr;
    zo_theme_add_css_permanent("extra.css", error);
    ASSERT_EQ(error, nullptr);
    EXPECT_EQ(colour_against("permanent-class", 599), red);
    EXPECT_EQ(colour_against("permanent-class", 600), blue);
    EXPECT_EQ(colour_against("permanent-class", 601), blue);
}

}  // namespace
