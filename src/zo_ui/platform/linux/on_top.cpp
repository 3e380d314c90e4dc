// SPDX-License-Identifier: MIT
// Window managers leave popups alone, and some put new windows above them. What tells of it is the list of
// windows in stacking order that they keep at the root, and what the server tells of the windows there. That
// a popup is covered the server does not tell of one that is translucent.
#include <zo_ui/platform/linux/on_top_p.hpp>

#include <zo_ui/platform/linux/connection_p.hpp>

#include <X11/Xmu/WinUtil.h>
#include <gdk/gdkx.h>
#include <algorithm>
#include <utility>
#include <vector>

using zo::platform::x_memory;

namespace {

// How often others may come back on top within a second.
constexpr int patience = 50;

std::vector<GtkWidget*>& kept() {
    static auto& popups = *new std::vector<GtkWidget*>;
    return popups;
}

bool has_state(Display* display, Window window) {
    const Atom atom = gdk_x11_get_xatom_by_name("WM_STATE");
    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char* value = nullptr;
    const int result = XGetWindowProperty(display, window, atom, 0, 0, False, AnyPropertyType, &type, &format,
                                          &count, &rest, &value);
    const x_memory<unsigned char> owned(value);
    return result == Success && type != None;
}

// One that a window manager looks after, or its frame, or any that is no popup. Frames are popups, too: they
// are told by the client in them.
bool is_ordinary(Display* display, Window window) {
    XWindowAttributes facts{};
    if (!XGetWindowAttributes(display, window, &facts)) return false;
    if (facts.c_class == InputOnly || facts.map_state != IsViewable) return false;
    if (!facts.override_redirect) return true;
    return has_state(display, window) || XmuClientWindow(display, window) != window;
}

// The windows on the screen from the lowest to the highest.
std::vector<Window> stack_of(Display* display) {
    Window root = 0;
    Window parent = 0;
    Window* children = nullptr;
    unsigned count = 0;
    if (!XQueryTree(display, DefaultRootWindow(display), &root, &parent, &children, &count)) return {};
    const x_memory<Window> owned(children);
    return {children, children + count};
}

// Sorted.
std::vector<Window> mapped_popups() {
    std::vector<Window> windows;
    for (GtkWidget* popup : kept())
        if (gtk_widget_get_mapped(popup))
            windows.push_back(gdk_x11_window_get_xid(gtk_widget_get_window(popup)));
    std::sort(windows.begin(), windows.end());
    return windows;
}

// Programs that all want to be on top would not come to an end.
bool is_fight() {
    static int times = 0;
    static gint64 since = 0;
    const gint64 now = g_get_monotonic_time();
    if (now - since > G_TIME_SPAN_SECOND) {
        since = now;
        times = 0;
    }
    return ++times > patience;
}

// Those that are covered keep their order.
void raise_above(Display* display, Window window, const std::vector<Window>& covered) {
    for (auto popup = covered.rbegin(); popup != covered.rend(); ++popup) {
        XWindowChanges place{};
        place.sibling = window;
        place.stack_mode = Above;
        XConfigureWindow(display, *popup, CWSibling | CWStackMode, &place);
    }
}

void restack_all();

// The other one may have come to rest by then.
guint retry = 0;

void try_later() {
    const auto on_time = [](gpointer) -> gboolean {
        retry = 0;
        restack_all();
        return G_SOURCE_REMOVE;
    };
    if (retry == 0) retry = g_timeout_add_seconds(1, on_time, nullptr);
}

void restack(Display* display) {
    const std::vector<Window> popups = mapped_popups();
    if (popups.empty()) return;
    const std::vector<Window> stack = stack_of(display);
    const auto is_ours = [&](Window window) {
        return std::binary_search(popups.begin(), popups.end(), window);
    };
    const auto lowest = std::find_if(stack.begin(), stack.end(), is_ours);
    for (auto window = stack.end(); window != lowest && --window != lowest;) {
        if (is_ours(*window) || !is_ordinary(display, *window)) continue;
        std::vector<Window> covered;
        std::copy_if(lowest, window, std::back_inserter(covered), is_ours);
        if (covered.empty()) return;
        return is_fight() ? try_later() : raise_above(display, *window, covered);
    }
}

// Windows may go meanwhile.
void restack_all() {
    GdkDisplay* const display = gdk_display_get_default();
    gdk_x11_display_error_trap_push(display);
    restack(gdk_x11_display_get_xdisplay(display));
    gdk_x11_display_error_trap_pop_ignored(display);
}

// Frames count, too: fluxbox raises them without changing its list. One that is only moved, again and again
// while somebody drags it, keeps what it is above.
bool may_be_higher(const XConfigureEvent& event) {
    static XConfigureEvent last{};
    const XConfigureEvent before = std::exchange(last, event);
    const bool is_moved = before.x != event.x || before.y != event.y || before.width != event.width ||
                          before.height != event.height;
    const bool is_same = before.window == event.window && before.above == event.above;
    return !(is_same && is_moved);
}

bool is_kept(Window window) {
    return std::any_of(kept().begin(), kept().end(), [window](GtkWidget* popup) {
        GdkWindow* const native = gtk_widget_get_window(popup);
        return native && gdk_x11_window_get_xid(native) == window;
    });
}

bool changes_stack(const XEvent& x) {
    if (x.type == MapNotify) return !is_kept(x.xmap.window);
    if (x.type == ConfigureNotify) return !is_kept(x.xconfigure.window) && may_be_higher(x.xconfigure);
    return x.type == PropertyNotify &&
           x.xproperty.atom == gdk_x11_get_xatom_by_name("_NET_CLIENT_LIST_STACKING");
}

GdkFilterReturn on_event(GdkXEvent* event, GdkEvent*, gpointer) {
    const XEvent& x = *static_cast<XEvent*>(event);
    if (x.xany.window == gdk_x11_get_default_root_xwindow() && changes_stack(x)) restack_all();
    return GDK_FILTER_CONTINUE;
}

// What the desktop tells of its windows is asked for as long as there is a popup.
int added_events = 0;

void listen(GdkWindow* root) {
    const int before = gdk_window_get_events(root);
    const int wanted = before | GDK_PROPERTY_CHANGE_MASK | GDK_SUBSTRUCTURE_MASK;
    added_events = wanted & ~before;
    gdk_window_set_events(root, static_cast<GdkEventMask>(wanted));
    gdk_window_add_filter(nullptr, on_event, nullptr);
}

void stop_listening(GdkWindow* root) {
    gdk_window_remove_filter(nullptr, on_event, nullptr);
    gdk_window_set_events(root, static_cast<GdkEventMask>(gdk_window_get_events(root) & ~added_events));
    if (const guint waiting = std::exchange(retry, 0)) g_source_remove(waiting);
}

GdkWindow* root_of(GtkWidget* popup) { return gdk_screen_get_root_window(gtk_widget_get_screen(popup)); }

void on_destroy(GtkWidget* popup, gpointer) {
    std::erase(kept(), popup);
    if (kept().empty()) stop_listening(root_of(popup));
}

}  // namespace

void zo::platform::keep_on_top(GtkWidget* popup) {
    if (!GDK_IS_X11_DISPLAY(gtk_widget_get_display(popup))) return;
    if (kept().empty()) listen(root_of(popup));
    kept().push_back(popup);
    g_signal_connect(popup, "destroy", G_CALLBACK(on_destroy), nullptr);
}
