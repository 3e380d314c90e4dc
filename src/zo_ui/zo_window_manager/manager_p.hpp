// SPDX-License-Identifier: MIT
// The class behind zo_window_manager_ptr.
#pragma once

#include <zo_core/zo_property_access_p.hpp>
#include <zo_ui/toolkit/layout_idle_p.hpp>
#include <zo_ui/zo_window/window_host_p.hpp>
#include <zo_ui/zo_window_manager.hpp>
#include <zo_ui/zo_window_manager/manager_source_p.hpp>
#include <zo_ui/zo_window_manager/manager_task_p.hpp>
#include <zo_ui/zo_window_manager/window_list_p.hpp>

namespace zo {

template <>
struct type_text<std::function<void(zo_window_manager_ptr)>> {
    static constexpr const char* value = "std::function<void(zo_window_manager_ptr)>";
};

// The last allocation of a part of the panel, in logical pixels.
struct panel_part {
    int y = 0;
    int width = 0;
    int height = 0;
};

// The panel's widgets and geometry. Observers: GTK owns the widgets. All null while the panel is closed, but
// for the lock button, which stays as it was (test "TheLockButtonPointerIsLeftInPlace").
struct panel_widgets {
    GtkWidget* window = nullptr;
    GtkWidget* fixed = nullptr;
    GtkWidget* event_box = nullptr;
    GtkWidget* wrapper = nullptr;
    GtkWidget* taskbox = nullptr;
    GtkWidget* taskbox_left = nullptr;
    GtkWidget* lock_button = nullptr;
    GtkWidget* taskbox_scroll = nullptr;
    GtkWidget* taskbox_center = nullptr;
    GtkWidget* taskbox_right = nullptr;
    bool keep_extended = false;
    int x = 0;  // where the panel was last put or found
    int y = 0;
    panel_part panel;
    panel_part left;
    panel_part center;
    panel_part right;
};

struct panel_handlers;
struct manager_access;

}  // namespace zo

class _zo_window_manager : public _zo_object, public zo::window_host {
  public:
    _zo_window_manager();

    // The virtual operations continue those of the base. Their order is fixed: programs were built against
    // it.

    ~_zo_window_manager() override;
    zo_object_ptr to_object() override;
    std::string get_type() override;
    void destroy(std::string reason, int line) override;
    std::string describe() override;

    virtual void extend_now();
    virtual void retract_now();
    virtual void open_now();
    virtual void show_now();
    virtual void hide_now();
    virtual void close_now();
    virtual void destroy_now();
    void connect_window(zo_window_ptr window) override;
    void disconnect_window(zo_window_ptr window) override;
    void on_window_title(zo_window_ptr window) override;
    void on_window_open(zo_window_ptr window) override;
    void on_window_shown(zo_window_ptr window) override;
    void on_window_hidden(zo_window_ptr window) override;
    void on_window_close(zo_window_ptr window) override;
    void on_window_destroy(zo_window_ptr window) override;
    virtual bool add_widget_left(GtkWidget* widget);
    virtual bool remove_widget_left(GtkWidget* widget);
    virtual bool add_widget_right(GtkWidget* widget);
    virtual bool remove_widget_right(GtkWidget* widget);
    virtual bool add_toolbar(GtkBox* toolbar);
    virtual bool remove_toolbar(GtkBox* toolbar);

    // Posting: any thread.
    void post(void (_zo_window_manager::*operation)(), int line);
    void set_keep_extended(bool keep);

    // State: any thread; written by the loop alone.
    bool is_opened();
    bool is_visible();
    bool is_destroyed();
    bool get_keep_extended();

    std::map<unsigned long, GtkWidget*>& local_notification_container() {
        return local_notification_container_;
    }

    // Filled by the notifications; on the loop.
    std::map<unsigned long, zo_notification_ptr>& manager_notifications() { return manager_notifications_; }

    zo_window_manager_ptr handle();

  private:
    friend struct zo::panel_handlers;
    friend struct zo::manager_access;
    using callback_function = std::function<void(zo_window_manager_ptr)>;

    void init_properties();
    void set_opened(bool value);
    void set_visible(bool value);
    void set_destroyed(bool value);
    callback_function callback(const char* name, int line);

    // Layout, manager_layout.cpp.
    void build_panel();
    void build_panel_window();
    void build_left_region();
    void build_center_region();
    void build_right_region();
    void connect_panel();
    void style_lock_button(bool locked);

    // Handlers of the panel, manager_layout_handlers.cpp.
    void on_panel_allocated(const GtkAllocation& allocation);
    void on_left_allocated(const GtkAllocation& allocation);
    void on_right_allocated(const GtkAllocation& allocation);
    void fit_soon();
    void fit_scroller();
    void disconnect_panel();
    void on_panel_destroyed(GtkWidget* panel);
    void forget_panel();

    // Sliding, manager_extend.cpp.
    int panel_height() const;
    void move_panel(int y);
    void place_panel();
    void shape_input();
    int on_crossing(const GdkEventCrossing& event);
    std::pair<int, int> pointer() const;
    void on_grab_begun();
    void on_grab_ended();
    void on_lock_clicked();
    void apply_keep_extended(bool keep);

    // Slots, manager_slots.cpp.
    bool add_to_region(GtkWidget* region, GtkWidget* widget);
    bool remove_from_region(GtkWidget* region, GtkWidget* widget);

    // Task buttons, manager_task_buttons.cpp.
    void let_go_of(GtkWidget* task);
    void forget_tasks();
    void open_task_buttons_of_all();
    void open_task_buttons(const zo_window_ptr& window);
    GtkWidget* make_task_button(const zo_window_ptr& window, const std::string& title,
                                std::function<void(GtkWidget*)>* cb);
    GtkWidget* make_close_button(const zo_window_ptr& window, const std::string& title);
    void pack_task(GtkWidget* button, zo::task_role role, const zo_window_ptr& window);
    bool is_task(GtkWidget* widget, zo::task_role role, const zo_window_ptr& window) const;
    void set_task_opacity(const zo_window_ptr& window, double opacity);
    void scroll_to_newest();
    void let_go_when_done();

    zo::panel_widgets widgets_;
    std::function<int(GtkWidget*, GdkEventCrossing*)> crossing_handler_;
    std::function<void(GtkWidget*)> lock_clicked_;
    zo::window_list registered_windows_;
    zo::window_list shown_windows_;
    std::map<unsigned long, GtkWidget*> local_notification_container_;
    std::map<unsigned long, zo_notification_ptr> manager_notifications_;

    // The task widgets that live, and whose they are: a pointer remembered in a window may be stale.
    zo::task_map tasks_;
    GtkWidget* newest_task_ = nullptr;  // until it is scrolled into view
    zo::layout_idle fitting_;
    zo::layout_idle scrolling_;
    bool grabbed_inside_ = false;  // a grab runs that began with the pointer in the panel
    bool destroying_ = false;      // destroy_now has begun
    bool released_ = false;        // the library's own reference is gone
};

namespace zo {

// For tests of what no exported function shows.
struct manager_access {
    static panel_widgets& widgets(_zo_window_manager& manager) { return manager.widgets_; }
    static window_list& registered(_zo_window_manager& manager) { return manager.registered_windows_; }
    static window_list& shown(_zo_window_manager& manager) { return manager.shown_windows_; }
};

}  // namespace zo
