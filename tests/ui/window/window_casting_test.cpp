// SPDX-License-Identifier: MIT
#include "support/ui.hpp"

#include <boost/make_shared.hpp>

namespace {

TEST(WindowCasting, ThereAndBack) {
    test::captured_output output;
    test::scoped_window window("");
    const zo_object_ptr object = zo_window_to_object(window);
    EXPECT_TRUE(object);
    EXPECT_TRUE(zo_is_window(object));
    EXPECT_EQ(zo_window_from_object(object), window.get());
    EXPECT_EQ(object->to_object(), object);
    EXPECT_EQ(output.text(), "");
}

TEST(WindowCasting, EventsThereAndBack) {
    test::captured_output output;
    const zo_window_event_ptr event = zo_window_event_new(7);
    const zo_object_ptr object = zo_window_event_to_object(event);
    EXPECT_TRUE(zo_is_window_event(object));
    EXPECT_EQ(zo_window_event_from_object(object), event);
    EXPECT_EQ(event->to_event(), event);
    EXPECT_EQ(output.text(), "");
}

TEST(WindowCasting, AnotherClassIsEmptyWithoutAWarning) {
    test::scoped_window window("");
    test::captured_output output;
    const zo_object_ptr event = zo_window_event_to_object(zo_window_event_new(7));
    const zo_object_ptr plain = boost::make_shared<_zo_object>();
    EXPECT_FALSE(zo_is_window(event));
    EXPECT_FALSE(zo_is_window(plain));
    EXPECT_FALSE(zo_is_window_event(zo_window_to_object(window)));
    EXPECT_FALSE(zo_window_from_object(event));
    EXPECT_FALSE(zo_window_from_object(plain));
    EXPECT_FALSE(zo_window_event_from_object(zo_window_to_object(window)));
    EXPECT_FALSE(zo_window_event_from_object(plain));
    EXPECT_EQ(output.text(), "");
}

class own_event : public _zo_window_event {
  public:
    own_event() : _zo_window_event(5) {}
};

TEST(WindowCasting, ASubclassIsAccepted) {
    const auto event = boost::make_shared<own_event>();
    EXPECT_TRUE(zo_is_window_event(event));
    EXPECT_EQ(zo_window_event_from_object(event), event);
    EXPECT_EQ(event->to_event(), event);
    EXPECT_EQ(zo_window_event_get_code(event), 5);
}

TEST(WindowCasting, AnEventThatNoHandleOwnsHasNone) {
    own_event event;
    EXPECT_THROW(event.to_event(), boost::bad_weak_ptr);
    EXPECT_THROW(event.to_object(), boost::bad_weak_ptr);
}

}  // namespace
