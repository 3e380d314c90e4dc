// SPDX-License-Identifier: MIT
// How tasks are kept: every callable, small or large, once.
#include "support/loop.hpp"

#include <gtest/gtest.h>
#include <zo_core/zo_service.hpp>

#include <array>
#include <functional>
#include <memory>
#include <string>

namespace {

// Counts its living copies and how often it was copied.
struct witness {
    explicit witness(int* living) : living_(living) { ++*living_; }
    witness(const witness& other) : living_(other.living_), copies(other.copies + 1) { ++*living_; }
    witness(witness&& other) noexcept : living_(other.living_), copies(other.copies) { ++*living_; }
    witness& operator=(const witness&) = delete;
    ~witness() { --*living_; }
    int* living_;
    int copies = 0;
};

template <std::size_t Size>
auto callable(int* living, int* ran) {
    return [held = witness(living), ran, filling = std::array<char, Size>{}] {
        *ran += 1 + held.copies + filling[0];
    };
}

template <std::size_t Size>
void expect_kept_once() {
    int living = 0;
    int ran = 0;
    {
        zo::service_task task(callable<Size>(&living, &ran));
        EXPECT_EQ(living, 1);
        zo::service_task moved(std::move(task));
        EXPECT_FALSE(task);
        EXPECT_TRUE(moved);
        EXPECT_EQ(living, 1);
        zo::service_task other(callable<Size>(&living, &ran));
        EXPECT_EQ(living, 2);
        other = std::move(moved);
        EXPECT_FALSE(moved);
        EXPECT_EQ(living, 1);
        other();
        EXPECT_EQ(ran, 1) << "not copied on its way";
        auto& same = other;
        other = std::move(same);
        EXPECT_TRUE(other);
        other = zo::service_task();
        EXPECT_FALSE(other);
        EXPECT_EQ(living, 0);
    }
    EXPECT_EQ(living, 0);
}

TEST(ServiceTask, KeepsSmallAndLargeCallablesOnce) {
    expect_kept_once<1>();
    expect_kept_once<200>();
}

TEST(ServiceTask, KeepsWhatMayThrowWhenMoved) {
    struct wary {
        explicit wary(int* number) : number(number) {}
        wary(const wary&) = default;
        wary(wary&& other) : number(other.number) {}
        wary& operator=(const wary&) = delete;
        ~wary() = default;
        void operator()() const { ++*number; }
        int* number;
    };
    int ran = 0;
    zo::service_task task(wary{&ran});
    zo::service_task moved(std::move(task));
    moved();
    EXPECT_EQ(ran, 1);
}

void nothing() {}

TEST(ServiceTask, KnowsWhatHoldsNoFunction) {
    EXPECT_FALSE(zo::service_task());
    EXPECT_FALSE(zo::service_task(std::function<void()>()));
    EXPECT_FALSE(zo::service_task(std::function<int()>()));
    EXPECT_FALSE(zo::service_task(static_cast<void (*)()>(nullptr)));
    EXPECT_TRUE(zo::service_task(nothing));
    EXPECT_TRUE(zo::service_task(std::function<void()>(nothing)));
    EXPECT_TRUE(zo::service_task([] {}));
    struct job {
        explicit operator bool() const { return false; }  // of its own meaning
        void operator()() const {}
    };
    EXPECT_TRUE(zo::service_task(job()));
}

TEST(ServiceTask, EveryCallableCanBePosted) {
    std::string order;
    const std::string file = "test";
    const std::function<void()> function = [&] { order.push_back('a'); };
    zo_system_service_exec(function, "test", 1);
    zo_system_service_exec(function, file, 1);
    zo_system_service_exec([&] { order.push_back('b'); }, file, 1);
    zo_system_service_exec([&] { return order.append("c").size(); }, "test", 1);
    zo_system_service_exec([&order, letter = std::make_unique<char>('d')] { order.push_back(*letter); },
                           "test", 1);
    auto counting = [&order, letter = 'e']() mutable { order.push_back(letter++); };
    zo_system_service_exec(counting, "test", 1);
    zo_system_service_exec(counting, "test", 1);
    zo_system_service_exec(nothing, "test", 1);
    zo_system_service_exec(std::ref(counting), "test", 1);
    zo_system_service_exec(std::ref(counting), "test", 1);
    test::run_tasks();
    EXPECT_EQ(order, "aabcdeeef");
}

}  // namespace
