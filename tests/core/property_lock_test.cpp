// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <zo_core/zo_core.hpp>
#include <zo_core/zo_property_access_p.hpp>

#include <boost/make_shared.hpp>
#include <future>
#include <thread>
#include <vector>

using callback = std::function<void(int)>;

template <>
struct zo::type_text<callback> {
    static constexpr const char* value = "std::function<void(int)>";
};

namespace {

// Whether another thread can take the lock now. Called by a thread that, when the answer is no, holds it
// once.
bool free_for_others(_zo_object& object) {
    std::promise<void> taken;
    std::thread other([&] {
        object.property_lock("other", 1);
        object.property_unlock();
        taken.set_value();
    });
    const bool is_free = taken.get_future().wait_for(std::chrono::seconds(10)) == std::future_status::ready;
    if (!is_free) object.property_unlock();
    other.join();
    return is_free;
}

int read_number(_zo_object& object) {
    int value = 0;
    zo::property_guard guard(object, "test", 1);
    guard.read<int>("number", value, {"&value"});
    return value;
}

// A callable of an application whose copies and whose end run code.
struct curious {
    std::function<void()> on_copy = [] {};
    std::function<void()> on_end = [] {};
    curious(std::function<void()> copied, std::function<void()> ended)
        : on_copy(std::move(copied)), on_end(std::move(ended)) {}
    curious(const curious& other) : on_copy(other.on_copy), on_end(other.on_end) { on_copy(); }
    curious& operator=(const curious&) = delete;
    ~curious() { on_end(); }
    void operator()(int) const {}
};

class PropertyLock : public testing::Test {
  protected:
    PropertyLock() { zo_property_init<int>(object->property_list, "number", 4); }
    boost::shared_ptr<_zo_object> object = boost::make_shared<_zo_object>();
};

TEST_F(PropertyLock, IsTakenAgainByItsHolder) {
    object->property_lock("literal", 1);
    object->property_lock(std::string("text"), 2);
    EXPECT_EQ(read_number(*object), 4);
    object->property_unlock();
    object->property_unlock();
    EXPECT_TRUE(free_for_others(*object));
}

TEST_F(PropertyLock, KeepsOtherThreadsOutUntilItsLastUnlock) {
    std::atomic<bool> inside{false};
    std::promise<void> started;
    object->property_lock("test", 1);
    object->property_lock("test", 2);
    std::thread other([&] {
        started.set_value();
        object->property_lock("other", 1);
        inside = true;
        object->property_unlock();
    });
    started.get_future().wait();
    object->property_unlock();
    for (int look = 0; look < 1000; ++look) {
        std::this_thread::yield();
        EXPECT_FALSE(inside);
    }
    object->property_unlock();
    other.join();
    EXPECT_TRUE(inside);
}

TEST_F(PropertyLock, MakesReadingAndWritingOneStep) {
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread)
        threads.emplace_back([&, thread] {
            for (int turn = 0; turn < 500; ++turn) {
                const bool literal = thread % 2 == 0;
                literal ? object->property_lock("test", 1) : object->property_lock(std::string("test"), 1);
                int value = 0;
                zo_property_get_extract<int>(object->property_list, "number", &value);
                zo_property_set<int>(object->property_list, "number", value + 1);
                object->property_unlock();
            }
        });
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(read_number(*object), 2004);
}

TEST_F(PropertyLock, EachObjectHasItsOwn) {
    _zo_object other;
    other.property_lock("test", 1);
    EXPECT_TRUE(free_for_others(*object));
    other.property_unlock();
}

TEST_F(PropertyLock, AWrongTypeLeavesItReleased) {
    bool value = true;
    EXPECT_THROW(
        {
            zo::property_guard guard(*object, "test", 1);
            guard.read<bool>("number", value, {"&value"});
        },
        boost::bad_any_cast);
    EXPECT_TRUE(value);
    EXPECT_TRUE(free_for_others(*object));
}

TEST_F(PropertyLock, CopyingACallableMayReadTheSameObject) {
    int seen = 0;
    zo_property_init<callback>(object->property_list, "callback",
                               curious([&] { seen = read_number(*object); }, [] {}));
    seen = 0;
    callback copy;
    {
        zo::property_guard guard(*object, "test", 1);
        guard.read<callback>("callback", copy, {"&copy"});
    }
    EXPECT_EQ(seen, 4);
    EXPECT_TRUE(copy);
}

TEST_F(PropertyLock, TheEndOfAReplacedCallableMaySetTheSameProperty) {
    bool again = true;
    const auto replace = [&] {
        if (!std::exchange(again, false)) return;
        object->property_lock("test", 1);
        zo_property_set<callback>(object->property_list, "callback", [](int) {});
        object->property_unlock();
    };
    again = false;
    zo_property_init<callback>(object->property_list, "callback", curious([] {}, replace));
    again = true;
    object->property_lock("test", 1);
    zo_property_set<callback>(object->property_list, "callback", nullptr);
    object->property_unlock();
    callback now;
    EXPECT_TRUE(zo_property_get_extract<callback>(object->property_list, "callback", &now));
    EXPECT_TRUE(now) << "what the old callable has set came later";
    EXPECT_FALSE(again);
}

// The library replaces a callable of type `Old`. Whether the lock was free when the old one ended.
template <typename Old>
bool ends_unlocked(_zo_object& object) {
    bool ended = false;
    bool was_free = false;
    {
        const std::shared_ptr<void> held(nullptr, [&](void*) {
            ended = true;
            was_free = free_for_others(object);
        });
        zo_property_set<Old>(object.property_list, "callback", [held](auto...) {});
    }
    {
        callback next = [](int) {};
        callback last = [](int) {};
        zo::property_guard guard(object, "test", 1);
        guard.write<callback>("callback", next, {"value"});
        guard.write<callback>("callback", last, {"value"});
        EXPECT_FALSE(ended) << "while the lock was held";
    }
    EXPECT_TRUE(ended);
    return was_free;
}

TEST_F(PropertyLock, AReplacedCallableEndsAfterTheLock) {
    EXPECT_TRUE(ends_unlocked<callback>(*object));
    EXPECT_TRUE(ends_unlocked<std::function<void()>>(*object)) << "a callable of another signature";
}

// A class whose tag needs another thread, which needs the lock.
class _zo_asking : public _zo_object {
  public:
    std::string get_type() override {
        is_free = free_for_others(*this);
        return "[zo_asking]";
    }
    bool is_free = false;
};

TEST(PropertyLockOfADescription, IsFreeWhileTheClassTellsItsTag) {
    const auto object = boost::make_shared<_zo_asking>();
    EXPECT_EQ(object->describe(), "[zo_asking] with 1 properties");
    EXPECT_TRUE(object->is_free);
}

}  // namespace
