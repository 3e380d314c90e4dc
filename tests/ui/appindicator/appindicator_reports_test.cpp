// SPDX-License-Identifier: MIT
// Properties that are missing: each is reported with its place, and what is there goes on.
#include "ui/appindicator/indicator.hpp"

namespace {

std::string reading(const std::string& type, const std::string& name, const std::string& variable, int line) {
    return "\x1b[1;31mZO-SYSTEM**ERROR**\x1b[0;0m: assertion failed: zo_property_get_extract<" + type +
           ">(property_list,\"" + name + "\",&" + variable + ") - " + name +
           " - src/zo_ui/zo_appindicator:" + std::to_string(line) + "\n";
}

std::string reading_text(const std::string& name, int line) {
    return reading("std::string", name, name, line);
}

class AppindicatorReports : public testing::Test {
  protected:
    void erase(const char* name) {
        const zo_object_ptr object = indicator.object();
        object->property_lock(__FILE__, __LINE__);
        EXPECT_EQ(object->property_list.erase(name), 1U);
        object->property_unlock();
    }

    std::string shown() {
        test::captured_output output;
        indicator.show();
        return output.text();
    }

    // Before the report's counting, which would find no menu.
    void TearDown() override {
        test::captured_output output;
        indicator.destroy();
    }

    test::scoped_indicator indicator{"reports", "Title", "icon"};
};

TEST_F(AppindicatorReports, AMissingIconTitleOrLabelIsEmpty) {
    erase("icon");
    erase("title");
    erase("label");
    EXPECT_EQ(shown(), reading_text("icon", 279) + reading_text("title", 281) + reading_text("label", 282));
    EXPECT_EQ(test::menus().size(), 1U);
}

TEST_F(AppindicatorReports, AMissingNameShowsNothing) {
    erase("name");
    EXPECT_EQ(shown(), reading_text("name", 280));
    EXPECT_TRUE(test::menus().empty());
}

TEST_F(AppindicatorReports, AMissingRecordLeavesNothingToDo) {
    erase("indicator");
    test::captured_output output;
    zo_appindicator_add_action(indicator, "a", "A", nullptr);
    test::run_tasks();
    EXPECT_EQ(output.text(), reading("indicator_data_ptr", "indicator", "iw", 184));
    EXPECT_EQ(shown(), reading("indicator_data_ptr", "indicator", "iw", 271));
    EXPECT_TRUE(test::menus().empty());
}

TEST_F(AppindicatorReports, DestroyingWithoutARecordPutsAnEmptyOneThere) {
    erase("indicator");
    test::captured_output output;
    indicator.destroy();
    EXPECT_EQ(output.text(), reading("indicator_data_ptr", "indicator", "iw", 163));
    EXPECT_FALSE(indicator.object()->is_reffed());
    output.clear();
    indicator.show();
    EXPECT_EQ(output.text(), "");
}

TEST_F(AppindicatorReports, NothingIsReportedInTheOrdinaryCase) {
    test::captured_output output;
    zo_appindicator_add_action(indicator, "a", "A", nullptr);
    indicator.show();
    gtk_menu_item_activate(GTK_MENU_ITEM(test::find_name(test::menus().at(0), "a")));
    indicator.destroy();
    EXPECT_EQ(output.text(), "");
}

}  // namespace
