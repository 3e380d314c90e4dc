// SPDX-License-Identifier: MIT
#pragma once

#include "support/tray.hpp"
#include "support/ui.hpp"

#include <string>

namespace test {

// Destroys the indicator at the end of the scope and runs the tasks that belong to it.
class scoped_indicator {
  public:
    explicit scoped_indicator(const std::string& name, const std::string& title = "Title",
                              const std::string& icon = "mail-unread")
        : indicator_(zo_appindicator_new(name, title, icon)) {}
    ~scoped_indicator() { destroy(); }
    scoped_indicator(const scoped_indicator&) = delete;
    scoped_indicator& operator=(const scoped_indicator&) = delete;
    operator zo_appindicator_ptr() const { return indicator_; }
    const zo_appindicator_ptr& get() const { return indicator_; }
    zo_object_ptr object() const { return zo_appindicator_to_object(indicator_); }

    void show() {
        zo_appindicator_show(indicator_);
        run_tasks();
    }

    void destroy() {
        if (!indicator_) return;
        if (!destroyed_) object()->destroy("test", 1);
        destroyed_ = true;
        run_tasks();
    }

    // Drops the test's handle; the indicator is then destroyed by somebody else.
    void let_go() { indicator_.reset(); }

  private:
    zo_appindicator_ptr indicator_;
    bool destroyed_ = false;
};

}  // namespace test
