// SPDX-License-Identifier: MIT
// Building the widget tree of a popup:
//
//     popup ─ #window-wrapper ─┬─ .window-title (close button, title)
//                              ├─ .content ─ row ─ padding ─ .content-text
//                              ├─ .invisible
//                              └─ .action-box (a button for each action)
//
// Without actions the last two are not there.
#include <zo_ui/zo_notification/notification_p.hpp>

#include <zo_core/zo_diagnostics_p.hpp>
#include <zo_ui/platform/linux/on_top_p.hpp>
#include <zo_ui/toolkit/long_text_p.hpp>
#include <zo_ui/toolkit/style_p.hpp>
#include <zo_ui/zo_notification/notification_stack_p.hpp>
#include <zo_ui/zo_ui_connect.hpp>
#include <zo_ui/zo_ui_tools.hpp>
#include <zo_ui/zo_ui_widgets.hpp>

#include <algorithm>

namespace source = zo::notification_source;

namespace {

constexpr int popup_width = 500;
constexpr int title_width = 300;
constexpr int title_height = 16;
constexpr int content_spacing = 4;
constexpr int content_padding = 20;
constexpr int content_characters = 30;
constexpr int most_lines = 20;       // of a content that is higher than the desktop
constexpr int line_characters = 48;  // of the title, and of all actions together

GtkWidget* box_new(GtkOrientation orientation, int spacing, const char* style_class) {
    GtkWidget* box = gtk_box_new(orientation, spacing);
    zo::add_class(box, style_class);
    return box;
}

void pack(GtkWidget* box, GtkWidget* child, bool fill = false, guint padding = 0) {
    gtk_box_pack_start(GTK_BOX(box), child, fill, fill, padding);
}

bool is_empty(GtkLabel* label) {
    const char* text = gtk_label_get_text(label);
    return !text || !*text;
}

GtkWidget* toplevel_new(const std::string& title) {
    GtkWidget* popup = gtk_window_new(GTK_WINDOW_POPUP);
    auto* window = GTK_WINDOW(popup);
    gtk_window_set_type_hint(window, GDK_WINDOW_TYPE_HINT_NOTIFICATION);
    gtk_window_set_default_size(window, popup_width, -1);
    gtk_widget_set_can_focus(popup, TRUE);
    gtk_window_set_skip_taskbar_hint(window, TRUE);
    gtk_window_set_skip_pager_hint(window, TRUE);
    zo::add_class(popup, "zo-notification");
    if (!title.empty()) gtk_window_set_title(window, title.c_str());
    gtk_window_set_decorated(window, FALSE);
    gtk_window_set_resizable(window, FALSE);
    gtk_window_set_keep_above(window, TRUE);
    zo::platform::keep_on_top(popup);
    return popup;
}

// A longer text ends in an ellipsis, instead of widening the popup, and is told whole by the tooltip.
void shorten(GtkWidget* label, int characters) {
    const std::string text = gtk_label_get_text(GTK_LABEL(label));
    if (const std::string title = zo::as_title(text); title != text)
        gtk_label_set_text(GTK_LABEL(label), title.c_str());
    gtk_label_set_ellipsize(GTK_LABEL(label), PANGO_ELLIPSIZE_END);
    gtk_label_set_max_width_chars(GTK_LABEL(label), characters);
    if (g_utf8_strlen(text.c_str(), -1) > characters)
        gtk_widget_set_tooltip_text(label, zo::as_tooltip(text).c_str());
}

// No letter of a plain text is wider than this.
constexpr double widest_letter = 1.5;  // times the size of the font

double font_size(GtkWidget* label) {
    const PangoFontDescription* const font =
        pango_context_get_font_description(gtk_widget_get_pango_context(label));
    const double size = static_cast<double>(pango_font_description_get_size(font)) / PANGO_SCALE;
    if (pango_font_description_get_size_is_absolute(font)) return size;
    const double dpi = gdk_screen_get_resolution(gtk_widget_get_screen(label));
    return size * (dpi > 0 ? dpi : 96) / 72;
}

// False for what is surely narrow enough: to measure a text takes as long as to show it.
bool may_be_too_wide(GtkWidget* label, const std::string& content) {
    if (content != gtk_label_get_text(GTK_LABEL(label))) return true;  // markup may say anything of letters
    std::size_t word = 0;
    std::size_t longest = 0;
    for (const char letter : content) {
        if (!g_ascii_isprint(letter) && !g_ascii_isspace(letter)) return true;
        word = g_ascii_isspace(letter) ? 0 : word + 1;
        longest = std::max(longest, word);
    }
    return static_cast<double>(longest) * widest_letter * font_size(label) > popup_width;
}

// Words stay whole unless one is wider than the popup, which it would stretch beyond its place.
void break_long_words(GtkWidget* label, const std::string& content) {
    if (!may_be_too_wide(label, content)) return;
    int narrowest = 0;
    gtk_widget_show(label);  // hidden ones measure nothing
    gtk_widget_get_preferred_width(label, &narrowest, nullptr);
    if (narrowest <= popup_width) return;
    gtk_label_set_line_wrap_mode(GTK_LABEL(label), PANGO_WRAP_WORD_CHAR);
    gtk_widget_queue_resize(label);
}

}  // namespace

void _zo_notification::build_popup(const zo::notification_text& text) {
    const zo::notification_text shown{zo::readable(text.title), text.content, text.is_markup};
    widgets_.window = toplevel_new(shown.title);
    place_ = {};
    zo::note_place(widgets_.window, &place_);
    widgets_.wrapper = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
    gtk_widget_set_name(widgets_.wrapper, "window-wrapper");
    gtk_box_set_homogeneous(GTK_BOX(widgets_.wrapper), FALSE);
    build_title(shown.title);
    build_content(shown);
    build_actions();
    gtk_container_add(GTK_CONTAINER(widgets_.window), widgets_.wrapper);
    zo_ui_gtk_fix_visual_rgba(widgets_.window);
    g_signal_connect(widgets_.window, "screen-changed",
                     G_CALLBACK(zo_ui_gtk_fix_visual_rgba_on_screen_changed), nullptr);
    // The callable holds the notification for as long as GTK may call into it.
    zo_ui_connect_widget_destroy(
        widgets_.window, [self = handle(), popup = widgets_.window] { self->on_popup_destroyed(popup); });
    describe_popup(shown);
}

void _zo_notification::build_title(const std::string& title) {
    widgets_.title_box = box_new(GTK_ORIENTATION_HORIZONTAL, 0, "window-title");
    gtk_widget_set_size_request(widgets_.title_box, title_width, title_height);
    pack(widgets_.wrapper, widgets_.title_box);
    widgets_.title_label = gtk_label_new(title.c_str());
    shorten(widgets_.title_label, line_characters);
    zo::add_class(widgets_.title_label, "title-text");
    gtk_box_set_center_widget(GTK_BOX(widgets_.title_box), widgets_.title_label);
    widgets_.close_button = zo_ui_button16_new("title-close");
    zo_ui_connect_button_click_signal(widgets_.close_button,
                                      [self = handle()](GtkWidget*) { self->close_for_good(); });
    zo::set_tooltip(widgets_.close_button, zo_ui_get_translate("tooltip_close_notification"));
    pack(widgets_.title_box, widgets_.close_button);
}

void _zo_notification::build_content(const zo::notification_text& text) {
    widgets_.content_box = box_new(GTK_ORIENTATION_HORIZONTAL, content_spacing, "content");
    pack(widgets_.wrapper, widgets_.content_box, true);
    GtkWidget* row = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
    gtk_widget_set_halign(row, GTK_ALIGN_START);
    gtk_widget_set_valign(row, GTK_ALIGN_CENTER);
    pack(widgets_.content_box, row, false, content_padding);
    widgets_.content_label = gtk_label_new(nullptr);
    auto* label = GTK_LABEL(widgets_.content_label);
    gtk_label_set_selectable(label, TRUE);
    gtk_label_set_single_line_mode(label, FALSE);
    gtk_label_set_max_width_chars(label, content_characters);
    gtk_widget_set_size_request(widgets_.content_label, popup_width, -1);
    gtk_label_set_line_wrap(label, TRUE);
    gtk_label_set_line_wrap_mode(label, PANGO_WRAP_WORD);
    gtk_label_set_xalign(label, 0);
    zo::add_class(widgets_.content_label, "content-text");
    fill_content_label(text);
    zo::keep_on_desktop(widgets_.content_label, most_lines);
    break_long_words(widgets_.content_label, text.content);
    zo_ui_connect_label_link_activate(widgets_.content_label, [self = handle()](GtkLabel*, std::string& uri) {
        return self->on_link(uri);
    });
    pack(row, zo_ui_get_left_padding_widget(widgets_.content_label, true));
}

void _zo_notification::fill_content_label(const zo::notification_text& text) {
    auto* label = GTK_LABEL(widgets_.content_label);
    const std::string content = zo::readable(text.content);
    if (text.is_markup && content == text.content) gtk_label_set_markup(label, content.c_str());
    if (content.empty() || !is_empty(label)) return;
    if (text.is_markup) zo::log_line("setting text instead of markap after error");
    gtk_label_set_text(label, content.c_str());
}

void _zo_notification::build_actions() {
    std::vector<std::pair<std::string, std::string>> actions;  // name, label
    {
        const zo::property_guard guard(*this, source::file, source::callables);
        for (const auto& [name, action] : callables_.actions) actions.emplace_back(name, action.first);
    }
    if (actions.empty()) return zo::add_class(widgets_.content_box, "no-actions");
    widgets_.action_box = box_new(GTK_ORIENTATION_HORIZONTAL, 1, "action-box");
    const int characters = std::max(line_characters / static_cast<int>(actions.size()), 6);
    for (const auto& [name, label] : actions) {
        GtkWidget* button = gtk_button_new_with_label(zo::readable(label).c_str());
        gtk_widget_set_name(button, name.c_str());
        shorten(gtk_bin_get_child(GTK_BIN(button)), characters);
        if (actions.size() == 1) zo::add_class(button, "only_one");
        zo_ui_connect_button_click_signal(
            button, [self = handle()](GtkWidget* clicked) { self->on_action(clicked); });
        pack(widgets_.action_box, button, true);
    }
    GtkWidget* spacer = box_new(GTK_ORIENTATION_VERTICAL, 0, "invisible");
    gtk_widget_set_size_request(spacer, 1, 1);
    pack(widgets_.wrapper, spacer);
    pack(widgets_.wrapper, widgets_.action_box);
}

void _zo_notification::describe_popup(const zo::notification_text& text) {
    AtkObject* popup = gtk_widget_get_accessible(widgets_.window);
    atk_object_set_role(popup, ATK_ROLE_NOTIFICATION);
    atk_object_set_name(popup, text.title.c_str());
    atk_object_set_description(popup, gtk_label_get_text(GTK_LABEL(widgets_.content_label)));
}
