// SPDX-License-Identifier: MIT
#include <zo_core/zo_diagnostics_p.hpp>

#include <zo_core/zo_diagnostics.hpp>

#include <iostream>
#include <mutex>

namespace {

constexpr std::string_view warning_prefix = "\033[1;35mZO-SYSTEM**WARNING**\033[0;0m: ";
constexpr std::string_view error_prefix = "\033[1;31mZO-SYSTEM**ERROR**\033[0;0m: ";
constexpr std::string_view name_colour = "\033[0;35m";
constexpr std::string_view colour_off = "\033[0;0m";

// The stream's own lock does not cover a stream buffer that the application put in its place. That buffer is
// code of the application, which may call what writes a line itself.
std::recursive_mutex& output_mutex() {
    static auto& mutex = *new std::recursive_mutex;
    return mutex;
}

void log_prefixed(std::string_view prefix, std::string_view body, std::string_view detail) {
    std::string line;
    line.reserve(prefix.size() + body.size() + detail.size() + 1);
    line.append(prefix).append(body).append(detail);
    zo::log_line(line);
}

}  // namespace

void zo::log_line(std::string_view text) {
    std::string line(text);
    line.push_back('\n');
    std::lock_guard lock(output_mutex());
    std::cout.write(line.data(), static_cast<std::streamsize>(line.size())).flush();
}

void zo::log_warning(std::string_view body, std::string_view detail) {
    log_prefixed(warning_prefix, body, detail);
}

void zo::log_error(std::string_view body, std::string_view detail) {
    log_prefixed(error_prefix, body, detail);
}

std::string zo::coloured(std::string_view name) {
    std::string text(name_colour);
    return text.append(name).append(colour_off);
}

void zo::warn_null_handle(const char* function) { log_warning("null object supplied: ", coloured(function)); }

void zo_assertion_faild(bool condition, std::string expression, std::string context, std::string file,
                        int line) {
    if (condition) return;
    zo::log_error("assertion failed: ",
                  expression + " - " + context + " - " + file + ":" + std::to_string(line));
}
