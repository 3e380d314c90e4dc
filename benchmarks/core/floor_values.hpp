// SPDX-License-Identifier: MIT
// What an expert would write for named values of any type that threads share: a mutex, a map and an any.
#pragma once

#include <any>
#include <functional>
#include <map>
#include <mutex>
#include <string>

namespace bench {

class floor_values {
  public:
    floor_values();  // with the values of a window's whole property table

    template <typename T>
    T get(std::string_view name) {
        const std::lock_guard lock(mutex_);
        return std::any_cast<const T&>(values_.find(name)->second);
    }

    // Into memory that `value` has already.
    template <typename T>
    void get_into(std::string_view name, T& value) {
        const std::lock_guard lock(mutex_);
        value = std::any_cast<const T&>(values_.find(name)->second);
    }

    // What it replaces goes out by `value`.
    template <typename T>
    void exchange(std::string_view name, T& value) {
        const std::lock_guard lock(mutex_);
        std::swap(std::any_cast<T&>(values_.find(name)->second), value);
    }

    template <typename T>
    void set(std::string_view name, T value) {
        const std::lock_guard lock(mutex_);
        std::any_cast<T&>(values_.find(name)->second) = std::move(value);
    }

  private:
    std::mutex mutex_;
    std::map<std::string, std::any, std::less<>> values_;
};

}  // namespace bench
