// SPDX-License-Identifier: MIT
// The session bus, for programs that ask others something. It has threads: fork before.
#pragma once

#include <gio/gio.h>
#include <sys/types.h>
#include <memory>
#include <string>
#include <vector>

namespace bench {

// What others serve on the bus.
struct service {
    const char* name;
    const char* path;
    const char* interface;
};

using answer = std::unique_ptr<GVariant, decltype(&g_variant_unref)>;

class session_bus {
  public:
    session_bus();
    ~session_bus();
    session_bus(const session_bus&) = delete;
    session_bus& operator=(const session_bus&) = delete;

    GDBusConnection* connection() const { return connection_; }

    // The process that has the name; -1 when nobody has it.
    pid_t owner(const std::string& name) const;

    // Calls a method as often as there are arguments, which may float, and waits for all answers together.
    // Throws when one is an error, or does not come within the patience.
    std::vector<answer> call(const service& served, const char* method,
                             const std::vector<GVariant*>& arguments) const;

  private:
    GDBusConnection* connection_;
};

}  // namespace bench
