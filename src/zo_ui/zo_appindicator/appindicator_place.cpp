// SPDX-License-Identifier: MIT
#include <zo_ui/zo_appindicator/appindicator_place_p.hpp>

#include <zo_ui/zo_appindicator/appindicator_hearing_p.hpp>

#include <chrono>
#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

namespace {

enum class bus_state { unasked, asked, answered };

struct places {
    bus_state bus = bus_state::unasked;
    GDBusConnection* connection = nullptr;  // owned; null without a bus
    int living = 0;                         // icons, those that were let go too
    std::map<std::string, int> leaving;     // icons that were let go and live, by their place
    std::vector<std::function<bool()>> waiting;
};

// What the bus says to somebody who may have stopped waiting; then nobody keeps the connection.
struct bus_answer {
    bus_answer() = default;
    bus_answer(const bus_answer&) = delete;
    bus_answer& operator=(const bus_answer&) = delete;
    ~bus_answer() { g_clear_object(&connection); }

    std::mutex mutex;
    std::condition_variable arrival;
    bool here = false;
    GDBusConnection* connection = nullptr;  // owned; null without a bus
};

places& all() {
    static auto& instance = *new places;  // never destroyed: an icon may leave while the process does
    return instance;
}

// What the indicator library takes on the bus for a name.
std::string place_of(std::string name) {
    for (char& c : name)
        if (!g_ascii_isalnum(c)) c = '_';
    return name;
}

// True when one of them wants its place still.
bool wake_waiting() {
    bool wanted = false;
    for (const auto& then : std::exchange(all().waiting, {})) wanted = then() || wanted;
    return wanted;
}

// Without a bus the icon is made all the same: the indicator library says what is wrong.
void take_connection(GDBusConnection* connection) {
    all().connection = connection;
    all().bus = bus_state::answered;
}

// Mostly too late: then the one who waited for the bus has the connection already, or nobody wants it.
void on_bus(GObject*, GAsyncResult* result, gpointer) {
    GDBusConnection* connection = g_bus_get_finish(result, nullptr);
    if (all().bus != bus_state::asked) {
        g_clear_object(&connection);
        return;
    }
    take_connection(connection);
    if (!wake_waiting()) zo::leave_unused_bus();
}

// The connection belongs to the context in which it is asked for first, and tells its end there: so that is
// the loop's. Turning the loop from here would run tasks within a task; another thread waits for the same
// connection instead, and a bus that is there answers at once.
void ask_bus() {
    constexpr std::chrono::milliseconds patience(200);
    all().bus = bus_state::asked;
    g_bus_get(G_BUS_TYPE_SESSION, nullptr, on_bus, nullptr);
    const auto answer = std::make_shared<bus_answer>();
    std::thread([answer] {
        GDBusConnection* const connection = g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr);
        const std::lock_guard lock(answer->mutex);
        answer->connection = connection;
        answer->here = true;
        answer->arrival.notify_one();
    }).detach();
    std::unique_lock lock(answer->mutex);
    if (answer->arrival.wait_for(lock, patience, [&] { return answer->here; }))
        take_connection(std::exchange(answer->connection, nullptr));
}

void on_icon_left(gpointer data, GObject*) {
    const std::unique_ptr<std::string> taken(static_cast<std::string*>(data));
    const auto place = all().leaving.find(*taken);
    if (place != all().leaving.end() && --place->second == 0) all().leaving.erase(place);
    --all().living;
    zo::leave_unused_bus();
    wake_waiting();
}

}  // namespace

bool zo::must_wait_for_place(const std::string& name, std::function<bool()> then) {
    if (all().bus == bus_state::unasked) ask_bus();
    if (all().bus == bus_state::answered && !all().leaving.count(place_of(name))) return false;
    all().waiting.push_back(std::move(then));
    return true;
}

void zo::leave_unused_bus() {
    if (all().living > 0 || all().bus != bus_state::answered) return;
    all().bus = bus_state::unasked;
    g_clear_object(&all().connection);
}

AppIndicator* zo::new_icon(const std::string& name, const std::string& icon, GtkMenu* menu) {
    std::optional<hearing> hears;
    if (all().connection) hears.emplace();
    AppIndicator* const made =
        app_indicator_new(name.c_str(), icon.c_str(), APP_INDICATOR_CATEGORY_APPLICATION_STATUS);
    app_indicator_set_menu(made, menu);
    if (hears) hears->belongs_to(G_OBJECT(made));
    ++all().living;
    g_object_weak_ref(G_OBJECT(made), on_icon_left, new std::string(place_of(name)));
    return made;
}

void zo::let_icon_go(AppIndicator* icon) {
    ++all().leaving[place_of(app_indicator_get_id(icon))];
    app_indicator_set_status(icon, APP_INDICATOR_STATUS_PASSIVE);
    g_object_unref(icon);
}
