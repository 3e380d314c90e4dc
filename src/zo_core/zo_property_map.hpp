// SPDX-License-Identifier: MIT
/// @file
/// How a property list keeps its values. Programs use it as the map that `zo_property.hpp` says it is.
#pragma once

#include <endian.h>
#include <boost/any.hpp>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <forward_list>
#include <map>
#include <new>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zo {

// A name to look up, in the order of the lists: byte by byte, and the shorter of two first. Lookups are most
// of what an access costs, so names are told apart by their first eight bytes where those differ, and by
// their last eight where these hold the rest.
class property_key {
  public:
    explicit property_key(std::string_view name) : name_(name), head_(has_head(name) ? word(name, 0) : 0) {}

    friend bool operator<(const std::string& name, const property_key& key) { return key.order(name) > 0; }
    friend bool operator<(const property_key& key, const std::string& name) { return key.order(name) < 0; }
    friend bool operator==(const std::string& name, const property_key& key) { return key.order(name) == 0; }
    friend bool operator!=(const std::string& name, const property_key& key) { return key.order(name) != 0; }

  private:
    static constexpr std::size_t width = sizeof(std::uint64_t);

    static bool has_head(std::string_view name) { return name.size() >= width; }

    static std::uint64_t word(std::string_view name, std::size_t at) {
        std::uint64_t bytes;
        std::memcpy(&bytes, name.data() + at, width);
        return be64toh(bytes);
    }

    static int compared(std::uint64_t a, std::uint64_t b) { return a == b ? 0 : a < b ? -1 : 1; }

    int order(std::string_view name) const {
        if (!has_head(name) || !has_head(name_)) return name_.compare(name);
        const std::uint64_t head = word(name, 0);
        if (head_ != head) return compared(head_, head);
        const std::size_t size = name_.size();
        if (size != name.size() || size > 2 * width) return name_.compare(name);
        return compared(word(name_, size - width), word(name, size - width));
    }

    std::string_view name_;
    std::uint64_t head_;
};

// A value with its name, which the map keeps, or who gave it.
class property_entry {
  public:
    property_entry(const std::string& name, boost::any value) noexcept
        : first(name), second(std::move(value)) {}
    property_entry(property_entry&&) noexcept = default;
    property_entry& operator=(property_entry&& other) noexcept {
        if (this == &other) return *this;
        const property_entry old(std::move(*this));  // its value ends last
        this->~property_entry();
        new (this) property_entry(std::move(other));
        return *this;
    }
    ~property_entry() = default;

    operator std::pair<const std::string, boost::any>() const { return {first, second}; }

    const std::string& first;
    boost::any second;
};

// A map in one piece of memory. An object has dozens of values with names that all of its class share: a node
// for each, with a name of its own, would take four times as much.
class property_map {
  public:
    using value_type = property_entry;
    using key_type = std::string;
    using mapped_type = boost::any;
    using size_type = std::size_t;
    using iterator = std::vector<property_entry>::iterator;
    using const_iterator = std::vector<property_entry>::const_iterator;

    property_map() = default;
    property_map(const property_map& other) { copy(other); }
    property_map(property_map&&) noexcept = default;
    property_map& operator=(const property_map& other) {
        if (this != &other) *this = property_map(other);
        return *this;
    }
    property_map& operator=(property_map&& other) noexcept {
        swap(other);
        return *this;
    }
    ~property_map() = default;

    iterator begin() noexcept { return entries_.begin(); }
    iterator end() noexcept { return entries_.end(); }
    const_iterator begin() const noexcept { return entries_.begin(); }
    const_iterator end() const noexcept { return entries_.end(); }
    const_iterator cbegin() const noexcept { return entries_.begin(); }
    const_iterator cend() const noexcept { return entries_.end(); }
    bool empty() const noexcept { return entries_.empty(); }
    size_type size() const noexcept { return entries_.size(); }
    void reserve(size_type count) { entries_.reserve(count); }

    iterator lower_bound(const property_key& name) { return begin() + place_of(name); }
    const_iterator lower_bound(const property_key& name) const { return begin() + place_of(name); }
    iterator find(const property_key& name) {
        const iterator place = lower_bound(name);
        return place != end() && place->first == name ? place : end();
    }
    const_iterator find(const property_key& name) const {
        const const_iterator place = lower_bound(name);
        return place != end() && place->first == name ? place : end();
    }
    iterator find(std::string_view name) { return find(property_key(name)); }
    const_iterator find(std::string_view name) const { return find(property_key(name)); }
    bool contains(std::string_view name) const { return find(name) != end(); }
    size_type count(std::string_view name) const { return contains(name) ? 1 : 0; }

    boost::any& at(std::string_view name) { return const_cast<boost::any&>(std::as_const(*this).at(name)); }
    const boost::any& at(std::string_view name) const {
        const const_iterator place = find(name);
        if (place == end()) throw std::out_of_range("property_list::at");
        return place->second;
    }
    boost::any& operator[](std::string_view name) { return emplace(name, boost::any()).first->second; }

    // Inserts a value under a name that is not there, and says whether it did.
    std::pair<iterator, bool> emplace(std::string_view name, boost::any value) {
        const property_key key(name);
        const iterator place = lower_bound(key);
        if (place != end() && place->first == key) return {place, false};
        return {emplace_hint(place, name, std::move(value)), true};
    }
    std::pair<iterator, bool> try_emplace(std::string_view name, boost::any value) {
        return emplace(name, std::move(value));
    }
    std::pair<iterator, bool> insert(std::pair<const std::string, boost::any> value) {
        return emplace(value.first, std::move(value.second));
    }
    std::pair<iterator, bool> insert_or_assign(std::string_view name, boost::any value) {
        const std::pair<iterator, bool> done = emplace(name, boost::any());
        done.first->second.swap(value);
        return done;
    }

    // At its place, which lower_bound() tells.
    iterator emplace_hint(const_iterator place, std::string_view name, boost::any value) {
        names_.emplace_front(name);
        return emplace_kept(place, names_.front(), std::move(value));
    }
    // The same with a name that outlives the map.
    iterator emplace_kept(const_iterator place, const std::string& name, boost::any value) {
        return entries_.emplace(place, name, std::move(value));
    }

    iterator erase(const_iterator place) {
        const std::string* const name = &place->first;
        const property_entry old(std::move(entries_[static_cast<size_type>(place - begin())]));
        const iterator next = entries_.erase(place);
        names_.remove_if([name](const std::string& own) { return &own == name; });
        return next;
    }
    size_type erase(std::string_view name) {
        const const_iterator place = find(name);
        if (place == end()) return 0;
        erase(place);
        return 1;
    }
    template <typename Compare>
    operator std::map<std::string, boost::any, Compare>() const {
        return {begin(), end()};
    }

    void clear() noexcept { property_map().swap(*this); }

    void swap(property_map& other) noexcept {
        entries_.swap(other.entries_);
        names_.swap(other.names_);
    }

  private:
    std::ptrdiff_t place_of(const property_key& name) const {
        std::size_t first = 0;
        for (std::size_t count = entries_.size(); count > 0;) {
            const std::size_t half = count / 2;
            const bool before = entries_[first + half].first < name;
            first += before ? half + 1 : 0;
            count = before ? count - half - 1 : half;
        }
        return static_cast<std::ptrdiff_t>(first);
    }

    void copy(const property_map& other) {
        entries_.reserve(other.size());
        for (const property_entry& entry : other.entries_)
            if (other.keeps(entry.first))
                emplace_hint(cend(), entry.first, entry.second);
            else
                emplace_kept(cend(), entry.first, entry.second);
    }

    bool keeps(const std::string& name) const {
        for (const std::string& own : names_)
            if (&own == &name) return true;
        return false;
    }

    std::vector<property_entry> entries_;   // in the order of their names
    std::forward_list<std::string> names_;  // those that are nobody else's
};

}  // namespace zo
