/*
 * Rendering of list chains, whatever their length. Internal.
 */
#ifndef QUILLET_LISTS_H
#define QUILLET_LISTS_H

#include "quillet_rendering.h"

namespace quillet {

inline constexpr std::string_view comma = ", ";
inline constexpr std::string_view blank = " "; // only between two non-empty texts

// How the data argument of a list goes to its parts; by default they get none.
struct no_data {
    static void *earlier(void *) { return nullptr; }
    static void *item(void *) { return nullptr; }
};

// Renders a list: the items before the head's own, then that one. Earlier and Item are the list's
// fields for the two; a list node without an item is a missing part.
template <auto Earlier, auto Item, class Data = no_data, class List>
outcome render_list(rendering &r, List *head, void *data, std::string_view separator) {
    const bool own = r.home_of(slot_of<List>::operation) != nullptr;
    walk<list_step> steps = r.list_walk();
    const output::place begin = r.out.here();

    // Down to the first item, or to the first list node that is not ours to render.
    List *list = head;
    outcome result = absent;
    for (;;) {
        if (!(list->*Item)) {
            result = r.lacks(list);
            break;
        }
        steps.down({list, data});
        List *earlier = list->*Earlier;
        data = Data::earlier(data);
        if (!earlier)
            break;
        if (!own) {
            result = r.child(earlier, data);
            break;
        }
        list = earlier;
    }

    // And back up to the last item.
    while (steps.is_down()) {
        const list_step step = steps.up();
        list = static_cast<List *>(step.node);
        outcome item;
        if (separator == blank) {
            item = r.spaced_child(begin, list->*Item);
        } else {
            if (result.text)
                r.out.append(separator);
            item = r.child(list->*Item, Data::item(step.data));
        }
        if constexpr (requires { list->count; })
            list->count = result.text ? (list->*Earlier)->count + 1 : 1;
        result = {true, result.text || item.text, result.status};
        result.fail_with(item);
    }
    return result;
}

} // namespace quillet

#endif
