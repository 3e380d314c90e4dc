// SPDX-License-Identifier: MIT
// The search for the client window against XmuClientWindow, on thousands of random window trees.
#include <gtest/gtest.h>
#include <zo_ui/platform/linux.hpp>
#include <zo_ui/platform/linux/client_search_p.hpp>

#include "platform/random_tree.hpp"
#include "platform/x_client.hpp"

#include <X11/Xmu/WinUtil.h>

namespace {

using zo::platform::client_below;
using zo::platform::likely_depth;

std::vector<Window> children_of(Display* display, Window window, Window* parent = nullptr) {
    Window root = 0, above = 0, *children = nullptr;
    unsigned int count = 0;
    if (!XQueryTree(display, window, &root, &above, &children, &count)) return {};
    const std::vector<Window> result(children, children + count);
    if (children) XFree(children);
    if (parent) *parent = above;
    return result;
}

// What is to be found below a window: 0 when that carries the state itself.
Window named_by_xmu(Display* display, Window window) {
    const Window client = XmuClientWindow(display, window);
    return client != window ? client : 0;
}

class ClientSearch : public testing::Test {
  protected:
    ~ClientSearch() override { EXPECT_EQ(errors.count(), 0); }

    std::size_t below(std::size_t bound) { return chance() % bound; }

    // Some trees without any state, many with few, some with many.
    int states_in_10() {
        constexpr int choices[] = {0, 1, 1, 1, 2, 6};
        return choices[below(std::size(choices))];
    }

    std::mt19937 chance{20240229};
    test::counted_errors errors;
    test::x_client owner;
    test::x_client asking;
};

TEST_F(ClientSearch, FindsWhatXmuFindsBelowEveryWindow) {
    int found = 0, deep = 0, none = 0;
    for (int i = 0; i < 1000; ++i) {
        test::random_tree tree(owner, chance, 1 + static_cast<int>(below(24)), states_in_10());
        for (const Window window : tree.windows()) {
            const Window client = named_by_xmu(asking, window);
            ASSERT_EQ(get_named_window(asking, window), client) << "tree " << i;
            found += client != 0;
            none += client == 0;
            if (client == 0) continue;
            Window parent = 0;
            children_of(asking, client, &parent);
            deep += parent != window;
        }
    }
    // Each kind often enough to mean something.
    EXPECT_GT(found, 1000);
    EXPECT_GT(deep, 300);
    EXPECT_GT(none, 1000);
}

TEST_F(ClientSearch, FindsTheSameWhereverItIsExpected) {
    const Atom state = XInternAtom(asking, "WM_STATE", False);
    for (int i = 0; i < 1000; ++i) {
        test::random_tree tree(owner, chance, 1 + static_cast<int>(below(40)), states_in_10());
        const Window window = tree.windows().front();
        const Window client = named_by_xmu(asking, window);
        const std::vector<Window> children = children_of(asking, window);
        for (const likely_depth depth : {likely_depth::child, likely_depth::any})
            ASSERT_EQ(client_below(asking, state, window, children, depth), client) << "tree " << i;
    }
}

TEST_F(ClientSearch, TheActiveWindowIsXmusInTheFocusedTop) {
    int found = 0;
    for (int i = 0; i < 1500; ++i) {
        test::random_tree tree(owner, chance, 2 + static_cast<int>(below(20)), states_in_10());
        if (tree.viewable().empty()) continue;
        owner.focus(tree.viewable()[below(tree.viewable().size())]);
        const Window client = named_by_xmu(asking, tree.windows().front());
        ASSERT_EQ(getActiveWindow(asking), client) << "tree " << i;
        found += client != 0;
    }
    EXPECT_GT(found, 200);
}

// One window is destroyed, with all that is below, after one of the search's requests has been sent.
TEST_F(ClientSearch, AWindowThatEndsMeanwhileIsTheOnlyOneThatIsMissed) {
    int missed = 0;
    for (int i = 0; i < 1500; ++i) {
        test::random_tree tree(owner, chance, 2 + static_cast<int>(below(24)), states_in_10());
        const Window start = tree.windows()[below(1 + tree.windows().size() / 3)];
        const Window dying = tree.any();
        const Window before = named_by_xmu(asking, start);
        const int when = 1 + static_cast<int>(below(2 * tree.windows().size()));
        test::watch_requests(asking, [&](int request) {
            if (request == when) tree.destroy(dying);
        });
        const Window client = get_named_window(asking, start);
        test::stop_watching_requests();
        ASSERT_EQ(errors.count(), 0);
        if (client == before) continue;
        ++missed;
        ASSERT_TRUE(tree.holds(dying, before)) << "tree " << i << ": one that lives is not missed";
        const bool start_is_gone = tree.holds(dying, start);
        const Window after = start_is_gone ? 0 : named_by_xmu(asking, start);
        EXPECT_TRUE(client == after || (tree.holds(dying, client) && tree.has_state(client))) << "tree " << i;
    }
    EXPECT_GT(missed, 30);
}

}  // namespace
