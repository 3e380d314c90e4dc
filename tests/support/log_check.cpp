// SPDX-License-Identifier: MIT
#include "support/log_check.hpp"

#include <glib.h>
#include <gtest/gtest.h>

#include <mutex>

namespace {

std::mutex mutex;
std::string expected;
int met = 0;

std::string field(const GLogField* fields, gsize count, const char* key) {
    for (gsize i = 0; i < count; ++i)
        if (std::string(fields[i].key) == key && fields[i].value)
            return fields[i].length < 0
                       ? std::string(static_cast<const char*>(fields[i].value))
                       : std::string(static_cast<const char*>(fields[i].value), fields[i].length);
    return {};
}

// What was asked for by G_MESSAGES_DEBUG goes where GLib writes it.
GLogWriterOutput on_message(GLogLevelFlags level, const GLogField* fields, gsize count, gpointer data) {
    if (level & G_LOG_LEVEL_DEBUG) return g_log_writer_default(level, fields, count, data);
    const std::string text = field(fields, count, "GLIB_DOMAIN") + ": " + field(fields, count, "MESSAGE");
    if (!(level & (G_LOG_LEVEL_ERROR | G_LOG_LEVEL_CRITICAL | G_LOG_LEVEL_WARNING)))
        return G_LOG_WRITER_HANDLED;
    {
        std::lock_guard lock(mutex);
        if (!expected.empty() && text.find(expected) != std::string::npos) {
            ++met;
            return G_LOG_WRITER_HANDLED;
        }
    }
    ADD_FAILURE() << "a message of GLib's log: " << text;
    return G_LOG_WRITER_HANDLED;
}

}  // namespace

void test::watch_glib_log() { g_log_set_writer_func(on_message, nullptr, nullptr); }

test::expected_glib_message::expected_glib_message(std::string text) {
    std::lock_guard lock(mutex);
    expected = std::move(text);
    met = 0;
}

int test::expected_glib_message::count() const {
    std::lock_guard lock(mutex);
    return met;
}

test::expected_glib_message::~expected_glib_message() {
    std::lock_guard lock(mutex);
    EXPECT_GT(met, 0) << "no message with: " << expected;
    expected.clear();
}
