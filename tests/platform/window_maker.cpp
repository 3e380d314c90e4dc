// SPDX-License-Identifier: MIT
// A program of somebody else: makes one window, prints its id when it is mapped, and ends with its standard
// input.
//   title=TEXT  type=STRING|UTF8_STRING|COMPOUND_TEXT (of the title)  class=NAME,CLASS  pid=NUMBER
//   bare: asks the window manager for no frame    restless: makes windows, focuses and destroys them, without
//   an end
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <poll.h>
#include <unistd.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>

namespace {

std::map<std::string, std::string> options;

bool has(const char* name) { return options.count(name) != 0; }

void set_title(Display* display, Window window) {
    std::string type = has("type") ? options["type"] : "STRING";
    std::string& title = options["title"];
    if (type == "COMPOUND_TEXT") {
        char* list[] = {title.data()};
        XTextProperty property{};
        if (XmbTextListToTextProperty(display, list, 1, XCompoundTextStyle, &property) != Success)
            std::exit(3);
        XSetWMName(display, window, &property);
        XFree(property.value);
        return;
    }
    XChangeProperty(display, window, XA_WM_NAME, XInternAtom(display, type.c_str(), False), 8,
                    PropModeReplace, reinterpret_cast<const unsigned char*>(title.data()),
                    static_cast<int>(title.size()));
}

void set_class(Display* display, Window window) {
    const std::string& both = options["class"];
    const std::size_t comma = both.find(',');
    std::string name = both.substr(0, comma), class_name = both.substr(comma + 1);
    XClassHint hint{name.data(), class_name.data()};
    XSetClassHint(display, window, &hint);
}

void set_longs(Display* display, Window window, const char* name, Atom type, const long* values, int count) {
    XChangeProperty(display, window, XInternAtom(display, name, False), type, 32, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(values), count);
}

Window make(Display* display) {
    const Window window =
        XCreateSimpleWindow(display, DefaultRootWindow(display), 40, 40, 300, 200, 0, 0, 0x336699);
    if (has("title")) set_title(display, window);
    if (has("class")) set_class(display, window);
    if (has("pid")) {
        const long pid = std::atol(options["pid"].c_str());
        set_longs(display, window, "_NET_WM_PID", XA_CARDINAL, &pid, 1);
    }
    if (has("bare")) {
        const long hints[] = {2, 0, 0, 0, 0};
        set_longs(display, window, "_MOTIF_WM_HINTS", XInternAtom(display, "_MOTIF_WM_HINTS", False), hints,
                  5);
    }
    XSelectInput(display, window, StructureNotifyMask);
    XMapWindow(display, window);
    for (XEvent event{}; event.type != MapNotify;) XNextEvent(display, &event);
    return window;
}

bool input_has_ended(int wait_ms) {
    pollfd input{STDIN_FILENO, POLLIN, 0};
    char byte = 0;
    return poll(&input, 1, wait_ms) > 0 && read(STDIN_FILENO, &byte, 1) <= 0;
}

void be_restless(Display* display) {
    XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });
    while (!input_has_ended(0)) {
        const Window window = make(display);
        XSetInputFocus(display, window, RevertToPointerRoot, CurrentTime);
        XSync(display, False);
        XDestroyWindow(display, window);
        XSync(display, True);
    }
}

}  // namespace

int main(int argc, char** argv) {
    std::setlocale(LC_ALL, "");
    for (int i = 1; i < argc; ++i) {
        const std::string option = argv[i];
        const std::size_t equals = option.find('=');
        options[option.substr(0, equals)] = equals == std::string::npos ? "" : option.substr(equals + 1);
    }
    Display* display = XOpenDisplay(nullptr);
    if (!display) return 2;
    const Window window = make(display);
    std::printf("%lu\n", window);
    std::fflush(stdout);
    if (has("restless"))
        be_restless(display);
    else
        while (!input_has_ended(-1)) {
        }
    // Whoever waits for this process finds its window gone.
    XDestroyWindow(display, window);
    XSync(display, False);
    XCloseDisplay(display);
}
