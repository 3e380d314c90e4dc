// SPDX-License-Identifier: MIT
/// @file
/// How a task is kept between its posting and its run. Programs post any callable and need none of this.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

namespace zo {

// Pointers and wrappers of functions may hold none.
template <typename T>
inline constexpr bool may_hold_no_function = std::is_pointer_v<T>;
template <typename Result, typename... Arguments>
inline constexpr bool may_hold_no_function<std::function<Result(Arguments...)>> = true;

// A callable that can be moved, but not copied. One that holds as much as a handle and a pointer to a member
// is kept inside: its memory need not be asked for where it is posted and given back where it runs, which
// costs more than all the rest when that are two threads.
class service_task {
  public:
    service_task() = default;

    template <typename Callable,
              typename = std::enable_if_t<std::is_invocable_v<std::decay_t<Callable>&> &&
                                          !std::is_same_v<std::decay_t<Callable>, service_task>>>
    service_task(Callable&& callable) {  // implicit, as with std::function
        using kept = std::decay_t<Callable>;
        if (is_empty(callable)) return;
        if constexpr (fits<kept>)
            ::new (static_cast<void*>(room_)) kept(std::forward<Callable>(callable));
        else
            ::new (static_cast<void*>(room_)) kept*(new kept(std::forward<Callable>(callable)));
        how_ = &how_to<kept>;
    }

    service_task(service_task&& other) noexcept { take(other); }
    service_task& operator=(service_task&& other) noexcept {
        if (this == &other) return *this;
        const service_task old(std::move(*this));  // ends last: it may use this one
        take(other);
        return *this;
    }
    ~service_task() {
        if (how_) how_->end(room_);
    }

    explicit operator bool() const { return how_ != nullptr; }
    void operator()() { how_->run(room_); }

  private:
    struct operations {
        void (*run)(void* room);
        void (*move)(void* from, void* to) noexcept;  // and ends what stays
        void (*end)(void* room) noexcept;
    };

    static constexpr std::size_t room = 4 * sizeof(void*);

    template <typename T>
    static constexpr bool fits = sizeof(T) <= room &&
                                 alignof(T) <= alignof(void*) && std::is_nothrow_move_constructible_v<T>;

    template <typename T>
    static T& in(void* room) {
        if constexpr (fits<T>)
            return *static_cast<T*>(room);
        else
            return **static_cast<T**>(room);
    }

    template <typename T>
    static void run(void* room) {
        static_cast<void>(in<T>(room)());
    }

    template <typename T>
    static void move(void* from, void* to) noexcept {
        if constexpr (fits<T>) {
            ::new (to) T(std::move(in<T>(from)));
            in<T>(from).~T();
        } else {
            ::new (to) T*(std::addressof(in<T>(from)));
        }
    }

    template <typename T>
    static void end(void* room) noexcept {
        if constexpr (fits<T>)
            in<T>(room).~T();
        else
            delete std::addressof(in<T>(room));
    }

    template <typename T>
    static constexpr operations how_to{run<T>, move<T>, end<T>};

    template <typename T>
    static bool is_empty(const T& callable) {
        if constexpr (may_hold_no_function<T>)
            return !callable;
        else
            return false;
    }

    void take(service_task& other) noexcept {
        how_ = std::exchange(other.how_, nullptr);
        if (how_) how_->move(other.room_, room_);
    }

    const operations* how_ = nullptr;
    alignas(void*) std::byte room_[room];
};

}  // namespace zo
