// SPDX-License-Identifier: MIT
#pragma once

#include <gtk/gtk.h>

#include <string>
#include <vector>

namespace demo {

// The callbacks that came, newest last, in a view that may come and go with its window.
class callback_log {
  public:
    callback_log();
    ~callback_log();
    callback_log(const callback_log&) = delete;
    callback_log& operator=(const callback_log&) = delete;

    void add(const std::string& window, const std::string& what);

    void clear();

    // A new scrolling view of the log; the caller packs it.
    GtkWidget* view_new();

    bool contains(const std::string& window, const std::string& what) const;
    bool contains_since(std::size_t first, const std::string& window, const std::string& what) const;
    std::size_t size() const { return lines_.size(); }

  private:
    GtkTextBuffer* buffer_;
    GtkTextMark* end_;
    GtkWidget* view_ = nullptr;  // null while there is none
    std::vector<std::string> lines_;
};

}  // namespace demo
