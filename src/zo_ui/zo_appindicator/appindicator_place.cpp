// SPDX-License-Identifier: MIT
#include <zo_ui/zo_appindicator/appindicator_place_p.hpp>

#include <glib-unix.h>
#include <chrono>
#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace {

enum class bus_state { unasked, asked, answered };

struct places {
    bus_state bus = bus_state::unasked;
    GDBusConnection* connection = nullptr;  // owned; null without a bus
    int living = 0;                         // icons, those that were let go too
    std::map<std::string, int> leaving;     // icons that were let go and live, by name
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

// Where icons hear of the bus. The indicator library asks for it twice, for the tray's host and for itself,
// and is lost for good when it finds the host before its own answer has come. Threads answer, in any order:
// so it hears of both in a context apart, which the loop turns only when all answers lie there.
struct hearing {
    GMainContext* context = nullptr;
    guint last_answer = 0;  // the context's number of it, counted up; 0 when there is nothing to wait for
};

constexpr guint questions = 2;

hearing& ear() {
    static hearing
        instance;  // its context lives as long as the process: what icons asked may be answered later
    return instance;
}

// Looks what lies in the context, and leaves it there. Returns the descriptor that tells when more comes.
int look_into(GMainContext* context) {
    gint priority = 0;
    gint timeout = 0;
    GPollFD descriptor{};
    g_main_context_acquire(context);
    g_main_context_prepare(context, &priority);
    g_main_context_query(context, G_MAXINT, &timeout, &descriptor, 1);
    g_poll(&descriptor, 1, 0);
    g_main_context_check(context, G_MAXINT, &descriptor, 1);
    g_main_context_release(context);
    return descriptor.fd;
}

gboolean on_heard(gint, GIOCondition, gpointer) {
    GMainContext* const context = ear().context;
    look_into(context);
    if (ear().last_answer && g_main_context_find_source_by_id(context, ear().last_answer))
        ear().last_answer = 0;
    while (!ear().last_answer && g_main_context_iteration(context, FALSE)) {
    }
    return G_SOURCE_CONTINUE;
}

// What is attached to a context is numbered.
guint newest_number(GMainContext* context) {
    GSource* const source = g_idle_source_new();
    const guint number = g_source_attach(source, context);
    g_source_destroy(source);
    g_source_unref(source);
    return number;
}

// The context for what an icon asks while it is made.
GMainContext* expect_answers() {
    if (!ear().context) {
        ear().context = g_main_context_new_with_flags(G_MAIN_CONTEXT_FLAGS_OWNERLESS_POLLING);
        g_unix_fd_add(look_into(ear().context), G_IO_IN, on_heard, nullptr);
    }
    if (!ear().last_answer) ear().last_answer = newest_number(ear().context);
    ear().last_answer += questions;
    return ear().context;
}

void on_icon_left(gpointer data, GObject*) {
    const std::unique_ptr<std::string> name(static_cast<std::string*>(data));
    const auto place = all().leaving.find(*name);
    if (place != all().leaving.end() && --place->second == 0) all().leaving.erase(place);
    --all().living;
    zo::leave_unused_bus();
    wake_waiting();
}

}  // namespace

bool zo::must_wait_for_place(const std::string& name, std::function<bool()> then) {
    if (all().bus == bus_state::unasked) ask_bus();
    if (all().bus == bus_state::answered && !all().leaving.count(name)) return false;
    all().waiting.push_back(std::move(then));
    return true;
}

void zo::leave_unused_bus() {
    if (all().living > 0 || all().bus != bus_state::answered) return;
    all().bus = bus_state::unasked;
    g_clear_object(&all().connection);
}

AppIndicator* zo::new_icon(const std::string& name, const std::string& icon) {
    GMainContext* const apart = all().connection ? expect_answers() : nullptr;
    if (apart) g_main_context_push_thread_default(apart);
    AppIndicator* const made =
        app_indicator_new(name.c_str(), icon.c_str(), APP_INDICATOR_CATEGORY_APPLICATION_STATUS);
    if (apart) g_main_context_pop_thread_default(apart);
    ++all().living;
    g_object_weak_ref(G_OBJECT(made), on_icon_left, new std::string(name));
    return made;
}

void zo::let_icon_go(AppIndicator* icon) {
    ++all().leaving[app_indicator_get_id(icon)];
    app_indicator_set_status(icon, APP_INDICATOR_STATUS_PASSIVE);
    g_object_unref(icon);
}
