// SPDX-License-Identifier: MIT
// The tool menu that a click on the menu button opens.
#include "ui/window/tool_menu_support.hpp"

namespace {

using WindowToolMenu = test::ToolMenu;

void one_button(GtkGrid* grid) { test::attach_button(grid, "Open", 0, 0); }

std::pair<int, int> origin_of(GtkWidget* toplevel) {
    std::pair<int, int> origin;
    gdk_window_get_origin(gtk_widget_get_window(toplevel), &origin.first, &origin.second);
    return origin;
}

TEST_F(WindowToolMenu, IsAPopupOverItsWindow) {
    show(one_button);
    EXPECT_EQ(menu(), nullptr);
    GtkWidget* popup = open_menu();
    auto* window = GTK_WINDOW(popup);
    EXPECT_EQ(gtk_window_get_window_type(window), GTK_WINDOW_POPUP);
    EXPECT_EQ(gtk_window_get_type_hint(window), GDK_WINDOW_TYPE_HINT_DIALOG);
    EXPECT_EQ(gtk_window_get_transient_for(window), GTK_WINDOW(toplevel_));
    EXPECT_TRUE(test::has_class(popup, "tool-menu"));
    EXPECT_TRUE(test::has_class(popup, "zo-window"));
    EXPECT_TRUE(test::has_class(popup, "global-window"));
    EXPECT_TRUE(gtk_widget_get_visible(popup));
    EXPECT_EQ(filled_, 1);
}

TEST_F(WindowToolMenu, StandsUnderTheButtonThirtyTwoPixelsToTheLeft) {
    show(one_button);
    for (const auto& [x, y] : {std::pair(500, 300), std::pair(200, 100)}) {
        zo_window_move(window_, x, y);
        test::settle_desktop();
        GtkWidget* popup = open_menu();
        GtkAllocation button;
        gtk_widget_get_allocation(menu_button(), &button);
        EXPECT_EQ(origin_of(popup), std::pair(x + button.x - 32, y + button.y + button.height));
    }
}

TEST_F(WindowToolMenu, CentresTheGrid) {
    show(one_button);
    GtkWidget* popup = open_menu();
    GtkWidget* centred = gtk_bin_get_child(GTK_BIN(popup));
    ASSERT_TRUE(GTK_IS_BOX(centred));
    EXPECT_EQ(gtk_widget_get_halign(centred), GTK_ALIGN_CENTER);
    EXPECT_EQ(gtk_widget_get_valign(centred), GTK_ALIGN_CENTER);
    const auto inside = test::children(centred);
    ASSERT_EQ(inside.size(), 1u);
    EXPECT_TRUE(GTK_IS_GRID(inside[0]));
    EXPECT_TRUE(test::has_class(inside[0], "tool-menu-grid"));
}

TEST_F(WindowToolMenu, IsFilledBeforeItIsShown) {
    show(nullptr);
    int calls = 0;
    zo_window_set_menu_create_handler(window_, [&](zo_window_ptr called, GtkGrid* grid) {
        ++calls;
        EXPECT_EQ(called, window_.get());
        EXPECT_TRUE(test::has_class(GTK_WIDGET(grid), "tool-menu-grid"));
        EXPECT_TRUE(test::children(GTK_WIDGET(grid)).empty());
        EXPECT_EQ(menu(), nullptr);
        EXPECT_EQ(test::state_of(called), (test::state{true, true, false}));
    });
    test::click(menu_button());
    EXPECT_TRUE(test::turn_until([&] { return menu() != nullptr; }));
    EXPECT_EQ(calls, 1);
}

TEST_F(WindowToolMenu, WithNothingInItOpensAllTheSame) {
    show([](GtkGrid*) {});
    GtkWidget* popup = open_menu();
    ASSERT_NE(popup, nullptr);
    EXPECT_TRUE(test::children(test::find_class(popup, "tool-menu-grid")).empty());
}

TEST_F(WindowToolMenu, WithoutAHandlerDoesNotOpen) {
    show(nullptr);
    test::click(menu_button());
    test::settle_desktop();
    EXPECT_EQ(menu(), nullptr);
}

// The handler is called again, with a new grid, while the old menu is still there.
TEST_F(WindowToolMenu, IsBuiltAnewByASecondClick) {
    std::vector<GtkGrid*> grids;
    std::vector<bool> old_there;
    show([&](GtkGrid* grid) {
        grids.push_back(GTK_GRID(g_object_ref(grid)));
        old_there.push_back(menu() != nullptr);
        test::attach_button(grid, grids.size() == 1 ? "First" : "Second", 0, 0);
    });
    GtkWidget* first = open_menu();
    g_object_add_weak_pointer(G_OBJECT(first), reinterpret_cast<gpointer*>(&first));
    open_menu();
    EXPECT_EQ(first, nullptr);
    ASSERT_EQ(grids.size(), 2u);
    EXPECT_NE(grids[0], grids[1]);
    EXPECT_EQ(old_there, (std::vector<bool>{false, true}));
    ASSERT_NE(menu(), nullptr);
    GtkWidget* button = test::find_class(menu(), "tool-menu-button");
    EXPECT_STREQ(gtk_button_get_label(GTK_BUTTON(button)), "Second");
    for (GtkGrid* grid : grids) g_object_unref(grid);
}

TEST_F(WindowToolMenu, FollowsTheClassOfItsWindow) {
    show(one_button);
    zo_window_set_class(window_, "first");
    test::run_tasks();
    GtkWidget* popup = open_menu();
    EXPECT_TRUE(test::has_class(popup, "first"));
    EXPECT_FALSE(test::has_class(popup, "global-window"));
    zo_window_set_class(window_, "second");
    test::run_tasks();
    EXPECT_TRUE(test::has_class(popup, "second"));
    EXPECT_FALSE(test::has_class(popup, "first"));
    for (const char* fixed : {"tool-menu", "zo-window"}) {
        zo_window_set_class(window_, fixed);
        zo_window_set_class(window_, "");
        test::run_tasks();
        EXPECT_TRUE(test::has_class(popup, fixed));
    }
}

TEST_F(WindowToolMenu, OfAWindowWithoutAClassHasTheFixedOnes) {
    zo_window_set_class(window_, "");
    show(one_button);
    GtkWidget* popup = open_menu();
    GList* classes = gtk_style_context_list_classes(gtk_widget_get_style_context(popup));
    for (GList* item = classes; item; item = item->next) EXPECT_STRNE(static_cast<char*>(item->data), "");
    g_list_free(classes);
    EXPECT_TRUE(test::has_class(popup, "tool-menu"));
}

TEST_F(WindowToolMenu, MayBeFilledFromALoopOfItsOwn) {
    show([&](GtkGrid* grid) {
        test::attach_button(grid, "Open", 0, 0);
        if (filled_ == 1) gtk_button_clicked(GTK_BUTTON(menu_button()));
    });
    test::click(menu_button());
    EXPECT_TRUE(test::turn_until([&] { return menu() && test::is_on_screen(menu()); }));
    EXPECT_EQ(filled_, 2);
}

TEST_F(WindowToolMenu, HiddenByItsOwnHandlerDoesNotOpen) {
    show([this](GtkGrid* grid) {
        test::attach_button(grid, "Open", 0, 0);
        zo_window_hide(window_);
        test::run_tasks();
    });
    gtk_button_clicked(GTK_BUTTON(menu_button()));
    test::run_tasks();
    EXPECT_EQ(filled_, 1);
    EXPECT_EQ(menu(), nullptr);
    EXPECT_FALSE(test::state_of(window_).visible);
}

TEST_F(WindowToolMenu, ShownByItsOwnHandlerDoesNotOpen) {
    zo_window_set_enable_title_menu(window_, true);
    set_fill([this](GtkGrid*) {
        zo_window_show(window_);
        test::run_tasks();
    });
    toplevel_ = window_.open();
    gtk_button_clicked(GTK_BUTTON(menu_button()));
    EXPECT_EQ(menu(), nullptr) << "what was known before the handler is not so any more";
    EXPECT_TRUE(test::state_of(window_).visible);
}

TEST_F(WindowToolMenu, OfAHiddenWindowOpens) {
    show(one_button);
    zo_window_hide(window_);
    test::run_tasks();
    gtk_button_clicked(GTK_BUTTON(menu_button()));
    test::run_tasks();
    EXPECT_NE(menu(), nullptr);
    EXPECT_FALSE(test::state_of(window_).visible);
}

TEST_F(WindowToolMenu, OfAWindowThatWasNeverShownOpens) {
    zo_window_set_enable_title_menu(window_, true);
    set_fill(one_button);
    toplevel_ = window_.open();
    gtk_button_clicked(GTK_BUTTON(menu_button()));
    ASSERT_NE(menu(), nullptr);
    EXPECT_TRUE(gtk_widget_get_visible(menu()));
    GtkWidget* button = test::find_class(menu(), "tool-menu-button");
    gtk_button_clicked(GTK_BUTTON(button));
    EXPECT_EQ(menu(), nullptr);
    gtk_button_clicked(GTK_BUTTON(menu_button()));
    EXPECT_NE(menu(), nullptr);
    zo_window_close(window_);
    test::run_tasks();
    EXPECT_EQ(menu(), nullptr);
}

}  // namespace
