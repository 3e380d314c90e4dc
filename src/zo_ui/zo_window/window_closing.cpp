// SPDX-License-Identifier: MIT
// Closing, destroying, and asking before.
#include <zo_ui/zo_window/window_callbacks_p.hpp>

#include <zo_core/zo_service.hpp>
#include <zo_ui/zo_window/window_hold_p.hpp>

namespace source = zo::window_source;

namespace {

// True for one scope, also when an exception leaves it.
class scoped_mark {
  public:
    explicit scoped_mark(bool& mark) : mark_(mark) { mark_ = true; }
    ~scoped_mark() { mark_ = false; }
    scoped_mark(const scoped_mark&) = delete;
    scoped_mark& operator=(const scoped_mark&) = delete;

  private:
    bool& mark_;
};

}  // namespace

void _zo_window::_close() {
    if (!is_opened() || is_destroyed()) return;
    const zo_window_ptr self = handle();
    std::function<void(zo_window_ptr)> fn;
    {
        zo::property_guard guard(*this, source::file, source::close_task);
        raise_instance_id(guard);
        guard.read("window-close", fn, {"&fn"});
    }
    set_opened(false);
    set_visible(false);
    take_tree_down();
    if (fn) fn(self);
    if (!is_opened()) tell_manager(&zo::window_host::on_window_close);
}

// Everything is forgotten before anything is destroyed: the application's "destroy" handlers find a closed
// window, and may open it again. When the service is done the toolkit is going away with the widgets: what is
// still on screen then tells nothing to a window that forgot it.
void _zo_window::take_tree_down() {
    const zo::window_widgets tree = std::exchange(widgets_, {});
    // The application's handlers of the first may destroy the second.
    const zo::held_widget held[] = {zo::hold(tree.window), zo::hold(tree.tool_menu)};
    title_part_ = ads_part_ = content_part_ = {};
    fitting_.cancel();
    withdrawal_.forget();
    asked_place_.reset();
    kept_above_ = was_hidden_ = placed_ = unmaximizing_ = centring_ = false;
    if (zo_system_service_done()) {
        for (GtkWidget* widget : {tree.window, tree.title_event_box, tree.title_box, tree.ads_container,
                                  tree.content_event_box, tree.content_box, tree.tool_menu})
            if (widget) g_signal_handlers_disconnect_by_data(widget, this);
        return;
    }
    for (const zo::held_widget& widget : held)
        if (widget && !gtk_widget_in_destruction(widget.get())) gtk_widget_destroy(widget.get());
}

void _zo_window::_destroy() {
    if (is_destroyed() || destroying_) return;
    const zo_window_ptr self = handle();
    const scoped_mark mark(destroying_);
    std::function<void(zo_window_ptr)> fn;
    std::vector<boost::any> cleared;
    {
        zo::property_guard guard(*this, source::file, source::destroy_task);
        raise_instance_id(guard);
        guard.read("window-destroy", fn, {"&fn"});
        cleared = zo::clear_window_callbacks(guard);
    }
    cleared.clear();
    _close();
    std::function<void(zo_window_ptr)> on_close;
    {
        zo::property_guard guard(*this, source::file, source::destroy_task_end);
        guard.write("window-close", on_close, {"nullptr"});
    }
    set_destroyed(true);
    if (fn) fn(self);
    tell_manager(&zo::window_host::on_window_destroy);
    manager_.store({});
    if (is_reffed()) zo_object_unref(self);
}

void _zo_window::request_close() {
    const zo::held_widget window = zo::hold(widgets_.window);
    const auto fn = callback<bool(zo_window_ptr)>("window-close-request", source::title_action);
    const bool vetoed = fn && fn(handle());
    if (!vetoed && still_open(window.get())) _close();
}
