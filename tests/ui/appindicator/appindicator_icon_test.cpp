// SPDX-License-Identifier: MIT
// The picture that the tray host really shows.
#include "ui/appindicator/indicator.hpp"

#include <filesystem>

namespace {

namespace files = std::filesystem;

struct colour {
    int red;
    int green;
    int blue;
};

constexpr colour magenta{255, 0, 255};
constexpr colour lime{0, 255, 0};

std::string save_picture(const files::path& path, const colour& c) {
    files::create_directories(path.parent_path());
    GdkPixbuf* const picture = gdk_pixbuf_new(GDK_COLORSPACE_RGB, TRUE, 8, 48, 48);
    gdk_pixbuf_fill(picture, static_cast<guint32>(c.red << 24 | c.green << 16 | c.blue << 8 | 255));
    EXPECT_TRUE(gdk_pixbuf_save(picture, path.c_str(), "png", nullptr, nullptr));
    g_object_unref(picture);
    return path;
}

// Pixels of exactly this colour on the whole screen.
int pixels_of(const colour& c) {
    GdkWindow* const root = gdk_get_default_root_window();
    GdkPixbuf* const screen =
        gdk_pixbuf_get_from_window(root, 0, 0, gdk_window_get_width(root), gdk_window_get_height(root));
    const int channels = gdk_pixbuf_get_n_channels(screen);
    int count = 0;
    for (int y = 0; y < gdk_pixbuf_get_height(screen); ++y) {
        const guchar* pixel = gdk_pixbuf_read_pixels(screen) + y * gdk_pixbuf_get_rowstride(screen);
        for (int x = 0; x < gdk_pixbuf_get_width(screen); ++x, pixel += channels)
            count += pixel[0] == c.red && pixel[1] == c.green && pixel[2] == c.blue;
    }
    g_object_unref(screen);
    return count;
}

bool is_seen(const colour& c, bool seen = true) {
    return test::turn_until([&] { return (pixels_of(c) > 100) == seen; });
}

// Each with a host of its own: one that has become empty does not always take its room back in time.
class AppindicatorIcon : public testing::Test {
  protected:
    // Before the host is there, which looks at the theme once.
    const std::string themed =
        save_picture(files::path(g_get_user_data_dir()) / "icons/hicolor/48x48/apps/zo-lime.png", lime);
    const std::string path = save_picture(files::path(g_get_user_runtime_dir()) / "magenta.png", magenta);
    test::tray_host host;

    // An icon that comes before the panel is drawn may never get room in it.
    AppindicatorIcon() {
        EXPECT_TRUE(test::turn_until([] {
            GdkWindow* const root = gdk_get_default_root_window();
            GdkPixbuf* const pixel =
                gdk_pixbuf_get_from_window(root, 600, gdk_window_get_height(root) - 10, 1, 1);
            const bool drawn = gdk_pixbuf_read_pixels(pixel)[0] > 0;
            g_object_unref(pixel);
            return drawn;
        }));
    }
};

TEST_F(AppindicatorIcon, IsAPictureByItsPath) {
    test::scoped_indicator indicator("path", "Title", path);
    EXPECT_TRUE(is_seen(magenta, false));
    indicator.show();
    EXPECT_TRUE(is_seen(magenta));
    EXPECT_EQ(test::item_text(test::wait_for_tray_item("path"), "IconName"), path);
    indicator.destroy();
    EXPECT_TRUE(is_seen(magenta, false));
}

TEST_F(AppindicatorIcon, IsAnIconOfTheThemeByItsName) {
    test::scoped_indicator indicator("theme", "Title", "zo-lime");
    EXPECT_TRUE(is_seen(lime, false));
    indicator.show();
    EXPECT_TRUE(is_seen(lime));
    indicator.destroy();
    EXPECT_TRUE(is_seen(lime, false));
}

// Also while the program stays on the bus, for another icon or for reasons of its own.
TEST_F(AppindicatorIcon, GoesWhileAnotherStays) {
    test::scoped_indicator going("going", "Title", path);
    test::scoped_indicator staying("staying", "Title", "zo-lime");
    // One after the other: the panel may give no room to two that come into its empty tray at once.
    going.show();
    EXPECT_TRUE(is_seen(magenta));
    staying.show();
    EXPECT_TRUE(is_seen(lime));
    going.destroy();
    EXPECT_TRUE(is_seen(magenta, false));
    EXPECT_TRUE(is_seen(lime));
}

}  // namespace
