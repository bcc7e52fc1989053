#include "inspection.h"

#include <array>
#include <cstdlib>
#include <new>
#include <string>
#include <utility>

#include "quillet_operators.h"
#include "quillet_own_builders.h"
#include "quillet_parsing.h"
#include "quillet_statement_parser.h"
#include "quillet_text_buffer.h"
#include "quillet_translation_context.h"
#include "quillet_tree_node_kinds.h"

namespace quillet {

namespace {

constexpr const char *kind_names[] = {
#define NODE(kind) #kind,
#include "quillet_nodes.def"
};

// The words and signs of an operator's text, without its operands: "BETWEEN AND".
std::string label_of_operator(std::string_view text) {
    std::string label;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '$')
            ++i;
        else if (text[i] == '(' || text[i] == ')')
            continue;
        else if (text[i] != ' ' || (!label.empty() && label.back() != ' '))
            label += text[i];
    }
    if (label.ends_with(' '))
        label.pop_back();
    return label;
}

const char *label_of_operator(const char *name) {
    static const std::string labels[] = {
#define OPERATOR(name, text, ...) label_of_operator(std::string_view(text)),
#include "quillet_operators.def"
    };
    const int index = operator_index(name);
    return index == no_operator ? nullptr : labels[index].c_str();
}

const char *label_of_type(int type) { return type == 0 ? nullptr : quillet_type_to_string(type); }

const char *label_of_join(const node_join &join) {
    constexpr std::array<std::array<const char *, 2>, 6> labels = {{{nullptr, nullptr},
                                                                    {"CROSS", "NATURAL CROSS"},
                                                                    {"INNER", "NATURAL INNER"},
                                                                    {"LEFT", "NATURAL LEFT"},
                                                                    {"RIGHT", "NATURAL RIGHT"},
                                                                    {"FULL", "NATURAL FULL"}}};
    return labels[static_cast<std::size_t>(join.type)][join.natural ? 1 : 0];
}

const char *label_of(const void *node, node_kind kind) {
    switch (kind) {
    case kind_expression: {
        const auto &expression = *static_cast<const node_expression *>(node);
        if (expression.operator_)
            return label_of_operator(expression.operator_);
        return expression.expression_1 ? "()" : nullptr;
    }
    case kind_const_generic: {
        const auto &constant = *static_cast<const node_const_generic *>(node);
        const bool is_null = !constant.const_boolean && !constant.const_string &&
                             !constant.const_integer && !constant.const_floating;
        return is_null ? "NULL" : label_of_type(constant.type);
    }
    case kind_const_boolean:
        switch (static_cast<const node_const_boolean *>(node)->value) {
        case QUILLET_TRUTH_TRUE: return "TRUE";
        case QUILLET_TRUTH_FALSE: return "FALSE";
        default: return "UNKNOWN";
        }
    case kind_cast_expression:
        return label_of_type(static_cast<const node_cast_expression *>(node)->type);
    case kind_join: return label_of_join(*static_cast<const node_join *>(node));
    case kind_order_by_item:
        return static_cast<const node_order_by_item *>(node)->type == QUILLET_SORT_ASCENDING
                   ? "ASC"
                   : "DESC";
    case kind_select_item: {
        const auto &item = *static_cast<const node_select_item *>(node);
        return item.expression ? nullptr : "*";
    }
    case kind_expression_or_default_item:
        return static_cast<const node_expression_or_default_item *>(node)->expression ? nullptr
                                                                                      : "DEFAULT";
    case kind_trim_argument:
        switch (static_cast<const node_trim_argument *>(node)->mode) {
        case QUILLET_TRIM_LEADING: return "LEADING";
        case QUILLET_TRIM_TRAILING: return "TRAILING";
        default: return "BOTH";
        }
    case kind_agregate_expression:
        switch (static_cast<const node_agregate_expression *>(node)->type) {
        case QUILLET_AGREGATE_DISTINCT: return "DISTINCT";
        case QUILLET_AGREGATE_ALL: return "ALL";
        default: return "*";
        }
    default: break;
    }
    for (const node_field *field = fields_of[kind]; field->role != field_role::end; ++field)
        if (field->role == field_role::text)
            return field_value<const char *>(node, *field);
    return nullptr;
}

// A node that is not in the list yet.
struct waiting_node {
    const void *node;
    node_kind kind;
    std::uint32_t parent;
};

// Adds the children of a node in the order of their places, the last one first. Those of a list are
// its items: each list node has one, and the list of those before it.
void add_children(std::vector<waiting_node> &waiting, const void *node, node_kind kind,
                  std::uint32_t parent) {
    const std::size_t begin = waiting.size();
    for (const void *rest = node; rest;) {
        const void *list = std::exchange(rest, nullptr);
        for (const node_field *field = fields_of[kind]; field->role != field_role::end; ++field) {
            if (field->role != field_role::child)
                continue;
            const void *child = field_value<const void *>(list, *field);
            if (field->kind == kind && kind != kind_expression) {
                rest = child;
            } else if (child) {
                // Items come so already, and the few fields of others nearly.
                waiting.push_back({child, field->kind, parent});
                for (std::size_t i = waiting.size() - 1;
                     i > begin &&
                     place_before(waiting[i - 1].node).begin < place_before(waiting[i].node).begin;
                     --i)
                    std::swap(waiting[i - 1], waiting[i]);
            }
        }
    }
}

} // namespace

inspection::inspection(std::string_view statement, int builder_id)
    : translation_(quillet_translate(statement.data(), statement.size(), builder_id, nullptr)) {
    if (node_main *root = parse_statement_with_places(statement, memory_).root) {
        infer_types(root, builder_id);
        list_nodes(root);
    }
}

// Rendering infers them; the text itself is not needed.
void inspection::infer_types(node_main *root, int builder_id) {
    const borrowed_context context;
    rendering_memory &memory = context->rendering;
    memory.text_limit = QUILLET_TEXT_SIZE_MAXIMUM;
    memory.heard = nullptr;
    memory.remarks = nullptr;
    const own_builders::own_builder *own = context->builders.find(builder_info_of(builder_id));
    const rendering_under_way under_way(&memory, &own->slots);
    const std::unique_ptr<build_result, freed> result(
        quillet_call_build_main(own->self, root, nullptr));
    if (result)
        std::free(result->query);
    if (memory.is_lacking)
        throw std::bad_alloc();
}

void inspection::list_nodes(const node_main *root) {
    std::vector<waiting_node> waiting{{root, kind_main, 0}};
    while (!waiting.empty()) {
        const auto [node, kind, parent] = waiting.back();
        waiting.pop_back();
        const place where = place_before(node);
        const auto type = field_value<std::int32_t>(node, node_field{}); // the first of each record
        const auto index = static_cast<std::uint32_t>(nodes_.size());
        nodes_.push_back({kind_names[kind], label_of(node, kind), label_of_type(type), where.begin,
                          where.end, parent});
        add_children(waiting, node, kind, index);
    }
}

} // namespace quillet
