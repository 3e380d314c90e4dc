// SPDX-License-Identifier: MIT
#include <zo_ui/zo_window_manager/task_row_p.hpp>

#include <zo_ui/toolkit/layout_idle_p.hpp>

#include <algorithm>
#include <initializer_list>
#include <utility>
#include <vector>

namespace {

struct task_slot {
    GtkWidget* child;
    GtkRequisition smallest;
    GtkRequisition natural;
    bool changed;         // since it was measured
    GtkAllocation place;  // at the last layout
};

// What the scroller shows of the row.
struct sight {
    double first = 0;
    double last = 0;
    bool operator==(const sight&) const = default;
};

struct task_slots {
    GtkAdjustment* scrolled = nullptr;    // the row's own reference
    std::vector<task_slot> all;           // the rightmost first
    sight seen;                           // at the last layout
    const GdkRectangle* drawn = nullptr;  // what of the row, while its drawing begins
    bool plain = false;                   // a box like any other, since somebody packed into it
    zo::layout_idle later;
};

struct task_row {
    GtkBox box;
    task_slots* slots;
};

GtkWidgetClass* box_class = nullptr;

task_slots& slots_of(gpointer row) { return *static_cast<task_row*>(row)->slots; }

GtkWidgetClass* container_class() {
    return static_cast<GtkWidgetClass*>(g_type_class_peek(GTK_TYPE_CONTAINER));
}

using edge_getter = void (*)(GtkStyleContext*, GtkStateFlags, GtkBorder*);

GtkAllocation inside(GtkAllocation place, GtkWidget* row, std::initializer_list<edge_getter> edges) {
    for (const edge_getter get : edges) {
        GtkBorder edge{};
        get(gtk_widget_get_style_context(row), gtk_widget_get_state_flags(row), &edge);
        place.x += edge.left;
        place.y += edge.top;
        place.width -= edge.left + edge.right;
        place.height -= edge.top + edge.bottom;
    }
    return place;
}

GtkAllocation content_of(GtkWidget* row, const GtkAllocation& place) {
    return inside(
        place, row,
        {gtk_style_context_get_margin, gtk_style_context_get_border, gtk_style_context_get_padding});
}

GtkContainerClass* box() { return GTK_CONTAINER_CLASS(box_class); }

// A container of this mode is told when something in it changes its size, and tells nobody else.
void set_told(GtkWidget* child, bool told) {
    G_GNUC_BEGIN_IGNORE_DEPRECATIONS
    gtk_container_set_resize_mode(GTK_CONTAINER(child), told ? GTK_RESIZE_IMMEDIATE : GTK_RESIZE_PARENT);
    G_GNUC_END_IGNORE_DEPRECATIONS
}

void let_go(GtkWidget* row, GtkWidget* child) {
    g_signal_handlers_disconnect_by_data(child, row);
    set_told(child, false);
}

// Does the box hold what was added here, in that order, and nothing else?
bool is_as_added(GtkWidget* row) {
    struct walk {
        std::vector<task_slot>::const_reverse_iterator next;
        std::vector<task_slot>::const_reverse_iterator end;
        bool same = true;
    };
    const std::vector<task_slot>& all = slots_of(row).all;
    walk state{all.rbegin(), all.rend()};
    const auto look = +[](GtkWidget* child, gpointer data) {
        auto& at = *static_cast<walk*>(data);
        if (at.next == at.end || at.next->child != child)
            at.same = false;
        else
            ++at.next;
    };
    box()->forall(GTK_CONTAINER(row), FALSE, look, &state);
    return state.same && state.next == state.end;
}

// What an application packs or orders by itself is a matter for a box.
bool is_plain(GtkWidget* row) {
    task_slots& slots = slots_of(row);
    if (slots.plain || is_as_added(row)) return slots.plain;
    slots.plain = true;
    for (const task_slot& slot : std::exchange(slots.all, {})) let_go(row, slot.child);
    return true;
}

// Nobody tells of changes before the row is realized, or in what is hidden.
void measure(GtkWidget* row) {
    const bool told = gtk_widget_get_realized(row);
    for (task_slot& slot : slots_of(row).all) {
        if (!gtk_widget_get_visible(slot.child)) {
            slot.smallest = slot.natural = {};
            slot.changed = true;
        } else if (slot.changed || !told) {
            slot.changed = false;
            gtk_widget_get_preferred_size(slot.child, &slot.smallest, &slot.natural);
        }
    }
}

// With the edges, and at least what the style sheet asks for.
int with_edges(GtkWidget* row, int content, const char* least, int GtkAllocation::*extent) {
    int asked = 0;
    gtk_style_context_get(gtk_widget_get_style_context(row), gtk_widget_get_state_flags(row), least, &asked,
                          nullptr);
    return std::max(content, asked) - content_of(row, {}).*extent;
}

GtkSizeRequestMode request_mode(GtkWidget* row) {
    return is_plain(row) ? box_class->get_request_mode(row) : GTK_SIZE_REQUEST_CONSTANT_SIZE;
}

void preferred_width(GtkWidget* row, int* smallest, int* natural) {
    if (is_plain(row)) return box_class->get_preferred_width(row, smallest, natural);
    measure(row);
    int least = 0;
    int best = 0;
    for (const task_slot& slot : slots_of(row).all) {
        least += slot.smallest.width;
        best += slot.natural.width;
    }
    *smallest = with_edges(row, least, "min-width", &GtkAllocation::width);
    *natural = with_edges(row, best, "min-width", &GtkAllocation::width);
}

void preferred_height(GtkWidget* row, int* smallest, int* natural) {
    if (is_plain(row)) return box_class->get_preferred_height(row, smallest, natural);
    measure(row);
    int least = 0;
    int best = 0;
    for (const task_slot& slot : slots_of(row).all) {
        least = std::max(least, slot.smallest.height);
        best = std::max(best, slot.natural.height);
    }
    *smallest = with_edges(row, least, "min-height", &GtkAllocation::height);
    *natural = with_edges(row, best, "min-height", &GtkAllocation::height);
}

// What the slots get of the width. Room to spare goes to those that are further from their natural width.
std::vector<GtkRequestedSize> widths_of(const std::vector<task_slot>& slots, int width) {
    std::vector<GtkRequestedSize> sizes;
    sizes.reserve(slots.size());
    int spare = width;
    for (const task_slot& slot : slots) {
        sizes.push_back({nullptr, slot.smallest.width, slot.natural.width});
        spare -= slot.smallest.width;
    }
    if (spare > 0 && !sizes.empty())
        gtk_distribute_natural_allocation(spare, static_cast<guint>(sizes.size()), sizes.data());
    return sizes;
}

sight sight_of(GtkAdjustment* scrolled) {
    const double first = gtk_adjustment_get_value(scrolled);
    return {first, first + gtk_adjustment_get_page_size(scrolled)};
}

bool is_same(const GtkAllocation& a, const GtkAllocation& b) {
    return a.x == b.x && a.y == b.y && a.width == b.width && a.height == b.height;
}

// Returns whether it is in sight. One that is not, and stays where it is, learns of changes in it when it
// comes into sight.
bool place(task_slot& slot, const GtkAllocation& wanted, const sight& seen) {
    const bool in_sight = wanted.x < seen.last && wanted.x + wanted.width > seen.first;
    if (!in_sight && is_same(slot.place, wanted)) return false;
    slot.place = wanted;
    GtkAllocation allocation = wanted;
    gtk_widget_size_allocate(slot.child, &allocation);
    return in_sight;
}

void allocate(GtkWidget* row, GtkAllocation* allocation) {
    if (is_plain(row)) return box_class->size_allocate(row, allocation);
    gtk_widget_set_allocation(row, allocation);
    task_slots& slots = slots_of(row);
    const GtkAllocation content = content_of(row, *allocation);
    const std::vector<GtkRequestedSize> widths = widths_of(slots.all, content.width);
    const bool right_to_left = gtk_widget_get_direction(row) == GTK_TEXT_DIR_RTL;
    slots.seen = sight_of(slots.scrolled);
    GtkAllocation clip = *allocation;
    int used = 0;
    for (std::size_t i = 0; i < widths.size(); ++i) {
        if (!gtk_widget_get_visible(slots.all[i].child)) continue;
        const int width = widths[i].minimum_size;
        const int x = right_to_left ? content.x + used : content.x + content.width - used - width;
        used += width;
        if (!place(slots.all[i], {x, content.y, width, std::max(content.height, 1)}, slots.seen)) continue;
        GtkAllocation drawn{};
        gtk_widget_get_clip(slots.all[i].child, &drawn);
        gdk_rectangle_union(&clip, &drawn, &clip);
    }
    gtk_widget_set_clip(row, &clip);
}

gboolean draw(GtkWidget* row, cairo_t* cairo) {
    if (is_plain(row)) return box_class->draw(row, cairo);
    GdkRectangle drawn{};
    if (!gdk_cairo_get_clip_rectangle(cairo, &drawn)) return FALSE;
    GtkAllocation place{};
    gtk_widget_get_allocation(row, &place);
    drawn.x += place.x;
    drawn.y += place.y;
    const GtkAllocation frame =
        inside({0, 0, place.width, place.height}, row, {gtk_style_context_get_margin});
    GtkStyleContext* const style = gtk_widget_get_style_context(row);
    gtk_render_background(style, cairo, frame.x, frame.y, frame.width, frame.height);
    gtk_render_frame(style, cairo, frame.x, frame.y, frame.width, frame.height);
    slots_of(row).drawn = &drawn;
    return container_class()->draw(row, cairo);
}

// The first walk of a drawing gathers what is drawn.
void for_all(GtkContainer* row, gboolean internal, GtkCallback callback, gpointer data) {
    task_slots& slots = slots_of(row);
    const GdkRectangle* const drawn = std::exchange(slots.drawn, nullptr);
    if (!drawn) return box()->forall(row, internal, callback, data);
    for (auto slot = slots.all.rbegin(); slot != slots.all.rend(); ++slot) {  // in the order of a box
        GtkAllocation clip{};
        gtk_widget_get_clip(slot->child, &clip);
        if (gdk_rectangle_intersect(&clip, drawn, nullptr)) callback(slot->child, data);
    }
}

// The child itself would be laid out at once.
void on_changed(GtkWidget* child, GtkWidget* row) {
    g_signal_stop_emission_by_name(child, "check-resize");
    for (task_slot& slot : slots_of(row).all)
        if (slot.child == child) slot.changed = true;
    gtk_widget_queue_resize_no_redraw(row);
}

// Each layout of the scroller tells of its size, be it the same, and the row may have had its turn in it
// already.
void on_scrolled(GtkWidget* row) {
    task_slots& slots = slots_of(row);
    const auto has_moved = [&slots] { return sight_of(slots.scrolled) != slots.seen; };
    if (has_moved())
        slots.later.ask([row, has_moved] {
            if (has_moved()) gtk_widget_queue_allocate(row);
        });
}

void remove(GtkContainer* row, GtkWidget* child) {
    const auto is_it = [child](const task_slot& slot) { return slot.child == child; };
    if (std::erase_if(slots_of(row).all, is_it) > 0) let_go(GTK_WIDGET(row), child);
    box()->remove(row, child);
    gtk_widget_queue_resize(GTK_WIDGET(row));
}

void finalize(GObject* row) {
    task_slots* const slots = static_cast<task_row*>(static_cast<gpointer>(row))->slots;
    g_clear_object(&slots->scrolled);
    delete slots;
    G_OBJECT_CLASS(box_class)->finalize(row);
}

void init_class(gpointer type, gpointer) {
    box_class = static_cast<GtkWidgetClass*>(g_type_class_peek_parent(type));
    static_cast<GObjectClass*>(type)->finalize = finalize;
    auto& widget = *static_cast<GtkWidgetClass*>(type);
    widget.get_request_mode = request_mode;
    widget.get_preferred_width = preferred_width;
    widget.get_preferred_height = preferred_height;
    widget.get_preferred_height_and_baseline_for_width = nullptr;
    widget.size_allocate = allocate;
    widget.draw = draw;
    auto& container = *static_cast<GtkContainerClass*>(type);
    container.remove = remove;
    container.forall = for_all;
    // A box tells the style of a child of all its siblings.
    container.get_path_for_child = GTK_CONTAINER_CLASS(container_class())->get_path_for_child;
}

void init_row(GTypeInstance* row, gpointer) {
    static_cast<task_row*>(static_cast<gpointer>(row))->slots = new task_slots{};
}

GType row_type() {
    static const GType type = g_type_register_static_simple(
        GTK_TYPE_BOX, "ZoTaskRow", sizeof(GtkBoxClass), init_class, sizeof(task_row), init_row, GTypeFlags{});
    return type;
}

}  // namespace

GtkWidget* zo::task_row_new(GtkScrolledWindow* scroller) {
    auto* const row = static_cast<GtkWidget*>(g_object_new(row_type(), "visible", TRUE, nullptr));
    GtkAdjustment* const scrolled = gtk_scrolled_window_get_hadjustment(scroller);
    slots_of(row).scrolled = static_cast<GtkAdjustment*>(g_object_ref(scrolled));
    gtk_container_add(GTK_CONTAINER(scroller), row);
    for (const char* signal : {"value-changed", "notify::page-size"})
        g_signal_connect_object(scrolled, signal, G_CALLBACK(on_scrolled), row, G_CONNECT_SWAPPED);
    return row;
}

void zo::task_row_add(GtkWidget* row, GtkWidget* child) {
    if (!is_plain(row)) {
        slots_of(row).all.push_back({child, {}, {}, true, {}});
        set_told(child, true);
        g_signal_connect(child, "check-resize", G_CALLBACK(on_changed), row);
    }
    // For a visible child that comes GTK computes the styles of all others anew, for one that is shown it
    // does not.
    gtk_widget_hide(child);
    gtk_box_pack_end(GTK_BOX(row), child, FALSE, FALSE, 0);
    gtk_widget_show(child);
    gtk_widget_queue_resize(row);
}
