// SPDX-License-Identifier: MIT
/// @file
/// The lock of an object's properties. Programs take it with `property_lock()` and need none of this.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <mutex>
#include <thread>

namespace zo {

// A lock that its holder may take again. Once several threads read flags under it, it remembers them: nobody
// can have changed them until it is taken anew, so that until then they are read without it, by any number of
// threads that do not disturb each other.
class property_mutex {
  public:
    void lock() {
        mutex_.lock();
        if (depth_++ == 0) version_.store(version() + 1, std::memory_order_relaxed);
    }

    void unlock() {
        if (depth_ > 0 && --depth_ == 0)
            version_.store((version() + 1) & ~std::uint64_t{1}, std::memory_order_release);
        mutex_.unlock();
    }

    // Remembers the flag with that number. By a holder that has changed nothing since it took the lock.
    void remember(std::uint16_t flag, bool value) {
        if (flag == 0 || depth_ != 1 || version() % 2 == 0 || !has_several_readers()) return;
        const std::uint64_t unchanged = version() - 1;
        place_of(flag).store(entry(unchanged, flag) | std::uint64_t{value}, std::memory_order_release);
        version_.store(unchanged, std::memory_order_relaxed);
    }

    // False, and `value` stays, for what is not remembered or not certain any more.
    bool recall(std::uint16_t flag, bool& value) {
        if (flag == 0) return false;
        const std::uint64_t found = place_of(flag).load(std::memory_order_acquire);
        const std::uint64_t now = version_.load(std::memory_order_acquire);
        if (found >> 1 != entry(now, flag) >> 1) return false;
        value = found % 2 == 1;
        return true;
    }

  private:
    static constexpr int number_bits = 16;

    // A thread alone waits for nobody. By the holder.
    bool has_several_readers() {
        const std::thread::id self = std::this_thread::get_id();
        if (first_reader_ == std::thread::id()) first_reader_ = self;
        if (first_reader_ != self) several_readers_ = true;
        return several_readers_;
    }

    std::uint64_t version() const { return version_.load(std::memory_order_relaxed); }
    std::atomic<std::uint64_t>& place_of(std::uint16_t flag) { return flags_[flag % flags_.size()]; }
    static std::uint64_t entry(std::uint64_t version, std::uint16_t flag) {
        return version << number_bits | std::uint64_t{flag} << 1;
    }

    std::recursive_mutex mutex_;
    int depth_ = 0;                          // guarded by mutex_
    std::thread::id first_reader_;           // guarded by mutex_
    bool several_readers_ = false;           // guarded by mutex_
    std::atomic<std::uint64_t> version_{0};  // odd while the lock is held by who may change something
    std::array<std::atomic<std::uint64_t>, 16> flags_{};  // version, number and value; 0 for none
};

}  // namespace zo
