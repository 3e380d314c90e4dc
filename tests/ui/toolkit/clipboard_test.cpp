// SPDX-License-Identifier: MIT
// The clipboard's partner is another program where that matters (xclip).
#include "support/desktop.hpp"
#include "support/ui.hpp"

#include <memory>
#include <optional>

namespace {

GtkClipboard* clipboard() { return gtk_clipboard_get(GDK_SELECTION_CLIPBOARD); }

using answer = std::optional<std::string>;

std::function<void(GtkClipboard*, const char*)> note(std::vector<answer>& answers) {
    return [&answers](GtkClipboard*, const char* text) {
        answers.push_back(text ? answer(text) : std::nullopt);
    };
}

TEST(Clipboard, GivesTheTextOfAnotherProgram) {
    test::run_command(
        {"bash", "-c", "printf 'aus der Zwischenablage ✓' | xclip -selection clipboard >/dev/null 2>&1"});
    std::vector<answer> answers;
    zo_ui_get_clipboard_text(clipboard(), note(answers));
    ASSERT_TRUE(test::turn_until([&] { return !answers.empty(); }));
    EXPECT_EQ(answers, std::vector<answer>{"aus der Zwischenablage ✓"});
}

// An own text is answered before the request returns.
TEST(Clipboard, GivesTheOwnText) {
    gtk_clipboard_set_text(clipboard(), "own", -1);
    std::vector<answer> answers;
    zo_ui_get_clipboard_text(clipboard(), note(answers));
    ASSERT_TRUE(test::turn_until([&] { return !answers.empty(); }));
    EXPECT_EQ(answers, std::vector<answer>{"own"});
}

TEST(Clipboard, GivesNullWhenThereIsNone) {
    gtk_clipboard_clear(clipboard());
    std::vector<answer> answers;
    zo_ui_get_clipboard_text(gtk_clipboard_get(gdk_atom_intern("ZO_NOBODY_OWNS_THIS", FALSE)), note(answers));
    ASSERT_TRUE(test::turn_until([&] { return !answers.empty(); }));
    EXPECT_EQ(answers, std::vector<answer>{std::nullopt});
}

TEST(Clipboard, ASecondRequestTakesTheFirstOnesPlace) {
    test::run_command({"bash", "-c", "printf later | xclip -selection clipboard >/dev/null 2>&1"});
    const auto token = std::make_shared<int>(0);
    std::vector<answer> first;
    std::vector<answer> second;
    zo_ui_get_clipboard_text(clipboard(),
                             [&first, token, n = note(first)](GtkClipboard* c, const char* t) { n(c, t); });
    EXPECT_EQ(token.use_count(), 2);
    zo_ui_get_clipboard_text(clipboard(), note(second));
    EXPECT_EQ(token.use_count(), 1) << "the first callable is dropped at once";
    ASSERT_TRUE(test::turn_until([&] { return !second.empty(); }));
    // The second answer finds no callable: a third request's answer comes after it.
    std::vector<answer> third;
    zo_ui_get_clipboard_text(clipboard(), note(third));
    ASSERT_TRUE(test::turn_until([&] { return !third.empty(); }));
    EXPECT_TRUE(first.empty());
    EXPECT_EQ(second.size(), 1u);
}

TEST(Clipboard, TheCallableMayAskAgain) {
    gtk_clipboard_set_text(clipboard(), "again", -1);
    int answers = 0;
    std::function<void(GtkClipboard*, const char*)> ask = [&](GtkClipboard* c, const char*) {
        if (++answers < 3) zo_ui_get_clipboard_text(c, ask);
    };
    zo_ui_get_clipboard_text(clipboard(), ask);
    EXPECT_TRUE(test::turn_until([&] { return answers == 3; }));
}

// What the callable does when it goes is over before the answer to the next request, even to one that is
// answered at once.
TEST(Clipboard, TheOldCallableGoesBeforeTheNewAnswerComes) {
    gtk_clipboard_set_text(clipboard(), "own", -1);
    std::vector<std::string> order;
    std::shared_ptr<void> token(nullptr, [&](void*) { order.push_back("old one gone"); });
    zo_ui_get_clipboard_text(gtk_clipboard_get(gdk_atom_intern("ZO_NOBODY_OWNS_THIS", FALSE)),
                             [token](GtkClipboard*, const char*) {});
    token.reset();
    EXPECT_TRUE(order.empty());
    zo_ui_get_clipboard_text(clipboard(), [&](GtkClipboard*, const char*) { order.push_back("answer"); });
    ASSERT_TRUE(test::turn_until([&] { return order.size() == 2; }));
    EXPECT_EQ(order, (std::vector<std::string>{"old one gone", "answer"}));
}

}  // namespace
