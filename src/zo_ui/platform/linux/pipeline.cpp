// SPDX-License-Identifier: MIT
#include <zo_ui/platform/linux/pipeline_p.hpp>

#include <zo_ui/platform/linux/x_errors_p.hpp>

#include <X11/Xlib-xcb.h>
#include <xcb/xcbext.h>

#include <iterator>

namespace zo::platform {

awaited::~awaited() {
    if (connection_) xcb_discard_reply(connection_, sequence_);
}

void* awaited::wait() { return xcb_wait_for_reply(std::exchange(connection_, nullptr), sequence_, nullptr); }

focus_request::focus_request(Display* display)
    : reply_(XGetXCBConnection(display), xcb_get_input_focus(XGetXCBConnection(display)).sequence) {}

Window focus_request::answer() {
    const auto reply = reply_.answer<xcb_get_input_focus_reply_t>();
    return reply ? reply->focus : 0;
}

place_request::place_request(Display* display, Window window)
    : reply_(XGetXCBConnection(display),
             xcb_query_tree(XGetXCBConnection(display), static_cast<xcb_window_t>(window)).sequence) {}

x_place place_request::answer() {
    const auto reply = reply_.answer<xcb_query_tree_reply_t>();
    if (!reply) return {};
    const xcb_window_t* children = xcb_query_tree_children(reply.get());
    return {reply->root, reply->parent, {children, children + xcb_query_tree_children_length(reply.get())}};
}

property_request::property_request(Display* display, Window window, Atom property, Atom type,
                                   unsigned int length)
    : reply_(XGetXCBConnection(display),
             xcb_get_property(XGetXCBConnection(display), false, static_cast<xcb_window_t>(window),
                              static_cast<xcb_atom_t>(property), static_cast<xcb_atom_t>(type), 0, length)
                 .sequence) {}

x_property property_request::answer() {
    const auto reply = reply_.answer<xcb_get_property_reply_t>();
    if (!reply) return {};
    const char* value = static_cast<const char*>(xcb_get_property_value(reply.get()));
    const int size = xcb_get_property_value_length(reply.get());
    return {reply->type, reply->format, {value, value + size}};
}

known_atoms::known_atoms(Display* display) {
    // The last two are what Xlib wants to know when it converts a name.
    const char* names[] = {"WM_STATE", "_NET_WM_PID", "UTF8_STRING", "COMPOUND_TEXT"};
    Atom atoms[std::size(names)] = {};
    const error_trap trap(display);
    XInternAtoms(display, const_cast<char**>(names), std::size(names), True, atoms);
    wm_state = atoms[0];
    net_wm_pid = atoms[1];
}

}  // namespace zo::platform
