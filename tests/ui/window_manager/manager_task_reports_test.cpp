// SPDX-License-Identifier: MIT
// What each operation reports of a window that has lost its three task properties: one line for each that it
// reads.
#include "ui/window/property_steps.hpp"
#include "ui/window_manager/panel.hpp"

#include <zo_ui/zo_window_manager/manager_p.hpp>

namespace {

using click_function = std::function<void(GtkWidget*)>;
using reports = std::vector<std::string>;

constexpr const char* button_name = "manager-widget";
constexpr const char* close_name = "manager-close-widget";
constexpr const char* click_name = "manager-click-cb";

std::string reading(const char* type, const char* name, const char* variable) {
    return std::string("zo_property_get_extract<") + type + ">(ptr->property_list,\"" + name + "\"," +
           variable + ") - " + name;
}

const std::string no_button = reading("GtkWidget*", button_name, "&exwidget");
const std::string no_close = reading("GtkWidget*", close_name, "&exwidget2");
const std::string no_click = reading("std::function<void(GtkWidget*)>*", click_name, "&cb");
const std::string null_click = std::string("cb != nullptr - ") + click_name;

class ManagerTaskReports : public testing::Test {
  protected:
    ManagerTaskReports() {
        panel.open();
        a.open();
        kept = zo::read_task(a.get()).click;
    }
    ~ManagerTaskReports() override { zo::write_task_click(a, kept); }

    // The reports of one operation of the manager, each without its line number.
    reports of(void (_zo_window_manager::*operation)(zo_window_ptr)) {
        test::captured_output output;
        ((*panel.get()).*operation)(a);
        reports texts;
        for (const std::string& line : output.lines()) {
            const std::string begin = "\x1b[1;31mZO-SYSTEM**ERROR**\x1b[0;0m: assertion failed: ";
            const std::size_t file = line.find(" - src/zo_ui/zo_window_manager:");
            EXPECT_EQ(line.substr(0, begin.size()), begin);
            EXPECT_NE(file, std::string::npos) << line;
            texts.push_back(line.substr(begin.size(), file - begin.size()));
        }
        return texts;
    }

    // What is missing before the operation.
    reports without(const std::vector<const char*>& names,
                    void (_zo_window_manager::*operation)(zo_window_ptr)) {
        for (const char* name : names) test::erase_property(a, name);
        reports texts = of(operation);
        zo::write_task_click(a, kept);
        zo::write_task_button(a, test::task_button("a"));
        zo::write_task_close(a, test::close_button("a"));
        return texts;
    }

    test::scoped_panel panel;
    test::joined_window a{panel, "a"};
    click_function* kept = nullptr;
};

TEST_F(ManagerTaskReports, EachOperationReportsWhatItReads) {
    const std::vector<const char*> all{button_name, close_name, click_name};
    EXPECT_EQ(without(all, &_zo_window_manager::on_window_title), reports{no_button});
    EXPECT_EQ(without(all, &_zo_window_manager::on_window_shown), (reports{no_button, no_close}));
    EXPECT_EQ(without(all, &_zo_window_manager::on_window_hidden), (reports{no_button, no_close}));
    EXPECT_EQ(without(all, &_zo_window_manager::on_window_open),
              (reports{no_button, no_close, no_click, null_click}));
    EXPECT_EQ(without(all, &_zo_window_manager::on_window_close), (reports{no_button, no_close}));
    of(&_zo_window_manager::on_window_open);
    EXPECT_EQ(without(all, &_zo_window_manager::disconnect_window), (reports{no_button, no_close, no_click}));
    // It was deleted by nobody.
    zo::write_task_click(a, nullptr);
    delete std::exchange(kept, nullptr);
}

TEST_F(ManagerTaskReports, OneLineForOneProperty) {
    EXPECT_EQ(without({button_name}, &_zo_window_manager::on_window_hidden), reports{no_button});
    EXPECT_EQ(without({close_name}, &_zo_window_manager::on_window_hidden), reports{no_close});
    EXPECT_EQ(without({close_name}, &_zo_window_manager::on_window_title), reports{});
    EXPECT_EQ(without({close_name}, &_zo_window_manager::on_window_open), reports{no_close});
    EXPECT_EQ(without({click_name}, &_zo_window_manager::on_window_open), (reports{no_click, null_click}));
    EXPECT_EQ(without({click_name}, &_zo_window_manager::on_window_close), reports{});
}

// Opening the panel makes the buttons of its windows with the same reads.
TEST_F(ManagerTaskReports, OpeningThePanelReportsOnce) {
    panel.close();
    test::erase_property(a, button_name);
    test::captured_output output;
    panel.open();
    EXPECT_EQ(output.lines().size(), 1U) << output.text();
    EXPECT_EQ(test::row(), "a x");
    EXPECT_NEAR(gtk_widget_get_opacity(test::task_button("a")), 0.6, 0.005);
}

TEST_F(ManagerTaskReports, ANullHandlerStillGivesAButton) {
    a.run(zo_window_close);
    zo::write_task_click(a, nullptr);
    test::captured_output output;
    a.open();
    ASSERT_EQ(output.lines().size(), 1U);
    EXPECT_NE(output.text().find("assertion failed: " + null_click + " - src/zo_ui/zo_window_manager:"),
              std::string::npos);
    EXPECT_EQ(test::row(), "a x");
    ASSERT_TRUE(test::task_button("a"));
    EXPECT_EQ(gtk_button_get_label(GTK_BUTTON(test::task_button("a"))), std::string("a"));
    gtk_button_clicked(GTK_BUTTON(test::task_button("a")));
    EXPECT_FALSE(test::state_of(a.get()).visible);
}

}  // namespace
