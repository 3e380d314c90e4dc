// SPDX-License-Identifier: MIT
// The class behind zo_window_ptr.
#pragma once

#include <zo_core/zo_property_access_p.hpp>
#include <zo_ui/platform/linux/withdrawal_p.hpp>
#include <zo_ui/toolkit/layout_idle_p.hpp>
#include <zo_ui/toolkit/listener_list_p.hpp>
#include <zo_ui/zo_window.hpp>
#include <zo_ui/zo_window/window_host_p.hpp>
#include <zo_ui/zo_window/window_settings_p.hpp>
#include <zo_ui/zo_window/window_source_p.hpp>
#include <zo_ui/zo_window/window_tree_p.hpp>
#include <zo_ui/zo_window/window_types_p.hpp>

#include <boost/smart_ptr/atomic_shared_ptr.hpp>
#include <optional>
#include <utility>

class _zo_window : public _zo_object {
  public:
    _zo_window();

    // The virtual operations continue those of the base. Their order is fixed: programs were built against
    // it.

    ~_zo_window() override;
    zo_object_ptr to_object() override;
    std::string get_type() override;
    void destroy(std::string reason, int line) override;
    std::string describe() override;

    virtual void init();  // binds the title bar's handlers; the constructor's last step
    virtual bool add_content_child(GtkWidget* child, bool expand, bool fill, int padding, bool pack_end);
    virtual void on_event(zo_window_event_ptr event);
    virtual void set_window_manager(zo_window_manager_ptr manager);
    virtual void _open();
    virtual void _show();
    virtual void _hide();
    virtual void _activate();
    virtual void _restore();
    virtual void _close();
    virtual void _destroy();
    virtual void save();

    // Posting: any thread.
    void open();
    void show();
    void hide();
    void activate();
    void restore();
    void move(int x, int y);
    void close();
    void destroy();
    void set_id(std::string s);
    void set_class(std::string s);
    void set_title(std::string s);

    // State: any thread; written by the loop alone.
    bool is_opened();
    bool is_visible();
    bool is_destroyed();

    zo_window_manager_ptr window_manager() const { return manager_.load(); }

    // The rest runs on the loop.

    zo_window_ptr handle();

    // Asks "window-close-request" and closes the window unless it vetoes.
    void request_close();

    void close_tool_menu();

  private:
    friend struct zo::window_access;
    friend struct zo::window_handlers;
    friend struct zo::tool_menu_handlers;
    friend struct zo::drag_handlers;
    using click_handler = std::shared_ptr<zo::listener<void(GtkWidget*)>>;
    using title_action = void (_zo_window::*)();

    // Properties, window_properties.cpp and window_state.cpp.
    void init_properties();
    void join(const zo_window_manager_ptr& manager);
    void take_tree_down();
    void set_opened(bool value);
    void set_visible(bool value);
    void set_destroyed(bool value);
    template <typename Signature>
    std::function<Signature> callback(const char* name, int line);
    void raise_instance_id(zo::property_guard& guard);

    // Posting, window_posting.cpp.
    void post(void (_zo_window::*operation)(), int line);
    void post_text_change(const zo::window_text& text, std::string s);
    void on_text_changed(const zo::window_text& text, const std::string& old, const std::string& changed);
    void apply_id(const std::string& old, const std::string& id);
    void apply_class(const std::string& old, const std::string& style_class);
    void apply_title(const std::string& old, const std::string& title);
    friend struct zo::window_text;

    // True while the tree that was built as `window` is the opened window's, also after a callback.
    bool still_open(GtkWidget* window);
    bool still_in(GtkWidget* window, bool visible);
    void tell_manager(void (zo::window_host::*event)(zo_window_ptr));

    // Tree, window_tree.cpp.
    void build_tree(const zo::window_settings& settings);
    void build_toplevel(const zo::window_settings& settings);
    void build_ads();
    void build_content(const zo::window_settings& settings);
    void connect_tree(const zo::window_settings& settings);
    void connect_toplevel();
    void apply_fixed_classes();
    void keep_above();
    void move_now(int x, int y);
    void hide_in_place();

    // Handlers of the tree, window_tree_handlers.cpp.
    void on_toplevel_destroyed(GtkWidget* window);
    void on_content_allocated(const GtkAllocation& allocation);
    void fit_scroller();
    void on_window_state(const GdkEventWindowState& event);
    void on_mapped();
    void on_configured(const GdkEventConfigure& event);
    void centre(int width, int height);

    // Title bar, window_title_bar.cpp and window_title_actions.cpp.
    void build_title_bar(const zo::window_settings& settings);
    void pack_title_label(const char* style_class, const std::string& title);
    void show_title(const std::string& title);
    void pack_title_button(const zo::window_title_row& row);
    const click_handler& click_handler_of(zo::title_button button);
    void call_back(const char* property);
    void on_exit_clicked();
    void on_hint_clicked();
    void on_photo_clicked();
    void on_minimize_clicked();
    void on_back_clicked();

    // Tool menu, window_tool_menu.cpp and window_tool_menu_keys.cpp.
    void on_menu_clicked();
    void open_tool_menu(GtkWidget* grid);
    void style_tool_menu(GtkWidget* menu);
    static void bind_tool_menu_buttons(GtkGrid* grid, GtkWidget* menu);
    bool on_tool_menu_left(const GdkEventCrossing& event);
    bool on_tool_menu_key(const GdkEventKey& event);

    // Drag, window_drag.cpp.
    void connect_drag();

    boost::atomic_shared_ptr<_zo_window_manager> manager_;  // its getter takes no lock
    unsigned links_ = 0;                                    // how often it was linked; on the loop

    // Set by init(); the title bar's signals call what these hold.
    std::array<title_action, zo::title_button_count> title_actions_{};
    std::function<GtkWidget*()> drag_source_;
    std::function<bool(GtkWidget*, GdkEventCrossing*)> tool_menu_left_;
    std::array<click_handler, zo::title_button_count> title_handlers_;  // of the buttons that it had so far

    // Touched only on the loop.
    zo::window_widgets widgets_;
    zo::window_part title_part_;
    zo::window_part ads_part_;
    zo::window_part content_part_;
    zo::layout_idle fitting_;
    zo::platform::withdrawal withdrawal_;
    bool popup_ = false;         // how the present tree was built
    bool managed_ = false;       // likewise
    bool kept_above_ = false;    // the present toplevel was told to stay above
    bool was_hidden_ = false;    // the present toplevel was hidden since it was last mapped
    bool placed_ = false;        // the present toplevel was on screen since it was last hidden
    bool moving_focus_ = false;  // GTK moves the focus inside the present toplevel
    bool unmaximizing_ = false;  // we asked the desktop to take maximising back
    bool centring_ = false;      // the un-maximised size may still be on its way
    int centred_width_ = 0;      // the size it was centred for
    int centred_height_ = 0;
    std::optional<std::pair<int, int>> asked_place_;  // moved there; the toplevel may not be there yet
    bool destroying_ = false;                         // _destroy is running: nothing opens the window again
};

namespace zo {

// For tests of what no exported function shows.
struct window_access {
    static window_widgets& widgets(_zo_window& window) { return window.widgets_; }
};

}  // namespace zo

template <typename Signature>
std::function<Signature> _zo_window::callback(const char* name, int line) {
    std::function<Signature> fn;
    zo::property_guard guard(*this, zo::window_source::file, line);
    guard.read(name, fn, {"&fn"});
    return fn;
}
