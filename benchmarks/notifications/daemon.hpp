// SPDX-License-Identifier: MIT
// A notification daemon that a benchmark has started, asked over the bus.
#pragma once

#include <desktop/child.hpp>
#include <desktop/session_bus.hpp>
#include <notifications/texts.hpp>

#include <vector>

namespace bench {

class notification_daemon {
  public:
    // Waits until the process, and nobody else, serves notifications.
    notification_daemon(child& process, const session_bus& bus) : bus_(bus) {
        process.must_reach("service of notifications", 60,
                           [&] { return bus.owner(served.name) == process.id(); });
    }

    // In one burst, for ever or until they are closed; their numbers.
    std::vector<guint32> show(int count) const {
        std::vector<GVariant*> arguments;
        for (int i = 0; i < count; ++i)
            arguments.push_back(g_variant_new("(susss@as@a{sv}i)", "bench", 0U, "",
                                              notification_title(i).c_str(), notification_text(i).c_str(),
                                              g_variant_new("as", nullptr), g_variant_new("a{sv}", nullptr),
                                              0));
        std::vector<guint32> ids;
        for (const answer& told : bus_.call(served, "Notify", arguments))
            g_variant_get(told.get(), "(u)", &ids.emplace_back());
        return ids;
    }

    // In one burst.
    void close(const std::vector<guint32>& ids) const {
        std::vector<GVariant*> arguments;
        for (const guint32 id : ids) arguments.push_back(g_variant_new("(u)", id));
        bus_.call(served, "CloseNotification", arguments);
    }

    static constexpr service served{"org.freedesktop.Notifications", "/org/freedesktop/Notifications",
                                    "org.freedesktop.Notifications"};

  private:
    const session_bus& bus_;
};

}  // namespace bench
