// SPDX-License-Identifier: MIT
#pragma once

#include <gtk/gtk.h>
#include <functional>

namespace zo {

// One piece of layout work that has to wait until the present layout is over, and is done before the next:
// GTK loses a resize that is asked for inside "size-allocate". Asking again while it waits changes nothing.
// The owner outlives the work, since its destructor takes it back.
class layout_idle {
  public:
    layout_idle() = default;
    ~layout_idle() { cancel(); }
    layout_idle(const layout_idle&) = delete;
    layout_idle& operator=(const layout_idle&) = delete;

    void ask(std::function<void()> work);
    void cancel();

  private:
    static gboolean run(gpointer self);

    guint source_ = 0;  // 0 while nothing waits
    std::function<void()> work_;
};

}  // namespace zo
