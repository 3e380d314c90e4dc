// SPDX-License-Identifier: MIT
#include <zo_ui/zo_window_manager/manager_p.hpp>

zo::window_host& zo::host_of(_zo_window_manager& manager) { return manager; }
