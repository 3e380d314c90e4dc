// SPDX-License-Identifier: MIT
// From GTK's signals to callables. The user data is a pointer to a listener; null gives the signal's neutral
// value. An empty callable is a programming error: std::bad_function_call leaves the handler.
#pragma once

#include <zo_ui/toolkit/listener_list_p.hpp>

#include <string>

namespace zo {

// The general case: the signal's arguments are the callable's.
template <typename Signature>
struct trampoline;

template <typename Result, typename... Arguments>
struct trampoline<Result(Arguments...)> {
    static Result call(Arguments... arguments, gpointer data) {
        if (!data) return Result();
        const auto held = static_cast<listener<Result(Arguments...)>*>(data)->shared_from_this();
        return held->call(arguments...);
    }
};

// GTK's booleans are ints.
template <>
struct trampoline<bool(GtkWidget*, cairo_t*)> {
    static gboolean call(GtkWidget* widget, cairo_t* cairo, gpointer data) {
        if (!data) return FALSE;
        const auto held = static_cast<listener<bool(GtkWidget*, cairo_t*)>*>(data)->shared_from_this();
        return held->call(widget, cairo);
    }
};

template <>
struct trampoline<bool(GtkLabel*, std::string&)> {
    static gboolean call(GtkLabel* label, char* uri, gpointer data) {
        if (!data) return FALSE;
        const auto held = static_cast<listener<bool(GtkLabel*, std::string&)>*>(data)->shared_from_this();
        std::string text = uri ? uri : "";
        return held->call(label, text);
    }
};

// "notify::active" tells which property changed, too.
template <>
struct trampoline<void(GtkSwitch*)> {
    static void call(GObject* object, GParamSpec*, gpointer data) {
        if (!data) return;
        const auto held = static_cast<listener<void(GtkSwitch*)>*>(data)->shared_from_this();
        held->call(GTK_SWITCH(object));
    }
};

}  // namespace zo
