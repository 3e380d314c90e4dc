// SPDX-License-Identifier: MIT
#include "faults/queries.hpp"

#include <zo_ui/platform/linux.hpp>

#include <X11/Xlib.h>
#include <unistd.h>

namespace {

// Counts in place of the handler that was there.
class counted_errors {
  public:
    counted_errors() : before_(XSetErrorHandler(count_one)) { count = 0; }
    ~counted_errors() { XSetErrorHandler(before_); }
    counted_errors(const counted_errors&) = delete;
    counted_errors& operator=(const counted_errors&) = delete;

    static inline int count = 0;

  private:
    static int count_one(Display*, XErrorEvent*) { return ++count, 0; }

    XErrorHandler before_;
};

std::string in_words(int first, int wrong) {
    return std::to_string(first) + ", wrong " + std::to_string(wrong) + ", errors " +
           std::to_string(counted_errors::count);
}

// What is sent or unmapped is so, whether anybody is there or not; what is read is not there.
int wrong_about(Display* display, Window id) {
    std::string name = "kept";
    std::string res_name = "kept";
    std::string res_class = "kept";
    int wrong = get_top_window(display, id) != 0;
    wrong += get_named_window(display, id) != 0;
    wrong += get_window_class(display, id, res_name, res_class);
    wrong += get_window_name(display, id, name);
    wrong += getWindowPid(display, id) != 0;
    wrong += name != "kept" || res_name != "kept" || res_class != "kept";
    wrong += setActiveWindow(display, id) == 0;
    wrong += !setActiveWindow(id);
    wrong += !HideWindow(id);
    return wrong;
}

struct active_answer {
    unsigned long id = 0;
    std::string title, name, res_class;
    int pid = 0;
};

// Nothing but the one window of the other process, or this one's, or the id of none.
bool is_torn(const active_answer& seen, bool answered, int other) {
    if (!answered) return seen.id != 0;
    const bool is_other =
        seen.title == "short-lived" && seen.name == "short" && seen.res_class == "Short" && seen.pid == other;
    const bool is_own = seen.title == "Fault" && seen.pid == getpid() && seen.name == "fault_application" &&
                        seen.res_class == "Fault_application";
    return seen.id == 0 || !(is_other || is_own);
}

}  // namespace

std::string query_dead(std::istream& ids) {
    const counted_errors errors;
    Display* const display = open_display();
    int count = 0;
    int wrong = 0;
    for (unsigned long id = 0; ids >> id; ++count) wrong += wrong_about(display, id);
    XSync(display, False);
    XCloseDisplay(display);
    return "asked about " + in_words(count, wrong);
}

std::string query_active(std::istream& words) {
    const counted_errors errors;
    int times = 0;
    int other = 0;
    int answered = 0;
    int torn = 0;
    words >> times >> other;
    for (int i = 0; i < times; ++i) {
        active_answer seen;
        const bool is_answer = getActiveWindowInfo(seen.id, seen.title, seen.name, seen.res_class, seen.pid);
        answered += is_answer;
        torn += is_torn(seen, is_answer, other);
    }
    return "answered " + in_words(answered, torn);
}
