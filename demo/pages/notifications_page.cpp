// SPDX-License-Identifier: MIT
// The code of this page raises the demo's notifications.
#include "code_regions.hpp"
#include "controls.hpp"
#include "notifications.hpp"
#include "page.hpp"
#include "texts.hpp"

using demo::_;

namespace {

void add_own(demo::workshop& shop, GtkWidget* controls) {
    struct own {
        std::string title = _("Your own");
        std::string content = _("With <b>markup</b>, if you like.");
    };
    const auto texts = std::make_shared<own>();
    demo::append(controls, demo::heading_new(_("One of your own")));
    demo::append(controls,
                 demo::row_new(_("Title"),
                               demo::entry_new("own-title", texts->title,
                                               [texts](auto text) {
                                                   texts->title = text;
                                               })));
    demo::append(controls,
                 demo::row_new(_("Text"),
                               demo::entry_new("own-text", texts->content,
                                               [texts](auto text) {
                                                   texts->content = text;
                                               })));
    demo::append(controls,
                 demo::buttons_new({{"raise-own", _("Raise it"),
                                     [&shop, texts] {
                                         demo::raise_own_message(
                                             shop, texts->title,
                                             texts->content);
                                     }}},
                                   1));
}

void fill(demo::workshop& shop, GtkWidget* controls) {
    std::vector<demo::button_text> kinds;
    for (const demo::message& kind : demo::messages())
        kinds.push_back({kind.name, _(kind.label), [&shop, &kind] {
                             demo::raise_message(shop, kind);
                         }});
    demo::append(controls, demo::buttons_new(kinds, 2));
    demo::append(controls, demo::heading_new(_("How they are shown")));
    demo::append(controls,
                 demo::toggle_new(
                     "on-panel",
                     _("On the panel's stack, at the end of the screen"),
                     shop.messages_on_panel,
                     [&shop](bool on) { shop.messages_on_panel = on; }));
    demo::append(controls,
                 demo::toggle_new("leaving", _("For two seconds only"),
                                  shop.messages_leave, [&shop](bool on) {
                                      shop.messages_leave = on;
                                  }));
    demo::append(
        controls,
        demo::facts_new({{_("On the screen now"), [&shop] {
                              return std::to_string(shop.raised.size());
                          }}}));
    demo::append(
        controls,
        demo::buttons_new({{"close-all", _("Close all"),
                            [&shop] { demo::close_messages(shop); }}},
                          1));
    add_own(shop, controls);
    demo::append(controls,
                 demo::note_new(_("A text that is not markup is shown as "
                                  "it is. An action closes its "
                                  "notification; a link does not.")));
}

}  // namespace

const demo::page demo::notifications_page{
    "notifications",     N_("Messages"),
    N_("Notifications"), N_("Stacked below one another, without a gap."),
    code::notifications, fill,
};
