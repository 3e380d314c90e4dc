// SPDX-License-Identifier: MIT
// What a manager needs of the notifications stacked on it. The notification stands on the manager, so the
// manager knows only this much of it.
#pragma once

#include <zo_ui/zo_handles.hpp>

#include <string>

namespace zo {

// Each posts.
class managed_notification {
  public:
    virtual void show_managed() = 0;
    virtual void hide_managed() = 0;
    virtual void destroy_managed(std::string reason, int line) = 0;

  protected:
    ~managed_notification() = default;
};

// The notification's side as a managed one. Defined with the notification, which alone knows its class.
managed_notification& managed(_zo_notification& notification);

}  // namespace zo
