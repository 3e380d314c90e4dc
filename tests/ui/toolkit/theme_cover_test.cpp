// SPDX-License-Identifier: MIT
// The shipped theme: it loads without an error, and has a rule for every class and name that the library
// sets.
#include "support/ui.hpp"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>

namespace {

namespace fs = std::filesystem;

fs::path source() { return std::getenv("ZO_SOURCE_DIR"); }

std::string text_of(const fs::path& file) {
    std::ifstream input(file);
    return {std::istreambuf_iterator<char>(input), {}};
}

// What the code sets, by the calls that set it; classes made of other words in a table are listed below.
std::set<std::string> selectors_in_code() {
    std::set<std::string> found;
    const std::regex classes(
        R"re((?:add_class|remove_class|region_new|square_button|button(?:16|24|32)_new)\([^"\n]*"([\w-]+)")re");
    const std::regex names(R"re(gtk_widget_set_name\([^"\n]*"([\w-]+)")re");
    const std::regex tables(R"re("(title-[a-z]+|lock-[a-z]+|size-\d+)")re");
    for (const auto& entry : fs::recursive_directory_iterator(source() / "src")) {
        if (entry.path().extension() != ".cpp") continue;
        const std::string text = text_of(entry.path());
        for (std::sregex_iterator i(text.begin(), text.end(), classes), end; i != end; ++i)
            found.insert("." + i->str(1));
        for (std::sregex_iterator i(text.begin(), text.end(), tables), end; i != end; ++i)
            found.insert("." + i->str(1));
        for (std::sregex_iterator i(text.begin(), text.end(), names), end; i != end; ++i)
            found.insert("#" + i->str(1));
    }
    return found;
}

// Those of the panel and of notifications, whether or not this build sets them yet.
const std::set<std::string> promised = {".zo-window",
                                        ".managed",
                                        ".popup",
                                        ".active",
                                        ".window-content",
                                        ".window-scroll",
                                        ".window-ads-container",
                                        ".window-ads-content",
                                        ".window-title",
                                        ".title-text",
                                        ".title-event-box",
                                        ".title-exit",
                                        ".title-hint",
                                        ".title-shoot",
                                        ".title-close",
                                        ".title-minimize",
                                        ".title-menu",
                                        ".title-back",
                                        ".tool-menu",
                                        ".tool-menu-grid",
                                        ".tool-menu-button",
                                        ".zo-button",
                                        ".size-16",
                                        ".size-24",
                                        ".size-32",
                                        "#window-fixed",
                                        "#window-wrapper",
                                        ".zo-manager",
                                        ".tab-manager",
                                        "#manager-fixed",
                                        "#manager-wrapper-event_box",
                                        "#manager-wrapper",
                                        ".manager-taskbox",
                                        ".manager-taskbox-left",
                                        ".manager-taskbox-center",
                                        ".manager-taskbox-scroll",
                                        ".manager-taskbox-right",
                                        ".manager-toolbar",
                                        ".lock-locked",
                                        ".lock-unlocked",
                                        ".zo-notification",
                                        ".content",
                                        ".content-text",
                                        ".no-actions",
                                        ".action-box",
                                        ".only_one",
                                        ".invisible"};

bool names(const std::string& css, const std::string& selector) {
    const std::regex whole("\\" + selector + R"re((?![\w-])[^;}]*\{)re");
    return std::regex_search(css, whole);
}

TEST(ThemeCover, LoadsWithoutAnError) {
    zo_theme_set_theme_path(source().string() + "/share/themes/brevant/");
    test::captured_output output;
    GError* error = nullptr;
    zo_theme_use_theme("brevant", error);
    EXPECT_EQ(error, nullptr) << error->message;
    EXPECT_EQ(output.text(), "");
    zo_theme_set_theme_path(source().string() + "/share/themes/");
    zo_theme_use_theme("brevant", error);
    EXPECT_EQ(error, nullptr) << "the folder's own sheet: " << error->message;
    EXPECT_EQ(output.text(), "");
    zo_theme_uninit();
}

TEST(ThemeCover, EachVariantLoadsWithColoursOfItsOwn) {
    zo_theme_set_theme_path(source().string() + "/share/themes/brevant/");
    GtkWidget* label = GTK_WIDGET(g_object_ref_sink(gtk_label_new("x")));
    std::set<std::string> grounds;
    for (const char* variant : {"brevant", "brevant-dark", "brevant-high-contrast"}) {
        test::captured_output output;
        GError* error = nullptr;
        zo_theme_use_theme(variant, error);
        ASSERT_EQ(error, nullptr) << error->message;
        EXPECT_EQ(output.text(), "");
        GdkRGBA ground{};
        ASSERT_TRUE(gtk_style_context_lookup_color(gtk_widget_get_style_context(label), "zo_bg", &ground));
        char* text = gdk_rgba_to_string(&ground);
        grounds.insert(text);
        g_free(text);
    }
    EXPECT_EQ(grounds.size(), 3u);
    g_object_unref(label);
    zo_theme_uninit();
}

TEST(ThemeCover, NamesEveryClassAndName) {
    const std::string css = text_of(source() / "share/themes/brevant/style.css");
    std::set<std::string> wanted = selectors_in_code();
    ASSERT_TRUE(wanted.count(".tool-menu-grid") && wanted.count("#window-fixed") &&
                wanted.count(".title-shoot"))
        << "the search of the code finds nothing any more";
    wanted.insert(promised.begin(), promised.end());
    for (const std::string& selector : wanted)
        EXPECT_TRUE(names(css, selector)) << "no rule for " << selector;
}

// What a theme names, the pictures, must be there.
TEST(ThemeCover, ItsPicturesExist) {
    const fs::path folder = source() / "share/themes/brevant";
    const std::string css = text_of(folder / "style.css");
    const std::regex urls(R"re(url\("([^"]+)"\))re");
    int count = 0;
    for (std::sregex_iterator i(css.begin(), css.end(), urls), end; i != end; ++i, ++count)
        EXPECT_TRUE(fs::exists(folder / i->str(1))) << i->str(1);
    EXPECT_GT(count, 9);
}

TEST(ThemeCover, SizedButtonsAreThatSize) {
    zo_theme_set_theme_path(source().string() + "/share/themes/brevant/");
    GError* error = nullptr;
    zo_theme_use_theme("brevant", error);
    ASSERT_EQ(error, nullptr);
    GtkWidget* window = gtk_window_new(GTK_WINDOW_POPUP);
    gtk_style_context_add_class(gtk_widget_get_style_context(window), "zo-window");
    GtkWidget* row = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
    gtk_container_add(GTK_CONTAINER(window), row);
    const std::pair<GtkWidget*, int> buttons[] = {{zo_ui_button16_new("title-close"), 16},
                                                  {zo_ui_button24_new("icon-add"), 24},
                                                  {zo_ui_button32_new(""), 32}};
    for (const auto& [button, size] : buttons) {
        gtk_widget_set_valign(button, GTK_ALIGN_CENTER);
        gtk_box_pack_start(GTK_BOX(row), button, FALSE, FALSE, 0);
    }
    gtk_widget_show_all(window);
    ASSERT_TRUE(test::turn_until([&] { return test::is_on_screen(window); }));
    for (const auto& [button, size] : buttons) {
        EXPECT_EQ(gtk_widget_get_allocated_width(button), size);
        EXPECT_EQ(gtk_widget_get_allocated_height(button), size);
    }
    gtk_widget_destroy(window);
    zo_theme_uninit();
}

}  // namespace
