// SPDX-License-Identifier: MIT
// Names and classes against what Xlib's own functions say of the same window, whatever its properties hold.
#include <gtest/gtest.h>
#include <zo_ui/platform/linux.hpp>

#include "platform/x_client.hpp"

#include <X11/Xutil.h>

#include <clocale>
#include <random>

namespace {

constexpr char nothing[] = "before";

std::string name_by_xlib(Display* display, Window window) {
    XTextProperty property{};
    if (!XGetWMName(display, window, &property)) return nothing;
    char** strings = nullptr;
    int count = 0;
    const int result = XmbTextPropertyToTextList(display, &property, &strings, &count);
    const std::string name = result != Success ? nothing : count > 0 ? strings[0] : "";
    if (strings) XFreeStringList(strings);
    XFree(property.value);
    return name;
}

std::string class_by_xlib(Display* display, Window window) {
    XClassHint hint{};
    if (!XGetClassHint(display, window, &hint)) return nothing;
    const std::string both = std::string(hint.res_name) + "/" + hint.res_class;
    XFree(hint.res_name);
    XFree(hint.res_class);
    return both;
}

class FactsReference : public testing::Test {
  protected:
    FactsReference() { std::setlocale(LC_ALL, ""); }
    ~FactsReference() override { std::setlocale(LC_ALL, "C"); }

    std::size_t below(std::size_t bound) { return chance() % bound; }

    std::string bytes() {
        // Letters, ends of strings, halves of characters, and what switches sets in compound text.
        static const std::string parts[] = {"a",        "Zo",           std::string(1, '\0'),
                                            "\xc3\xbc", "\xe2\x9c\x93", "\xfc",
                                            "\x1b",     "\x1b%G",       "\x1b-A",
                                            "\n",       "\x9b",         " "};
        std::string text;
        for (std::size_t i = below(8); i > 0; --i) text += parts[below(std::size(parts))];
        return below(50) == 0 ? text + std::string(40000, 'x') + text : text;
    }

    void set(Atom property) {
        static const char* const types[] = {"STRING", "STRING",   "UTF8_STRING",  "COMPOUND_TEXT",
                                            "TEXT",   "CARDINAL", "ZO_UNHEARD_OF"};
        const int format = below(6) == 0 ? 16 << below(2) : 8;
        const std::string value = bytes();
        // Items of 32 bits are longs for Xlib.
        const std::size_t size = format == 8 ? 1 : format == 16 ? sizeof(short) : sizeof(long);
        XChangeProperty(owner, window, property, XInternAtom(owner, types[below(std::size(types))], False),
                        format, PropModeReplace, reinterpret_cast<const unsigned char*>(value.data()),
                        static_cast<int>(value.size() / size));
        XSync(owner, False);
    }

    std::mt19937 chance{20240229};
    test::x_client owner;
    test::x_client asking;
    const Window window = owner.make();
};

TEST_F(FactsReference, NamesAreWhatXlibConverts) {
    int names = 0;
    for (int i = 0; i < 3000; ++i) {
        set(XA_WM_NAME);
        std::string name = nothing;
        const bool has_name = get_window_name(asking, window, name);
        ASSERT_EQ(name, name_by_xlib(asking, window)) << i;
        names += has_name;
    }
    EXPECT_GT(names, 500);
    EXPECT_LT(names, 2500);
}

TEST_F(FactsReference, ClassesAreTheHintsThatXlibReads) {
    int classes = 0;
    for (int i = 0; i < 3000; ++i) {
        set(XA_WM_CLASS);
        std::string res_name = nothing, res_class;
        const bool has_class = get_window_class(asking, window, res_name, res_class);
        ASSERT_EQ(has_class ? res_name + "/" + res_class : res_name, class_by_xlib(asking, window)) << i;
        classes += has_class;
    }
    EXPECT_GT(classes, 500);
    EXPECT_LT(classes, 2500);
}

}  // namespace
