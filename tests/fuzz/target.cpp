// SPDX-License-Identifier: MIT
#include "fuzz/target.hpp"

#include <gtk/gtk.h>
#include <zo_ui/zo_ui.hpp>

#include <cstdio>
#include <cstdlib>

namespace {

std::string allowed;

GLogWriterOutput on_message(GLogLevelFlags level, const GLogField* fields, gsize count, gpointer) {
    if (!(level & (G_LOG_LEVEL_ERROR | G_LOG_LEVEL_CRITICAL | G_LOG_LEVEL_WARNING)))
        return G_LOG_WRITER_HANDLED;
    char* const line = g_log_writer_format_fields(level, fields, count, FALSE);
    const std::string text = line;
    g_free(line);
    if (!allowed.empty() && text.find(allowed) != std::string::npos) return G_LOG_WRITER_HANDLED;
    fuzz::fail(text);
}

}  // namespace

void fuzz::prepare(int* argc, char*** argv) {
    gtk_init(argc, argv);
    g_log_set_writer_func(on_message, nullptr, nullptr);
    zo_ui_init();
}

void fuzz::allow_warning(const std::string& text) { allowed = text; }

void fuzz::fail(const std::string& what) {
    std::fprintf(stderr, "%s\n", what.c_str());
    std::abort();
}
