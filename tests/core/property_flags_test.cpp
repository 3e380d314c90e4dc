// SPDX-License-Identifier: MIT
// Flags that objects remember between two changes, so that readers need no lock.
#include <gtest/gtest.h>
#include <zo_core/zo_core.hpp>
#include <zo_core/zo_property_access_p.hpp>

#include <atomic>
#include <boost/make_shared.hpp>
#include <string>
#include <thread>
#include <vector>

namespace {

const zo::flag_name bright("bright");

class PropertyFlags : public testing::Test {
  protected:
    // Flags are remembered when several threads read them.
    PropertyFlags() {
        zo_property_init<bool>(object->property_list, "bright", true);
        read();
        std::thread([this] { read(); }).join();
    }

    bool read(const zo::flag_name& name = bright) const {
        return zo::property_guard::flag(*object, name, "test", 1, {"&value"});
    }

    void write(bool value) const {
        object->property_lock("test", 1);
        zo_property_set<bool>(object->property_list, "bright", value);
        object->property_unlock();
    }

    boost::shared_ptr<_zo_object> object = boost::make_shared<_zo_object>();
};

TEST_F(PropertyFlags, ChangeForWhoeverReadThemBefore) {
    for (const bool value : {false, true, true, false}) {
        write(value);
        EXPECT_EQ(read(), value);
        EXPECT_EQ(read(), value);
    }
}

TEST_F(PropertyFlags, AreReadAnewByWhoHoldsTheLock) {
    EXPECT_TRUE(read());
    object->property_lock("test", 1);
    zo_property_set<bool>(object->property_list, "bright", false);
    EXPECT_FALSE(read());
    zo_property_set<bool>(object->property_list, "bright", true);
    EXPECT_TRUE(read()) << "what was read inside of a change is not remembered";
    object->property_unlock();
    EXPECT_TRUE(read());
}

TEST_F(PropertyFlags, AreOfOneObject) {
    const boost::shared_ptr<_zo_object> other = boost::make_shared<_zo_object>();
    zo_property_init<bool>(other->property_list, "bright", false);
    EXPECT_TRUE(read());
    EXPECT_FALSE(zo::property_guard::flag(*other, bright, "test", 1, {"&value"}));
    EXPECT_TRUE(read());
}

// More than there is room for.
TEST_F(PropertyFlags, ManyAreToldApart) {
    std::vector<std::string> texts;
    for (int i = 0; i < 100; ++i) texts.push_back("flag-" + std::to_string(i));
    std::vector<zo::flag_name> names;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        names.emplace_back(texts[i].c_str());
        zo_property_init<bool>(object->property_list, texts[i], i % 3 == 0);
    }
    for (int turn = 0; turn < 2; ++turn)
        for (std::size_t i = 0; i < names.size(); ++i) EXPECT_EQ(read(names[i]), i % 3 == 0) << i;
}

TEST_F(PropertyFlags, WaitForWhoHoldsTheLock) {
    EXPECT_TRUE(read());
    object->property_lock("test", 1);
    std::atomic<bool> answered{false};
    std::atomic<bool> value{true};
    std::thread other([&] {
        value = read();
        answered = true;
    });
    for (int look = 0; look < 1000; ++look) {
        std::this_thread::yield();
        EXPECT_FALSE(answered);
    }
    zo_property_set<bool>(object->property_list, "bright", false);
    object->property_unlock();
    other.join();
    EXPECT_FALSE(value);
}

TEST_F(PropertyFlags, AreNeverOlderThanWhatAReaderKnows) {
    constexpr int changes = 20000;
    std::atomic<int> begun{0};
    std::atomic<int> done{0};
    std::atomic<int> stale{0};
    std::vector<std::thread> readers;
    for (int i = 0; i < 3; ++i)
        readers.emplace_back([&] {
            for (int known = 0; known < changes;) {
                known = done;
                const bool value = read();
                if (begun == known && value != (known % 2 == 0)) ++stale;
            }
        });
    for (int change = 1; change <= changes; ++change) {
        begun = change;
        write(change % 2 == 0);
        done = change;
    }
    for (std::thread& reader : readers) reader.join();
    EXPECT_EQ(stale, 0);
}

// The lock itself, which alone can tell whether something is remembered.

class PropertyMutex : public testing::Test {
  protected:
    bool remembered(std::uint16_t flag, bool expected) {
        bool value = !expected;
        return mutex.recall(flag, value) && value == expected;
    }
    bool is_unknown(std::uint16_t flag) {
        bool value = false;
        return !mutex.recall(flag, value) && !value;
    }
    void look(std::uint16_t flag, bool value) {
        mutex.lock();
        mutex.remember(flag, value);
        mutex.unlock();
    }
    // From now on what is read is remembered.
    void look_from_two_threads() {
        look(3, true);
        std::thread([this] { look(4, true); }).join();
    }
    zo::property_mutex mutex;
};

TEST_F(PropertyMutex, RemembersNothingForOneThreadAlone) {
    look(1, true);
    look(2, false);
    EXPECT_TRUE(is_unknown(1));
    EXPECT_TRUE(is_unknown(2));
    std::thread([this] { look(1, true); }).join();
    EXPECT_TRUE(remembered(1, true));
}

TEST_F(PropertyMutex, RemembersSeveralUntilItIsTaken) {
    EXPECT_TRUE(is_unknown(1));
    look_from_two_threads();
    look(1, true);
    look(2, false);
    EXPECT_TRUE(remembered(1, true));
    EXPECT_TRUE(remembered(2, false));
    EXPECT_TRUE(is_unknown(5));
    mutex.lock();
    EXPECT_TRUE(is_unknown(1));
    mutex.unlock();
    EXPECT_TRUE(is_unknown(1));
    EXPECT_TRUE(is_unknown(2));
}

TEST_F(PropertyMutex, RemembersNothingOfAnInnerHolder) {
    look_from_two_threads();
    mutex.lock();
    look(1, true);
    EXPECT_TRUE(is_unknown(1));
    mutex.unlock();
    EXPECT_TRUE(is_unknown(1));
}

TEST_F(PropertyMutex, TellsFlagsOfOnePlaceApart) {
    look_from_two_threads();
    look(1, true);
    EXPECT_TRUE(is_unknown(17));
    look(17, false);
    EXPECT_TRUE(remembered(17, false));
    EXPECT_TRUE(is_unknown(1));
}

TEST_F(PropertyMutex, RemembersNothingWithoutANumber) {
    EXPECT_TRUE(is_unknown(0));
    look_from_two_threads();
    look(0, true);
    EXPECT_TRUE(is_unknown(0));
}

}  // namespace
