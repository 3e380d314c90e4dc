// SPDX-License-Identifier: MIT
// Turning the loop, drawing at once and counting what a desktop does, the same for all contenders.
#pragma once

#include <gtk/gtk.h>
#include <support/measure.hpp>

#include <functional>
#include <optional>
#include <string>

namespace bench {

// Starts GTK with the library's theme, when nothing of the program before is managed any more.
void begin();

// Runs what waits in the loop, without waiting for more.
void turn();

// Turns the loop until `done` holds; ends the program after four minutes.
void turn_until(const std::function<bool()>& done);

// Turns until the window has been drawn once.
void turn_until_drawn(GtkWidget* toplevel);

// Turns until so many toplevels have been drawn.
void turn_until_all_drawn(int count);

// What a frame does, without waiting for the clock that limits frames: style, layout and drawing.
void frame(GtkWidget* toplevel);

// The toplevel with this style class; null when there is none.
GtkWidget* toplevel(const std::string& style_class);

// Ends the program at once: what is on screen then takes no time to go.
[[noreturn]] void leave();

// What one step of a program costs: prints "NAME_METRIC value" for each metric, divided by `count`, when the
// step ends. For callgrind with --instr-atstart=no, the step that ZO_BENCH_STEP names is what is counted.
class step {
  public:
    step(std::string name, int count);
    ~step();
    step(const step&) = delete;
    step& operator=(const step&) = delete;

  private:
    std::string name_;
    int count_;
    std::optional<section> section_;
    double heap_;
    unsigned long requests_;
    unsigned long allocations_;
    double cpu_;
};

}  // namespace bench
