// SPDX-License-Identifier: MIT
#include <core/floor_values.hpp>

namespace {

using callback = std::function<void(void*)>;

constexpr const char* callbacks[] = {
    "window-open",         "window-show",      "window-hide", "window-close",    "window-activate",
    "window-restore",      "window-destroy",   "go-back",     "hint-request",    "window-close-request",
    "app-exit-request",    "handle-photo",     "menu-create", "window-on-event", "window-title-change",
    "window-class-change", "window-id-change",
};

constexpr struct {
    const char* name;
    bool value;
} flags[] = {
    {"object-destroyed", false},
    {"popup-window", false},
    {"window-managed", true},
    {"window-visible", false},
    {"window-opened", false},
    {"window-destroyed", false},
    {"window-restore-visible", false},
    {"window-restore-opened", false},
    {"window-restore-destroyed", false},
    {"use-rgba-visual", true},
    {"use-system-decoration", false},
    {"skip-pager", true},
    {"skip-taskbar-hint", true},
    {"re-sizable", false},
    {"keep-above", true},
    {"drag-enabled", true},
    {"use-built-in-title", true},
    {"enable-title-back", false},
    {"enable-title-exit", false},
    {"enable-title-menu", false},
    {"enable-title-hint", false},
    {"enable-title-save-to-photo", false},
    {"enable-title-close", true},
    {"enable-title-minimize", true},
    {"enable-content-ads", false},
    {"use_scroll", true},
};

}  // namespace

bench::floor_values::floor_values() {
    for (const char* name : callbacks) values_.emplace(name, callback());
    for (const auto& flag : flags) values_.emplace(flag.name, flag.value);
    values_.emplace("window-title-text", std::string());
    values_.emplace("window-class", std::string("global-window"));
    values_.emplace("window-id", std::string());
    values_.emplace("instanceId", 0);
}
