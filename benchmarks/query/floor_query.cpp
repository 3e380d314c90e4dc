// SPDX-License-Identifier: MIT
// The same search by XCB, with requests sent together where they do not need each other's answers. Only a
// name that needs no conversion is understood.
#include "query.hpp"

#include <xcb/xcb.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

namespace {

struct free_reply {
    void operator()(void* reply) const { std::free(reply); }
};
template <typename Reply>
using held = std::unique_ptr<Reply, free_reply>;

using property = held<xcb_get_property_reply_t>;

xcb_intern_atom_cookie_t intern(xcb_connection_t* connection, const char* name) {
    return xcb_intern_atom(connection, true, static_cast<std::uint16_t>(std::strlen(name)), name);
}

xcb_atom_t atom(xcb_connection_t* connection, xcb_intern_atom_cookie_t cookie) {
    const held<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

held<xcb_query_tree_reply_t> tree(xcb_connection_t* connection, xcb_window_t window) {
    return held<xcb_query_tree_reply_t>(
        xcb_query_tree_reply(connection, xcb_query_tree(connection, window), nullptr));
}

held<xcb_query_tree_reply_t> tree_of_top(xcb_connection_t* connection, xcb_window_t window) {
    auto reply = tree(connection, window);
    while (reply && reply->parent != reply->root) reply = tree(connection, reply->parent);
    return reply;
}

// The first of the windows with the state, or below them, each level asked for at once.
xcb_window_t client_in(xcb_connection_t* connection, xcb_atom_t state, const xcb_window_t* windows,
                       int count) {
    std::vector<xcb_get_property_cookie_t> states;
    for (int i = 0; i < count; ++i)
        states.push_back(
            xcb_get_property(connection, false, windows[i], state, XCB_GET_PROPERTY_TYPE_ANY, 0, 0));
    xcb_window_t found = 0;
    for (int i = 0; i < count; ++i) {
        const property reply(
            xcb_get_property_reply(connection, states[static_cast<std::size_t>(i)], nullptr));
        if (!found && reply && reply->type != XCB_ATOM_NONE) found = windows[i];
    }
    for (int i = 0; i < count && !found; ++i)
        if (const auto below = tree(connection, windows[i]))
            found = client_in(connection, state, xcb_query_tree_children(below.get()),
                              xcb_query_tree_children_length(below.get()));
    return found;
}

std::string text(const property& reply) {
    if (!reply) return {};
    return {static_cast<const char*>(xcb_get_property_value(reply.get())),
            static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

bench::facts facts_of(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t net_wm_pid) {
    const auto name =
        xcb_get_property(connection, false, window, XCB_ATOM_WM_NAME, XCB_GET_PROPERTY_TYPE_ANY, 0, 1000000);
    const auto hint =
        xcb_get_property(connection, false, window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 0, 2048);
    const auto pid = xcb_get_property(connection, false, window, net_wm_pid, XCB_ATOM_CARDINAL, 0, 1);
    bench::facts found;
    found.name = text(property(xcb_get_property_reply(connection, name, nullptr)));
    const std::string both = text(property(xcb_get_property_reply(connection, hint, nullptr)));
    found.res_name = both.c_str();
    if (found.res_name.size() < both.size()) found.res_class = both.c_str() + found.res_name.size() + 1;
    const std::string number = text(property(xcb_get_property_reply(connection, pid, nullptr)));
    if (number.size() == sizeof found.pid) std::memcpy(&found.pid, number.data(), sizeof found.pid);
    return found;
}

bench::facts ask() {
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const auto focus_cookie = xcb_get_input_focus(connection);
    const auto state_cookie = intern(connection, "WM_STATE");
    const auto pid_cookie = intern(connection, "_NET_WM_PID");
    const held<xcb_get_input_focus_reply_t> focus(
        xcb_get_input_focus_reply(connection, focus_cookie, nullptr));
    const xcb_atom_t state = atom(connection, state_cookie);
    const xcb_atom_t pid = atom(connection, pid_cookie);
    bench::facts found;
    if (const auto top = focus ? tree_of_top(connection, focus->focus) : nullptr)
        if (const xcb_window_t client = client_in(connection, state, xcb_query_tree_children(top.get()),
                                                  xcb_query_tree_children_length(top.get())))
            found = facts_of(connection, client, pid);
    xcb_disconnect(connection);
    return found;
}

}  // namespace

int main(int argc, char** argv) { return bench::run_query(argc, argv, ask); }
