// SPDX-License-Identifier: MIT
#include <zo_ui/zo_appindicator/appindicator_place_p.hpp>

#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace {

enum class bus_state { unasked, asked, answered };

struct places {
    bus_state bus = bus_state::unasked;
    GDBusConnection* connection = nullptr;  // owned; null without a bus
    int living = 0;                         // icons, those that were let go too
    std::map<std::string, int> leaving;     // icons that were let go and live, by name
    std::vector<std::function<void()>> waiting;
};

places& all() {
    static auto& instance = *new places;  // never destroyed: an icon may leave while the process does
    return instance;
}

void wake_waiting() {
    for (const auto& then : std::exchange(all().waiting, {})) then();
}

// Without a bus the icon is made all the same: the indicator library says what is wrong.
void on_bus(GObject*, GAsyncResult* result, gpointer) {
    all().connection = g_bus_get_finish(result, nullptr);
    all().bus = bus_state::answered;
    wake_waiting();
}

// Another question of the same kind, answered before the loop goes on: behind a few of them the one that the
// indicator library has just asked is answered, too. They need no word from the bus, and so cannot hang.
void let_connection_arrive() {
    constexpr int questions = 8;
    GMainContext* const apart = g_main_context_new();
    g_main_context_push_thread_default(apart);
    for (int i = 0; i < questions; ++i) {
        bool answered = false;
        const auto on_answer = [](GObject*, GAsyncResult* result, gpointer data) {
            GDBusConnection* same = g_bus_get_finish(result, nullptr);
            g_clear_object(&same);
            *static_cast<bool*>(data) = true;
        };
        g_bus_get(G_BUS_TYPE_SESSION, nullptr, on_answer, &answered);
        while (!answered) g_main_context_iteration(apart, TRUE);
    }
    g_main_context_pop_thread_default(apart);
    g_main_context_unref(apart);
}

void on_icon_left(gpointer data, GObject*) {
    const std::unique_ptr<std::string> name(static_cast<std::string*>(data));
    const auto place = all().leaving.find(*name);
    if (place != all().leaving.end() && --place->second == 0) all().leaving.erase(place);
    if (--all().living == 0) {
        all().bus = bus_state::unasked;
        g_clear_object(&all().connection);
    }
    wake_waiting();
}

}  // namespace

bool zo::must_wait_for_place(const std::string& name, std::function<void()> then) {
    if (all().bus == bus_state::answered && !all().leaving.count(name)) return false;
    all().waiting.push_back(std::move(then));
    if (all().bus == bus_state::unasked) {
        all().bus = bus_state::asked;
        g_bus_get(G_BUS_TYPE_SESSION, nullptr, on_bus, nullptr);
    }
    return true;
}

AppIndicator* zo::new_icon(const std::string& name, const std::string& icon) {
    AppIndicator* const made =
        app_indicator_new(name.c_str(), icon.c_str(), APP_INDICATOR_CATEGORY_APPLICATION_STATUS);
    if (all().connection) let_connection_arrive();
    ++all().living;
    g_object_weak_ref(G_OBJECT(made), on_icon_left, new std::string(name));
    return made;
}

void zo::let_icon_go(AppIndicator* icon) {
    ++all().leaving[app_indicator_get_id(icon)];
    app_indicator_set_status(icon, APP_INDICATOR_STATUS_PASSIVE);
    g_object_unref(icon);
}
