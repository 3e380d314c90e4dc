// SPDX-License-Identifier: MIT
// The format is that of GNU gettext: a head of seven words, two tables with the length and the place of each
// text (message ids and translations), and a hash table of numbers into them.
#include <zo_core/zo_catalogue_p.hpp>

#include <glib.h>

#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

constexpr std::uint32_t magic = 0x950412de;

class catalogue {
  public:
    explicit catalogue(const std::string& content) : content_(content) {}

    bool is_sound() const {
        if (content_.size() < head_words * sizeof(std::uint32_t)) return false;
        if (raw(0) != magic && raw(0) != GUINT32_SWAP_LE_BE(magic)) return false;
        const std::uint32_t count = word(2);
        return are_texts_inside(word(3), count) && are_texts_inside(word(4), count) &&
               are_numbers_inside(word(6), word(5), count);
    }

  private:
    static constexpr std::size_t head_words = 7;

    std::uint32_t raw(std::size_t index) const { return raw_at(index * sizeof(std::uint32_t)); }
    std::uint32_t word(std::size_t index) const { return word_at(index * sizeof(std::uint32_t)); }

    std::uint32_t raw_at(std::size_t offset) const {
        std::uint32_t value = 0;
        std::memcpy(&value, content_.data() + offset, sizeof value);
        return value;
    }
    std::uint32_t word_at(std::size_t offset) const {
        return raw(0) == magic ? raw_at(offset) : GUINT32_SWAP_LE_BE(raw_at(offset));
    }

    bool has(std::uint64_t offset, std::uint64_t size) const { return offset + size <= content_.size(); }

    bool are_texts_inside(std::uint64_t table, std::uint64_t count) const {
        if (!has(table, count * 2 * sizeof(std::uint32_t))) return false;
        for (std::uint64_t entry = table; count > 0; --count, entry += 2 * sizeof(std::uint32_t)) {
            const std::uint64_t end = std::uint64_t{word_at(entry)} + word_at(entry + sizeof(std::uint32_t));
            if (!has(end, 1) || content_[end] != '\0') return false;
        }
        return true;
    }

    bool are_numbers_inside(std::uint64_t table, std::uint64_t size, std::uint32_t count) const {
        if (!has(table, size * sizeof(std::uint32_t))) return false;
        for (; size > 0; --size, table += sizeof(std::uint32_t))
            if (word_at(table) > count) return false;
        return true;
    }

    const std::string& content_;
};

}  // namespace

bool zo::is_sound_catalogue(const std::string& content) { return catalogue(content).is_sound(); }

bool zo::are_catalogues_sound(const std::string& locale_folder, const std::string& domain) {
    for (const char* const* language = g_get_language_names(); *language; ++language) {
        const auto path = std::filesystem::path(locale_folder) / *language / "LC_MESSAGES" / (domain + ".mo");
        std::ifstream file(path, std::ios::binary);
        if (file && !is_sound_catalogue({std::istreambuf_iterator<char>(file), {}})) return false;
    }
    return true;
}
