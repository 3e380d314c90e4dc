// SPDX-License-Identifier: MIT
// Titles, ids, classes and markup of any bytes on windows, task buttons and notifications that are on screen.
#include "fuzz/calls_widgets.hpp"
#include "fuzz/target.hpp"

#include <fuzzer/FuzzedDataProvider.h>
#include <zo_ui/zo_ui.hpp>

namespace {

void turn() {
    while (g_main_context_pending(nullptr)) g_main_context_iteration(nullptr, FALSE);
}

void look_at_labels(GtkWidget* widget, gpointer) {
    if (GTK_IS_LABEL(widget))
        fuzz::check(g_utf8_validate(gtk_label_get_text(GTK_LABEL(widget)), -1, nullptr),
                    [] { return std::string("a label with text that is not UTF-8"); });
    if (GTK_IS_CONTAINER(widget)) gtk_container_forall(GTK_CONTAINER(widget), look_at_labels, nullptr);
}

void look_at(const std::string& style_class) {
    for (GtkWidget* toplevel : fuzz::toplevels(style_class)) look_at_labels(toplevel, nullptr);
}

// The piece again and again, up to a mebibyte.
std::string next_long_text(FuzzedDataProvider& bytes, const std::string& piece) {
    const std::size_t wanted = std::size_t{1} << bytes.ConsumeIntegralInRange<int>(10, 20);
    std::string text;
    text.reserve(wanted + piece.size());
    while (text.size() < wanted) text += piece;
    return text;
}

// The piece inside as many tags as nobody writes.
std::string next_deep_text(FuzzedDataProvider& bytes, const std::string& piece) {
    const char* const tag = bytes.PickValueInArray({"b", "i", "span", "big", "sub", "markup"});
    const int depth = 1 << bytes.ConsumeIntegralInRange<int>(1, 12);
    std::string text, ends;
    for (int i = 0; i < depth; ++i) {
        text += std::string("<") + tag + ">";
        ends += std::string("</") + tag + ">";
    }
    return text + piece + ends;
}

// A text now and then much longer or deeper than what a person writes.
std::string next_text(FuzzedDataProvider& bytes) {
    const std::string text = bytes.ConsumeRandomLengthString(300);
    if (text.empty()) return text;
    const int choice = bytes.ConsumeIntegralInRange<int>(0, 63);
    if (choice == 0) return next_long_text(bytes, text);
    return choice == 1 ? next_deep_text(bytes, text) : text;
}

// A text of a window, and what a reader is told of it.
struct window_text {
    const char* name;
    bool (*set)(zo_window_ptr, std::string);
    bool (*get)(zo_window_ptr, std::string&);
};
constexpr window_text window_texts[] = {{"title", zo_window_set_title, zo_window_get_title},
                                        {"id", zo_window_set_id, zo_window_get_id},
                                        {"class", zo_window_set_class, zo_window_get_class}};

void expect(const zo_window_ptr& window, const window_text& text, const std::string& wanted) {
    std::string read;
    fuzz::check(text.get(window, read) && read == wanted,
                [&] { return std::string("another ") + text.name + " than was set"; });
}

void show_window(FuzzedDataProvider& bytes, const zo_window_manager_ptr& manager) {
    std::string id = next_text(bytes);
    const zo_window_ptr window = zo_window_new(id);
    std::string title = next_text(bytes), style_class = next_text(bytes);
    zo_window_set_title(window, title);
    zo_window_set_class(window, style_class);
    zo_window_set_window_manager(window, manager);
    zo_window_open(window);
    zo_window_show(window);
    turn();
    std::string* const set_before[] = {&title, &id, &style_class};
    for (int i = 0; i < 3; ++i) expect(window, window_texts[i], *set_before[i]);
    for (const window_text& one : window_texts) {
        const std::string text = next_text(bytes);
        one.set(window, text);
        expect(window, one, text);
        turn();
        expect(window, one, text);
    }
    look_at("zo-window");
    look_at("zo-manager");
    zo_window_destroy(window);
    turn();
}

void show_notification(FuzzedDataProvider& bytes) {
    const zo_notification_ptr notification = zo_notification_new();
    zo_notification_set_title(notification, next_text(bytes));
    zo_notification_set_content(notification, next_text(bytes));
    zo_notification_set_is_markup(notification, bytes.ConsumeBool());
    zo_notification_add_action(notification, next_text(bytes), next_text(bytes), [](const std::string&) {});
    zo_notification_open_show(notification);
    turn();
    look_at("zo-notification");
    zo_notification_destroy(notification);
    turn();
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    fuzz::prepare(argc, argv);
    fuzz::allow_warning("Failed to set text");  // GTK's own word about markup that does not parse
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const zo_window_manager_ptr manager = [] {
        const zo_window_manager_ptr made = zo_window_manager_new("");
        zo_window_manager_open(made);
        zo_window_manager_show(made);
        return made;
    }();
    FuzzedDataProvider bytes(data, size);
    show_window(bytes, manager);
    show_notification(bytes);
    return 0;
}
