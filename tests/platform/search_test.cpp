// SPDX-License-Identifier: MIT
// Searching the window tree for a class, on an X server without a window manager.
#include <gtest/gtest.h>
#include <zo_ui/platform/linux/search_p.hpp>

#include "platform/x_client.hpp"

namespace {

class Search : public testing::Test {
  protected:
    ~Search() override { EXPECT_EQ(errors.count(), 0); }

    // A client in a frame of its own below `parent`; the frames are the server's children in the order of
    // making.
    Window make_framed(Window parent, const std::string& name, const std::string& class_name) {
        const Window client = owner.make_client(owner.make(parent));
        owner.set_text(client, "WM_CLASS", "STRING", name + '\0' + class_name + '\0');
        return client;
    }

    Window find(Window below, const char* name, const char* class_name) {
        return find_window_by_class(asking, below, name, class_name);
    }

    test::counted_errors errors;
    test::x_client owner;
    test::x_client asking;
};

TEST_F(Search, EveryClientInAFrameIsFoundByNameAndClass) {
    const Window root = owner.root();
    const Window first = make_framed(root, "one", "First");
    const Window second = make_framed(root, "two", "Second");
    EXPECT_EQ(find(0, "one", "First"), first);
    EXPECT_EQ(find(0, "two", "Second"), second);
}

TEST_F(Search, BothMustBeEqualAsAWhole) {
    make_framed(owner.root(), "one", "First");
    for (const auto& [name, class_name] : {std::pair("one", "Second"),
                                           {"two", "First"},
                                           {"on", "First"},
                                           {"one", "Firs"},
                                           {"one ", "First"},
                                           {"One", "First"},
                                           {"", ""}})
        EXPECT_EQ(find(0, name, class_name), 0U) << name << class_name;
}

TEST_F(Search, ParentsComeBeforeChildrenAndSiblingsInTheServersOrder) {
    make_framed(owner.root(), "other", "Other");
    const Window group = owner.make();
    const Window inner = make_framed(group, "twin", "Twin");
    const Window later = make_framed(owner.root(), "twin", "Twin");
    EXPECT_EQ(find(0, "twin", "Twin"), inner);
    XRaiseWindow(owner, group);
    XSync(owner, False);
    EXPECT_EQ(find(0, "twin", "Twin"), later);
}

TEST_F(Search, OnlyWhatIsBelowTheGivenWindowIsFound) {
    const Window group = owner.make();
    const Window inside = make_framed(group, "twin", "Twin");
    make_framed(owner.root(), "outside", "Outside");
    EXPECT_EQ(find(group, "twin", "Twin"), inside);
    EXPECT_EQ(find(group, "outside", "Outside"), 0U);
    EXPECT_EQ(find(inside, "twin", "Twin"), 0U);
}

TEST_F(Search, AClientWithoutAFrameIsFoundOnlyAsTheRootsFirst) {
    const Window first = owner.make_client(owner.root());
    const Window second = owner.make_client(owner.root());
    for (const Window client : {first, second})
        owner.set_text(client, "WM_CLASS", "STRING", std::string("a\0B\0", 4));
    EXPECT_EQ(find(0, "a", "B"), first);
    owner.set_text(first, "WM_CLASS", "STRING", std::string("c\0D\0", 4));
    EXPECT_EQ(find(0, "a", "B"), 0U);
    EXPECT_EQ(find(asking.root(), "c", "D"), 0U);
}

TEST_F(Search, ARootThatIsNamedIsSearchedBelow) {
    const Window client = make_framed(owner.root(), "one", "First");
    EXPECT_EQ(find(asking.root(), "one", "First"), client);
}

TEST_F(Search, AWindowThatIsGoneHasNothingBelow) {
    EXPECT_EQ(find(owner.make_dead(), "one", "First"), 0U);
    EXPECT_EQ(find_window_by_class(nullptr, 0, "one", "First"), 0U);
}

}  // namespace
