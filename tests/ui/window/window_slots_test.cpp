// SPDX-License-Identifier: MIT
// The order of the virtual operations, which programs were built against, and that they are what tasks run.
#include "support/slot_of.hpp"
#include "support/ui.hpp"

#include <zo_ui/zo_window/window_p.hpp>

#include <boost/make_shared.hpp>

namespace {

using test::slot_of;

TEST(WindowSlots, FollowThoseOfTheBase) {
    // The destructor has the first two.
    EXPECT_EQ(slot_of(&_zo_window::to_object), 2);
    EXPECT_EQ(slot_of(&_zo_window::get_type), 3);
    EXPECT_EQ(slot_of(static_cast<void (_zo_window::*)(std::string, int)>(&_zo_window::destroy)), 4);
    EXPECT_EQ(slot_of(&_zo_window::describe), 5);
    EXPECT_EQ(slot_of(&_zo_window::init), 6);
    EXPECT_EQ(slot_of(&_zo_window::add_content_child), 7);
    EXPECT_EQ(slot_of(&_zo_window::on_event), 8);
    EXPECT_EQ(slot_of(&_zo_window::set_window_manager), 9);
    EXPECT_EQ(slot_of(&_zo_window::_open), 10);
    EXPECT_EQ(slot_of(&_zo_window::_show), 11);
    EXPECT_EQ(slot_of(&_zo_window::_hide), 12);
    EXPECT_EQ(slot_of(&_zo_window::_activate), 13);
    EXPECT_EQ(slot_of(&_zo_window::_restore), 14);
    EXPECT_EQ(slot_of(&_zo_window::_close), 15);
    EXPECT_EQ(slot_of(&_zo_window::_destroy), 16);
    EXPECT_EQ(slot_of(&_zo_window::save), 17);
}

TEST(WindowSlots, OfTheEvent) {
    EXPECT_EQ(slot_of(&_zo_window_event::to_object), 2);
    EXPECT_EQ(slot_of(&_zo_window_event::get_type), 3);
    EXPECT_EQ(slot_of(&_zo_window_event::destroy), 4);
    EXPECT_EQ(slot_of(&_zo_window_event::describe), 5);
    EXPECT_EQ(slot_of(&_zo_window_event::to_event), 6);
}

class own_window : public _zo_window {
  public:
    bool add_content_child(GtkWidget*, bool, bool, int, bool) override { return note("child"); }
    void on_event(zo_window_event_ptr) override { note("event"); }
    void set_window_manager(zo_window_manager_ptr) override { note("manager"); }
    void _open() override { note("open"); }
    void _show() override { note("show"); }
    void _hide() override { note("hide"); }
    void _activate() override { note("activate"); }
    void _restore() override { note("restore"); }
    void _close() override { note("close"); }
    void _destroy() override { note("destroy"); }
    void save() override { note("save"); }

    std::string told;

  private:
    bool note(const char* what) {
        told += std::string(what) + " ";
        return true;
    }
};

TEST(WindowSlots, ASubclassReplacesWhatTasksRun) {
    const auto own = boost::make_shared<own_window>();
    const zo_window_ptr window = own;
    zo_window_add_content_child(window, nullptr, false, false, 0, false);
    zo_window_push_event(window, zo_window_event_new(1));
    zo_window_set_window_manager(window, {});
    zo_window_save(window);
    EXPECT_EQ(own->told, "child event manager save ");
    own->told.clear();
    for (const auto operation : {zo_window_open, zo_window_show, zo_window_hide, zo_window_activate,
                                 zo_window_restore, zo_window_close})
        operation(window);
    zo_window_destroy(window);
    zo_window_destroy(window, "reason", 1);
    EXPECT_EQ(own->told, "");
    test::run_tasks();
    EXPECT_EQ(own->told, "open show hide activate restore close destroy destroy ");
    EXPECT_TRUE(zo_is_window(own));
    EXPECT_EQ(zo_window_from_object(own), window);
    EXPECT_EQ(own->get_type(), "[zo_window]");
}

// A programming error, whose exception leaves the call.
TEST(WindowSlots, AnUnownedWindowCannotPost) {
    _zo_window window;
    EXPECT_THROW(window.open(), boost::bad_weak_ptr);
    EXPECT_THROW(window.move(1, 2), boost::bad_weak_ptr);
    EXPECT_THROW(window.set_id("x"), boost::bad_weak_ptr);
    EXPECT_THROW(window.to_object(), boost::bad_weak_ptr);
    EXPECT_FALSE(window.is_opened());
}

}  // namespace
