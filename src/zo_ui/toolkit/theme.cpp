// SPDX-License-Identifier: MIT
#include <zo_ui/zo_theme.hpp>

#include <zo_core/zo_diagnostics_p.hpp>
#include <zo_core/zo_place_p.hpp>
#include <zo_ui/toolkit/process_state_p.hpp>

#include <memory>
#include <utility>

using zo::toolkit;

namespace {

struct object_unref {
    void operator()(gpointer object) const { g_object_unref(object); }
};
using provider_ptr = std::unique_ptr<GtkCssProvider, object_unref>;
using file_ptr = std::unique_ptr<GFile, object_unref>;

// Null without a display: sheets are then loaded, and shown nowhere.
GdkScreen* default_screen() {
    GdkDisplay* display = gdk_display_get_default();
    return display ? gdk_display_get_default_screen(display) : nullptr;
}

void on_parsing_error(GtkCssProvider*, GtkCssSection*, const GError* error, gpointer) {
    zo::log_line(std::string("css parsing error: ") + error->message);
}

// Null, with `error` set, when GTK rejects the sheet.
provider_ptr load(const std::string& path, GError*& error) {
    error = nullptr;
    provider_ptr provider(gtk_css_provider_new());
    g_signal_connect(provider.get(), "parsing-error", G_CALLBACK(on_parsing_error), nullptr);
    const file_ptr file(g_file_new_for_path(path.c_str()));
    gtk_css_provider_load_from_file(provider.get(), file.get(), &error);
    if (error) provider.reset();
    return provider;
}

void show(GtkCssProvider* provider) {
    if (GdkScreen* screen = default_screen())
        gtk_style_context_add_provider_for_screen(screen, GTK_STYLE_PROVIDER(provider),
                                                  GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
}

}  // namespace

void zo_theme_init() {}

void zo_theme_uninit() {
    const provider_ptr current(std::exchange(toolkit().theme_provider, nullptr));
    if (!current) return;
    if (GdkScreen* screen = default_screen())
        gtk_style_context_remove_provider_for_screen(screen, GTK_STYLE_PROVIDER(current.get()));
}

void zo_theme_set_theme_path(std::string path) { toolkit().theme_path = std::move(path); }

std::string zo_theme_get_theme_path() { return toolkit().theme_path; }

std::string zo_theme_get_system_path() {
    return zo::installed_folder("share/themes/brevant", "brevant/style.css", ZO_THEMEDIR "/brevant") + "/";
}

std::string zo_theme_get_theme_name() { return toolkit().theme_name; }

void zo_theme_use_theme(std::string name, GError*& error) {
    toolkit().theme_name = std::move(name);
    zo_theme_uninit();
    provider_ptr provider = load(toolkit().theme_path + toolkit().theme_name + "/style.css", error);
    if (!provider) return;
    show(provider.get());
    toolkit().theme_provider = provider.release();
}

void zo_theme_add_css_permanent(std::string file, GError*& error) {
    if (const provider_ptr provider = load(toolkit().theme_path + file, error)) show(provider.get());
}
