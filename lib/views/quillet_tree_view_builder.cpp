#include "quillet_tree_view_builder.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "quillet_limits.h"
#include "quillet_rendering.h"
#include "quillet_text_buffer.h"
#include "quillet_tree_node_kinds.h"
#include "quillet_walk.h"

using namespace quillet;

quillet_builder_info quillet_tree_view_builder_info = {
    .builder_name = "tree",
    .builder_description = "outputs tree view of parse tree",
    .builder_id = 0,
    .constructor = quillet_tree_view_builder_create,
    .get_error_code = nullptr,
    .get_error_description = nullptr,
};

quillet_builder_info *quillet_tree_view_builder_get_info(void) {
    return &quillet_tree_view_builder_info;
}

namespace {

constexpr std::intptr_t indentation_step = 2;

void append_number(text_buffer &out, int number) {
    char digits[12];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
    out.append({digits, static_cast<std::size_t>(end - digits)});
}

void append_blanks(text_buffer &out, std::intptr_t count) {
    if (count > 0)
        std::memset(out.grow(static_cast<std::size_t>(count)), ' ',
                    static_cast<std::size_t>(count));
}

// The line of a node, but for its indentation; the number is a status, of which there is none.
constexpr std::string_view lines[] = {
#define NODE(kind) #kind " [0]\n",
#include "quillet_nodes.def"
};

// For every kind: calls whatever stands in the builder's slot, and whether that is the tree view's
// own operation, so that the walk below can do without the call.
struct kind_slot {
    bool (*is_own)(const builder &self);
    build_result *(*call)(builder *self, void *node, void *data);
};

constexpr kind_slot slots[] = {
#define NODE(kind)                                                                                 \
    {[](const builder &self) { return self.build_##kind == quillet_##kind##_tree_view; },          \
     [](builder *self, void *node, void *data) {                                                   \
         return quillet_call_build_##kind(self, static_cast<node_##kind *>(node), data);           \
     }},
#include "quillet_nodes.def"
};

// A node whose fields are being shown.
struct level {
    const void *node;
    const node_field *next;
    std::intptr_t indentation;
};

void append_foreign(text_buffer &out, build_result *result) {
    if (!result && rendering_memory_in_use().is_lacking)
        throw std::bad_alloc();
    const std::unique_ptr<build_result, freed> record(result);
    const std::unique_ptr<char, freed> text(record ? record->query : nullptr);
    if (text)
        out.append(text.get());
}

// Shows a tree. Texts are not shown; codes stand on lines of their own, at the margin.
build_result *view(builder *self, node_kind kind, const void *node, void *data) {
    const rendering_memory &memory_in_use = rendering_memory_in_use();
    text_buffer out;
    std::vector<level> memory;
    walk<level, 0> levels(memory);
    const auto show = [&](node_kind shown, const void *tree, std::intptr_t indentation) {
        append_blanks(out, indentation);
        out.append(lines[shown]);
        levels.down({tree, fields_of[shown], indentation});
    };

    show(kind, node, reinterpret_cast<std::intptr_t>(data));
    while (levels.is_down()) {
        if (out.size() > memory_in_use.text_limit) {
            if (memory_in_use.heard)
                memory_in_use.heard->add(notices::text_too_large);
            return new_result(QUILLET_BUILD_CANNOT_RENDER).release();
        }
        level &current = levels.last();
        const node_field &field = *current.next;
        if (field.role == field_role::end) {
            levels.up();
            continue;
        }
        ++current.next;
        if (field.role == field_role::code) {
            append_number(out, field_value<std::int32_t>(current.node, field));
            out.append('\n');
        } else if (field.role == field_role::child) {
            auto *child = field_value<void *>(current.node, field);
            const std::intptr_t indentation = current.indentation + indentation_step;
            if (!child)
                continue;
            if (slots[field.kind].is_own(*self))
                show(field.kind, child, indentation);
            else
                append_foreign(out, slots[field.kind].call(self, child,
                                                           reinterpret_cast<void *>(indentation)));
        }
    }

    std::unique_ptr<build_result, freed> result = new_result(0);
    result->query = out.release();
    return result.release();
}

build_result *view_if_there_is_memory(builder *self, node_kind kind, const void *node, void *data) {
    return if_there_is_memory([=] { return view(self, kind, node, data); });
}

} // namespace

char *quillet_print(int indentation, const char *label, int number) {
    try {
        text_buffer out;
        append_blanks(out, indentation);
        out.append(label);
        out.append(" [");
        append_number(out, number);
        out.append("]\n");
        return out.release();
    } catch (const std::bad_alloc &) {
        return nullptr;
    }
}

// quillet_<kind>_tree_view for every kind.
#define NODE(kind)                                                                                 \
    build_result *quillet_##kind##_tree_view(builder *self, node_##kind *node, void *data) {       \
        return view_if_there_is_memory(self, kind_##kind, node, data);                             \
    }
#include "quillet_nodes.def"

builder *quillet_tree_view_builder_create(void) {
    auto *created = made_or_lacking(static_cast<builder *>(std::calloc(1, sizeof(builder))));
    if (!created)
        return nullptr;
#define NODE(kind) created->build_##kind = quillet_##kind##_tree_view;
#include "quillet_nodes.def"
    return created;
}
