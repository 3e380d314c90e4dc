// SPDX-License-Identifier: MIT
// The window manager's answer to a showing is that it sets WM_STATE and maps the window; to a hiding, that it
// deletes WM_STATE or sets it to WithdrawnState.
#include <zo_ui/platform/linux/withdrawal_p.hpp>

#include <X11/Xutil.h>
#include <gdk/gdkx.h>
#include <poll.h>
#include <utility>

namespace {

constexpr gint64 patience = 500 * G_TIME_SPAN_MILLISECOND;

// One that did not answer in time is not waited for again, before it answers something.
bool is_silent = false;

Display* display_of(GdkWindow* native) {
    return gdk_x11_display_get_xdisplay(gdk_window_get_display(native));
}

Atom state_atom(GdkWindow* native) {
    return gdk_x11_get_xatom_by_name_for_display(gdk_window_get_display(native), "WM_STATE");
}

// The value of WM_STATE, -1 without one.
long state_of(GdkWindow* native) {
    const Atom atom = state_atom(native);
    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char* value = nullptr;
    GdkDisplay* const display = gdk_window_get_display(native);
    gdk_x11_display_error_trap_push(display);
    XGetWindowProperty(display_of(native), gdk_x11_window_get_xid(native), atom, 0, 1, False, atom, &type,
                       &format, &count, &rest, &value);
    gdk_x11_display_error_trap_pop_ignored(display);
    const long state = count > 0 && format == 32 ? *reinterpret_cast<long*>(value) : -1;
    if (value) XFree(value);
    return state;
}

struct queued_answer {
    zo::platform::window_answer& answer;
    GdkWindow* native;
};

// The events stay in the queue.
Bool note_queued(Display*, XEvent* event, XPointer data) {
    const auto& queued = *reinterpret_cast<queued_answer*>(data);
    queued.answer.note(event, queued.native);
    return False;
}

// False when the deadline has passed. The queue must have been read to its end before.
bool wait_for_events(Display* display, gint64 deadline) {
    const gint64 left = (deadline - g_get_monotonic_time()) / G_TIME_SPAN_MILLISECOND;
    pollfd connection{ConnectionNumber(display), POLLIN, 0};
    return left > 0 && poll(&connection, 1, static_cast<int>(left)) != 0;
}

bool is_state_change(const XEvent& x, GdkWindow* native) {
    return x.type == PropertyNotify && x.xproperty.window == gdk_x11_window_get_xid(native) &&
           x.xproperty.atom == state_atom(native);
}

}  // namespace

void zo::platform::window_answer::note(const GdkXEvent* event, GdkWindow* native) {
    const XEvent& x = *static_cast<const XEvent*>(event);
    if (x.xany.serial < since) return;
    mapped |= x.type == MapNotify && x.xmap.window == gdk_x11_window_get_xid(native);
    if (!is_state_change(x, native)) return;
    deleted = x.xproperty.state == PropertyDelete;
    set |= !deleted;
}

void zo::platform::withdrawal::before_hide(GtkWidget* toplevel) {
    GdkWindow* const native = gtk_widget_get_window(toplevel);
    if (!native || !gtk_widget_get_mapped(toplevel)) return;
    watch(native);
    if (native != native_) return;
    // One that let the window go already, since somebody else unmapped it, has nothing to answer.
    if (answer_.deleted && unanswered_ == 0) return;
    if (!answer_.is_to_showing() && !is_silent && manager_runs() && state_of(native) <= WithdrawnState)
        await(&window_answer::is_to_showing);
    begin();
    hidden_ = true;
    ++unanswered_;
}

void zo::platform::withdrawal::before_show(GtkWidget* toplevel) {
    GdkWindow* const native = gtk_widget_get_window(toplevel);
    if (!native || native != native_) return forget();
    if (hidden_ && !manager_runs()) unanswered_ = 0;  // nobody is there to answer
    const bool is_pending = hidden_ && unanswered_ > 0 && !is_silent;
    if (is_pending && (state_of(native) == WithdrawnState || await(&window_answer::is_to_hiding)))
        unanswered_ = 0;
    begin();
    hidden_ = false;
}

void zo::platform::withdrawal::after_show(GtkWidget* toplevel) {
    if (GdkWindow* const native = gtk_widget_get_window(toplevel)) watch(native);
}

void zo::platform::withdrawal::begin() { answer_ = {NextRequest(display_of(native_))}; }

void zo::platform::withdrawal::forget() {
    if (native_) {
        gdk_window_remove_filter(native_, on_event, this);
        g_object_unref(std::exchange(native_, nullptr));
    }
    answer_ = {};
    hidden_ = false;
    unanswered_ = 0;
}

void zo::platform::withdrawal::watch(GdkWindow* native) {
    if (native == native_ || !GDK_IS_X11_WINDOW(native)) return;
    forget();
    native_ = GDK_WINDOW(g_object_ref(native));
    gdk_window_add_filter(native_, on_event, this);
}

GdkFilterReturn zo::platform::withdrawal::on_event(GdkXEvent* event, GdkEvent*, gpointer self) {
    auto& followed = *static_cast<withdrawal*>(self);
    const XEvent& x = *static_cast<XEvent*>(event);
    followed.answer_.note(event, followed.native_);
    if (is_state_change(x, followed.native_) && x.xany.serial >= followed.answer_.since) followed.on_state();
    return GDK_FILTER_CONTINUE;
}

// A window manager that was too slow answers the hiding when the showing is already on its way, and may have
// lost that: the window is shown once more.
void zo::platform::withdrawal::on_state() {
    is_silent = false;
    if (unanswered_ == 0) return;
    if (hidden_) {
        unanswered_ = 0;
        return;
    }
    if (!std::exchange(answer_.deleted, false) && state_of(native_) != WithdrawnState) return;
    --unanswered_;
    if (gdk_window_is_visible(native_)) gdk_window_show_unraised(native_);
}

bool zo::platform::withdrawal::manager_runs() const {
    const GdkAtom hint = gdk_atom_intern_static_string("_NET_WM_STATE");
    return gdk_x11_screen_supports_net_wm_hint(gdk_window_get_screen(native_), hint);
}

// Looks into the queue without taking anything out of it.
bool zo::platform::withdrawal::await(bool (window_answer::*complete)() const) {
    Display* const display = display_of(native_);
    const gint64 deadline = g_get_monotonic_time() + patience;
    for (;;) {
        window_answer answer = answer_;
        queued_answer queued{answer, native_};
        XEvent none;
        XCheckIfEvent(display, &none, note_queued, reinterpret_cast<XPointer>(&queued));
        if ((answer.*complete)()) return true;
        if (!wait_for_events(display, deadline)) break;
    }
    is_silent = true;
    return false;
}
