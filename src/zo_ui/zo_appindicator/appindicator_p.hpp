// SPDX-License-Identifier: MIT
// The class behind zo_appindicator_ptr, and the record of what is on screen.
#pragma once

#include <zo_core/zo_property_access_p.hpp>
#include <zo_ui/zo_appindicator.hpp>
#include <zo_ui/zo_appindicator/appindicator_source_p.hpp>

#include <gtk/gtk.h>
#include <libayatana-appindicator/app-indicator.h>
#include <map>
#include <utility>

// What an indicator shows and does, in its property "indicator" until it is destroyed. Touched only on the
// loop.
class indicator_data {
  public:
    using callback_function = std::function<void(zo_appindicator_ptr, std::string&)>;

    indicator_data() = default;
    indicator_data(const indicator_data&) = delete;
    indicator_data& operator=(const indicator_data&) = delete;

    // Of an indicator that was let go without being destroyed, perhaps by another thread: what it shows is
    // taken away on the loop.
    virtual ~indicator_data();

    // Takes the icon and its menu away; with the toolkit going away itself they are only forgotten.
    void release();

    AppIndicator* indicator = nullptr;  // owned; null until shown
    GtkWidget* menu = nullptr;          // owned; null until shown, there before an icon that has to wait
    std::map<std::string, std::pair<std::string, callback_function>> actions;  // name to label and callback
};

using indicator_data_ptr = boost::shared_ptr<indicator_data>;

namespace zo {

// What the show task reads.
struct icon_texts {
    std::string icon;
    std::string name;
    std::string title;
    std::string label;
};

template <>
struct type_text<indicator_data_ptr> {
    static constexpr const char* value = "indicator_data_ptr";
};

}  // namespace zo

class _zo_appindicator : public _zo_object {
  public:
    using callback_function = indicator_data::callback_function;

    _zo_appindicator(std::string name, std::string title, std::string icon);

    // The virtual operations continue those of the base. Their order is fixed: programs were built against
    // it.

    ~_zo_appindicator() override;
    zo_object_ptr to_object() override;
    std::string get_type() override;
    void destroy(std::string reason, int line) override;
    std::string describe() override;

    // Posting: any thread.
    void add_action(std::string name, std::string label, callback_function callback);
    void show();

  private:
    zo_appindicator_ptr handle();

    // The rest runs on the loop, appindicator_menu.cpp.

    // Empty once the indicator is destroyed.
    indicator_data_ptr record(int line);

    void add_action_now(const std::string& name, std::string& label, callback_function& callback);
    void show_now();
    void show_after_waiting(const zo::icon_texts& texts);
    bool must_wait(const zo::icon_texts& texts);
    void show_icon(indicator_data& iw, const zo::icon_texts& texts);
    void destroy_now();
    GtkWidget* new_menu(const indicator_data& iw);
    void on_item_activated(GtkMenuItem* item);
};
