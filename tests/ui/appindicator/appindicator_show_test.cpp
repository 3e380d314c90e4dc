// SPDX-License-Identifier: MIT
// What a shown indicator tells the desktop's tray.
#include "ui/appindicator/indicator.hpp"

#include <zo_core/zo_core.hpp>

namespace {

class AppindicatorShow : public testing::Test {
  protected:
    static void SetUpTestSuite() { host = new test::tray_host; }
    static void TearDownTestSuite() {
        delete host;
        host = nullptr;
    }
    static inline test::tray_host* host = nullptr;
};

TEST_F(AppindicatorShow, TellsNameTitleAndIcon) {
    test::scoped_indicator indicator("mail", "My mail", "mail-unread");
    indicator.show();
    const test::tray_item item = test::wait_for_tray_item("mail");
    EXPECT_EQ(test::item_text(item, "Id"), "mail");
    EXPECT_EQ(test::item_text(item, "Title"), "My mail");
    EXPECT_EQ(test::item_text(item, "IconName"), "mail-unread");
    EXPECT_EQ(test::item_text(item, "AttentionIconName"), "mail-unread");
    EXPECT_EQ(test::item_text(item, "Category"), "ApplicationStatus");
    EXPECT_EQ(test::item_text(item, "Status"), "Active");
    EXPECT_EQ(test::item_text(item, "XAyatanaLabel"), "");
    EXPECT_EQ(test::item_text(item, "XAyatanaLabelGuide"), "");
}

}  // namespace
