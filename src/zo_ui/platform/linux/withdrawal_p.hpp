// SPDX-License-Identifier: MIT
// Keeps the showings and hidings of a toplevel in order. A window manager that learns of several at once
// takes the hints of the new showing away, and some never show the window again. So each waits for the answer
// to the one before, which takes a window manager a few milliseconds.
#pragma once

#include <gtk/gtk.h>

namespace zo::platform {

// What the X server told of a window since a request.
struct window_answer {
    unsigned long since = 0;
    bool mapped = false;
    bool set = false;      // WM_STATE, by the window manager
    bool deleted = false;  // likewise, and not set again

    void note(const GdkXEvent* event, GdkWindow* native);
    bool is_to_showing() const { return mapped && set; }
    bool is_to_hiding() const { return set || deleted; }
};

class withdrawal {
  public:
    withdrawal() = default;
    ~withdrawal() { forget(); }
    withdrawal(const withdrawal&) = delete;
    withdrawal& operator=(const withdrawal&) = delete;

    // Around the hiding and the showing of a toplevel. They wait only when the one before has no answer yet
    // and a window manager runs, and only once for one that does not answer.
    void before_hide(GtkWidget* toplevel);
    void before_show(GtkWidget* toplevel);
    void after_show(GtkWidget* toplevel);

    // Whether the window manager has answered all hidings.
    bool is_settled() const { return unanswered_ == 0; }

    // The toplevel has nothing to do with this any more.
    void forget();

  private:
    static GdkFilterReturn on_event(GdkXEvent* event, GdkEvent*, gpointer self);
    void on_state();
    void watch(GdkWindow* native);
    void begin();
    bool manager_runs() const;
    bool await(bool (window_answer::*complete)() const);

    GdkWindow* native_ = nullptr;  // held
    window_answer answer_;         // to the last showing or hiding
    bool hidden_ = false;
    int unanswered_ = 0;  // hidings
};

}  // namespace zo::platform
