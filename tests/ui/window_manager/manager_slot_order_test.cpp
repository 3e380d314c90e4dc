// SPDX-License-Identifier: MIT
// The order of the virtual operations, which programs were built against.
#include "support/slot_of.hpp"
#include "support/ui.hpp"

#include <zo_ui/zo_window_manager/manager_p.hpp>

namespace {

using test::slot_of;

TEST(ManagerSlotOrder, FollowsThatOfTheBase) {
    // The destructor has the first two.
    EXPECT_EQ(slot_of(&_zo_window_manager::to_object), 2);
    EXPECT_EQ(slot_of(&_zo_window_manager::get_type), 3);
    EXPECT_EQ(slot_of(&_zo_window_manager::destroy), 4);
    EXPECT_EQ(slot_of(&_zo_window_manager::describe), 5);
    EXPECT_EQ(slot_of(&_zo_window_manager::extend_now), 6);
    EXPECT_EQ(slot_of(&_zo_window_manager::retract_now), 7);
    EXPECT_EQ(slot_of(&_zo_window_manager::open_now), 8);
    EXPECT_EQ(slot_of(&_zo_window_manager::show_now), 9);
    EXPECT_EQ(slot_of(&_zo_window_manager::hide_now), 10);
    EXPECT_EQ(slot_of(&_zo_window_manager::close_now), 11);
    EXPECT_EQ(slot_of(&_zo_window_manager::destroy_now), 12);
    EXPECT_EQ(slot_of(&_zo_window_manager::connect_window), 13);
    EXPECT_EQ(slot_of(&_zo_window_manager::disconnect_window), 14);
    EXPECT_EQ(slot_of(&_zo_window_manager::on_window_title), 15);
    EXPECT_EQ(slot_of(&_zo_window_manager::on_window_open), 16);
    EXPECT_EQ(slot_of(&_zo_window_manager::on_window_shown), 17);
    EXPECT_EQ(slot_of(&_zo_window_manager::on_window_hidden), 18);
    EXPECT_EQ(slot_of(&_zo_window_manager::on_window_close), 19);
    EXPECT_EQ(slot_of(&_zo_window_manager::on_window_destroy), 20);
    EXPECT_EQ(slot_of(&_zo_window_manager::add_widget_left), 21);
    EXPECT_EQ(slot_of(&_zo_window_manager::remove_widget_left), 22);
    EXPECT_EQ(slot_of(&_zo_window_manager::add_widget_right), 23);
    EXPECT_EQ(slot_of(&_zo_window_manager::remove_widget_right), 24);
    EXPECT_EQ(slot_of(&_zo_window_manager::add_toolbar), 25);
    EXPECT_EQ(slot_of(&_zo_window_manager::remove_toolbar), 26);
}

}  // namespace
