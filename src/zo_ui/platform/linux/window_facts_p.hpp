// SPDX-License-Identifier: MIT
// What a window's program says about it, each asked for when made and read when awaited.
#pragma once

#include <zo_ui/platform/linux/pipeline_p.hpp>

#include <string>

namespace zo::platform {

// The results and what they leave alone are those of get_window_name(), get_window_class() and
// getWindowPid().
class name_request {
  public:
    name_request(Display* display, Window window);
    bool answer(std::string& name);

  private:
    Display* display_;
    property_request property_;
};

class class_request {
  public:
    class_request(Display* display, Window window);
    bool answer(std::string& res_name, std::string& res_class);

  private:
    property_request property_;
};

class pid_request {
  public:
    pid_request(Display* display, Window window, const known_atoms& atoms);
    int answer();

  private:
    property_request property_;
};

}  // namespace zo::platform
