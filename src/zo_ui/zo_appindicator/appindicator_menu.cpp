// SPDX-License-Identifier: MIT
// On the loop: the actions, the icon with its menu, and their end.
#include <zo_ui/zo_appindicator/appindicator_p.hpp>

#include <zo_core/zo_diagnostics.hpp>
#include <zo_core/zo_service.hpp>
#include <zo_ui/toolkit/style_p.hpp>
#include <zo_ui/zo_appindicator/appindicator_place_p.hpp>
#include <zo_ui/zo_ui_connect.hpp>

#include <boost/weak_ptr.hpp>
#include <memory>

namespace source = zo::appindicator_source;

namespace {

struct release_menu {
    void operator()(GtkWidget* menu) const { g_object_unref(menu); }
};

// The toolkit that is going away itself takes what is left along. The menu goes even where somebody else
// still holds the icon, since its items hold the indicator.
void take_down(AppIndicator* indicator, GtkWidget* menu) {
    if (zo_system_service_done()) return;
    const std::unique_ptr<GtkWidget, release_menu> owned(menu);
    if (indicator) zo::let_icon_go(indicator);
    gtk_widget_destroy(menu);
}

}  // namespace

indicator_data::~indicator_data() {
    if (!menu) return;
    zo_system_service_exec([indicator = indicator, menu = menu] { take_down(indicator, menu); }, source::file,
                           source::release);
}

void indicator_data::release() {
    AppIndicator* const icon = std::exchange(indicator, nullptr);
    if (GtkWidget* const its_menu = std::exchange(menu, nullptr)) take_down(icon, its_menu);
}

indicator_data_ptr _zo_appindicator::record(int line) {
    indicator_data_ptr iw;
    zo::property_guard guard(*this, source::file, line);
    guard.read("indicator", iw, {"&iw"});
    return iw;
}

void _zo_appindicator::add_action_now(const std::string& name, std::string& label,
                                      callback_function& callback) {
    const indicator_data_ptr iw = record(source::add_task);
    if (!iw) return;
    // A replaced callback leaves with the task.
    const auto [place, added] = iw->actions.try_emplace(name);
    if (added) place->second.first = std::move(label);
    place->second.second.swap(callback);
}

// The menu shows the actions of this moment, even when the icon has to wait.
void _zo_appindicator::show_now() {
    const indicator_data_ptr iw = record(source::show_task_record);
    if (!iw || iw->menu) return;
    zo::icon_texts texts;
    {
        zo::property_guard guard(*this, source::file, source::show_task);
        guard.read("icon", texts.icon, {"&icon"});
        guard.read("name", texts.name, {"&name"});
        guard.read("title", texts.title, {"&title"});
        guard.read("label", texts.label, {"&label"});
    }
    for (std::string* text : {&texts.icon, &texts.name, &texts.title, &texts.label})
        *text = zo::readable(*text);
    if (texts.name.empty()) return;
    if (!gdk_display_get_default()) {
        zo_assertion_faild(false, "display != nullptr", texts.name, source::file, source::no_display);
        return;
    }
    if (must_wait(texts))
        iw->menu = new_menu(*iw);
    else
        show_icon(*iw, texts);
}

bool _zo_appindicator::must_wait(const zo::icon_texts& texts) {
    return zo::must_wait_for_place(texts.name, [weak = boost::weak_ptr<_zo_appindicator>(handle()), texts] {
        const zo_appindicator_ptr self = weak.lock();
        if (!self) return false;
        zo_system_service_exec([self, texts] { self->show_after_waiting(texts); }, source::file,
                               source::show);
        return true;
    });
}

void _zo_appindicator::show_after_waiting(const zo::icon_texts& texts) {
    const indicator_data_ptr iw = record(source::show_task_record);
    if (!iw)
        zo::leave_unused_bus();
    else if (!must_wait(texts))
        show_icon(*iw, texts);
}

void _zo_appindicator::show_icon(indicator_data& iw, const zo::icon_texts& texts) {
    const auto& [icon, name, title, label] = texts;
    if (!iw.menu) iw.menu = new_menu(iw);
    iw.indicator = zo::new_icon(name, icon, GTK_MENU(iw.menu));
    app_indicator_set_attention_icon(iw.indicator, icon.c_str());
    if (!title.empty()) app_indicator_set_title(iw.indicator, title.c_str());
    app_indicator_set_status(iw.indicator, APP_INDICATOR_STATUS_ACTIVE);
    if (!label.empty()) app_indicator_set_label(iw.indicator, label.c_str(), "guide");
}

// Every item lies in the same cell (test "EveryItemIsAttachedToTheSameCell"): hosts show the items in the
// order of attaching. The menu is the caller's.
GtkWidget* _zo_appindicator::new_menu(const indicator_data& iw) {
    GtkWidget* const menu = GTK_WIDGET(g_object_ref_sink(gtk_menu_new()));
    gtk_widget_show(menu);
    for (const auto& [name, action] : iw.actions) {
        GtkWidget* const item = gtk_menu_item_new_with_label(zo::readable(action.first).c_str());
        gtk_widget_set_name(item, name.c_str());
        zo_ui_connect_menuitem_click_signal(
            item, [self = handle()](GtkMenuItem* clicked) { self->on_item_activated(clicked); });
        gtk_widget_show(item);
        gtk_menu_attach(GTK_MENU(menu), item, 0, 1, 0, 1);
    }
    return menu;
}

// The callback is a copy: it may replace itself, or destroy the indicator in a nested loop.
void _zo_appindicator::on_item_activated(GtkMenuItem* item) {
    const indicator_data_ptr iw = record(source::item_clicked);
    if (!iw) return;
    const auto place = iw->actions.find(gtk_widget_get_name(GTK_WIDGET(item)));
    if (place == iw->actions.end()) return;
    std::string name = place->first;
    const callback_function callback = place->second.second;
    if (callback) callback(handle(), name);
}

void _zo_appindicator::destroy_now() {
    const zo_appindicator_ptr self = handle();
    const indicator_data_ptr iw = record(source::destroy_task);
    if (iw) iw->release();
    indicator_data_ptr none;
    {
        zo::property_guard guard(*this, source::file, source::destroy_task_end);
        guard.write("indicator", none, {"nullptr"});
    }
    if (is_reffed()) zo_object_unref(self);
}
