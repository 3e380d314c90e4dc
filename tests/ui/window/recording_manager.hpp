// SPDX-License-Identifier: MIT
// A manager that only notes what its windows report. Programs that include this are linked with the library's
// objects.
#pragma once

#include "ui/window/event_log.hpp"

#include <zo_ui/zo_window_manager/manager_p.hpp>

#include <boost/make_shared.hpp>

namespace test {

class recording_manager : public _zo_window_manager {
  public:
    explicit recording_manager(event_log& log, std::string name = "m") : log_(log), name_(std::move(name)) {}

    void connect_window(zo_window_ptr window) override { note("connect", window); }
    void disconnect_window(zo_window_ptr window) override { note("disconnect", window); }
    void on_window_title(zo_window_ptr window) override { note("title", window); }
    void on_window_open(zo_window_ptr window) override { note("opened", window); }
    void on_window_shown(zo_window_ptr window) override { note("shown", window); }
    void on_window_hidden(zo_window_ptr window) override { note("hidden", window); }
    void on_window_close(zo_window_ptr window) override { note("closed", window); }
    void on_window_destroy(zo_window_ptr window) override { note("destroyed", window); }

  private:
    void note(const char* what, const zo_window_ptr& window) { log_.note(name_ + ":" + what, window); }

    event_log& log_;
    std::string name_;
};

inline boost::shared_ptr<recording_manager> recording_manager_new(event_log& log, std::string name = "m") {
    return boost::make_shared<recording_manager>(log, std::move(name));
}

}  // namespace test
