// SPDX-License-Identifier: MIT
#include "code_regions.hpp"
#include "controls.hpp"
#include "page.hpp"
#include "texts.hpp"

using demo::_;
using demo::N_;

namespace {

// begin: contents
struct packing {
    bool expand = false;
    bool fill = true;
    bool pack_end = false;
    int padding = 6;
};

// Packs one more widget into the content box of an opened window.
void add_child(demo::workshop& shop, const packing& how) {
    GtkWidget* child = zo_ui_button_new_with_label(_("Remove me"));
    zo_ui_connect_button_click_signal(child, gtk_widget_destroy);
    gtk_widget_show(child);
    const bool packed =
        zo_window_add_content_child(shop.subject, child, how.expand,
                                    how.fill, how.padding, how.pack_end);
    if (!packed) g_object_unref(g_object_ref_sink(child));
    shop.log.add("content", packed ? "packed" : "refused: not opened");
}

// Texts may be set at any time; an opened window follows.
struct text {
    const char* name;
    const char* label;
    bool (*get)(zo_window_ptr, std::string&);
    bool (*set)(zo_window_ptr, std::string);
};
constexpr text texts[] = {
    {"title-entry", N_("Title"), zo_window_get_title,
     zo_window_set_title},
    {"id-entry", N_("Id"), zo_window_get_id, zo_window_set_id},
    {"class-entry", N_("Style class"), zo_window_get_class,
     zo_window_set_class},
};
// end: contents

std::string text_of(const text& entry, const zo_window_ptr& window) {
    std::string value;
    entry.get(window, value);
    return value;
}

void add_texts(demo::workshop& shop, GtkWidget* controls) {
    const auto entries = std::make_shared<std::vector<GtkWidget*>>();
    demo::append(controls,
                 demo::subject_chooser_new(shop, [&shop, entries] {
                     for (std::size_t i = 0; i < entries->size(); ++i)
                         gtk_entry_set_text(
                             GTK_ENTRY((*entries)[i]),
                             text_of(texts[i], shop.subject).c_str());
                 }));
    for (const text& entry : texts) {
        const auto edited = [&shop, &entry](const std::string& value) {
            if (!value.empty()) entry.set(shop.subject, value);
        };
        entries->push_back(demo::entry_new(
            entry.name, text_of(entry, shop.subject), edited));
        demo::append(controls,
                     demo::row_new(_(entry.label), entries->back()));
    }
}

void fill(demo::workshop& shop, GtkWidget* controls) {
    add_texts(shop, controls);
    const auto how = std::make_shared<packing>();
    demo::append(controls,
                 demo::heading_new(_("A child of the content box")));
    const auto toggle = [&](const char* name, const char* label,
                            bool packing::*field) {
        demo::append(controls,
                     demo::toggle_new(
                         name, label, (*how).*field,
                         [how, field](bool on) { (*how).*field = on; }));
    };
    toggle("expand", _("Takes what room is left"), &packing::expand);
    toggle("fill", _("Fills its room"), &packing::fill);
    toggle("pack-end", _("From the end of the box"), &packing::pack_end);
    demo::append(
        controls,
        demo::row_new(_("Padding, in pixels"),
                      demo::number_new(
                          "padding", 0, 48, how->padding,
                          [how](int value) { how->padding = value; })));
    demo::append(controls,
                 demo::buttons_new(
                     {{"summon", _("Open the sample"),
                       [&shop] { demo::summon(shop, shop.subject); }},
                      {"add-child", _("Add the child"),
                       [&shop, how] { add_child(shop, *how); }}},
                     2));
}

}  // namespace

const demo::page demo::contents_page{
    "contents",
    N_("Windows"),
    N_("Texts and content"),
    N_("What a window is called, and what stands in it."),
    code::contents,
    fill,
};
