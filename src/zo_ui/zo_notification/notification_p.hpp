// SPDX-License-Identifier: MIT
// The class behind zo_notification_ptr.
#pragma once

#include <zo_core/zo_property_access_p.hpp>
#include <zo_ui/zo_notification.hpp>
#include <zo_ui/zo_notification/notification_source_p.hpp>
#include <zo_ui/zo_notification/notification_types_p.hpp>

#include <ctime>

namespace zo {

struct notification_access;

}  // namespace zo

class _zo_notification : public _zo_object {
  public:
    _zo_notification();

    // The virtual operations of the base, in their order; there are no more.

    ~_zo_notification() override;
    zo_object_ptr to_object() override;
    std::string get_type() override;
    void destroy(std::string reason, int line) override;
    std::string describe() override;

    // Posting: any thread.
    void post(void (_zo_notification::*operation)(), int line);

    // Settings: any thread.
    unsigned long get_id();
    void set_title(std::string& title);
    void set_content(std::string& content);
    void set_is_markup(bool is_markup);
    void set_timeout(int milliseconds);
    void set_manager(zo_window_manager_ptr& manager);
    void add_action(std::string& name, std::string& label, std::function<void(std::string)>& callback);
    void set_on_close(std::function<void(zo_notification_ptr)>& callback);
    void set_on_link(std::function<bool(zo_notification_ptr, std::string&)>& callback);

    // On the loop, posted.
    void _open();
    void _show();
    void _hide();
    void close_for_good();

    zo_notification_ptr handle();

  private:
    friend struct zo::notification_access;

    // State: written by the loop alone.
    bool is_opened();
    bool is_visible();
    bool is_destroyed();
    void set_opened(bool value);
    void set_visible(bool value, int line = zo::notification_source::state_writer);
    void set_destroyed(bool value);

    // Settings, as one operation reads them.
    bool is_closing();
    zo::notification_text text();
    zo_window_manager_ptr manager();
    zo::notification_callables begin_closing();
    void let_go_of_manager();

    // The popup's tree, notification_popup.cpp.
    void build_popup(const zo::notification_text& text);
    void build_title(const std::string& title);
    void build_content(const zo::notification_text& text);
    void fill_content_label(const zo::notification_text& text);
    void build_actions();
    void describe_popup(const zo::notification_text& text);

    // Showing, notification_showing.cpp.
    void place();
    void enter_stack(zo::popup_stack stack);
    void leave_stack();
    void join_list_of(const zo_window_manager_ptr& manager);
    void leave_list();
    void announce();
    void arm_timeout();
    void cancel_timeout();

    // Closing, notification_closing.cpp.
    void _close();
    GtkWidget* forget_popup();
    void on_popup_destroyed(GtkWidget* popup);
    void on_action(GtkWidget* button);
    bool on_link(std::string& uri);

    // Guarded by the property lock.
    const unsigned long id_;
    zo::notification_text text_;
    int timeout_ = 0;  // milliseconds
    zo::notification_callables callables_;
    zo_window_manager_ptr manager_;
    bool closing_ = false;  // the close path has begun: nothing opens, nothing is stored any more

    // The loop's.
    zo::notification_widgets widgets_;
    zo::popup_place place_;
    zo::popup_stack stack_;            // where its entry is; no container: nowhere
    zo_window_manager_ptr listed_in_;  // the manager that shows and hides it
    unsigned long timeout_id_ = 0;     // 0: none runs
    std::time_t shown_at_ = 0;
    int shown_for_ = 0;  // seconds
    int inside_link_ = 0;
    bool close_after_link_ = false;
};

namespace zo {

// For tests of what no exported function shows.
struct notification_access {
    static notification_widgets& widgets(_zo_notification& n) { return n.widgets_; }
    static unsigned long timeout_id(const _zo_notification& n) { return n.timeout_id_; }
    static std::time_t& shown_at(_zo_notification& n) { return n.shown_at_; }
    static int shown_for(const _zo_notification& n) { return n.shown_for_; }
    static zo_window_manager_ptr manager(_zo_notification& n) { return n.manager(); }
    static notification_callables& callables(_zo_notification& n) { return n.callables_; }
};

}  // namespace zo
