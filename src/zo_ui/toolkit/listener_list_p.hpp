// SPDX-License-Identifier: MIT
// A list of callables by widget, each living until its widget's "destroy".
#pragma once

#include <gtk/gtk.h>
#include <functional>
#include <map>
#include <memory>

namespace zo {

// One callable. Signal handlers hold it while they call, so that it may leave its list meanwhile.
template <typename Signature>
struct listener : std::enable_shared_from_this<listener<Signature>> {
    explicit listener(std::function<Signature> callable) : call(std::move(callable)) {}
    std::function<Signature> call;
};

template <typename Signature>
class listener_list {
  public:
    using entry = std::shared_ptr<listener<Signature>>;

    // The new entry, or null when the widget has one already. `on_destroy` is connected to the widget's
    // "destroy".
    entry add(GtkWidget* widget, std::function<Signature> callable, GCallback on_destroy) {
        const auto [place, added] = entries_.try_emplace(widget);
        if (!added) return nullptr;
        place->second = std::make_shared<listener<Signature>>(std::move(callable));
        const entry made = place->second;
        g_signal_connect(widget, "destroy", on_destroy, nullptr);
        return made;
    }

    // Null when the widget has no entry.
    entry find(GtkWidget* widget) const {
        const auto place = entries_.find(widget);
        return place == entries_.end() ? nullptr : place->second;
    }

    // Takes the entry out; it lives on while somebody calls it.
    entry take(GtkWidget* widget) {
        const auto place = entries_.find(widget);
        if (place == entries_.end()) return nullptr;
        entry taken = std::move(place->second);
        entries_.erase(place);
        return taken;
    }

    std::size_t size() const { return entries_.size(); }

    // Takes every entry's handlers off its widget: signals no longer reach the callables.
    void disconnect() {
        for (const auto& [widget, held] : entries_) g_signal_handlers_disconnect_by_data(widget, held.get());
    }

  private:
    std::map<GtkWidget*, entry> entries_;
};

}  // namespace zo
