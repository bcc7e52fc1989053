#include "quillet_diagnostics.h"

#include <algorithm>
#include <limits>

#include "quillet_parsing.h"
#include "quillet_statement_parser.h"
#include "quillet_tree_memory.h"
#include "quillet_tree_node_kinds.h"

namespace quillet {

namespace {

// A node and the same node of a tree with places.
struct node_pair {
    const void *node;
    const void *placed;
    node_kind kind;
};

// The places of some nodes of a tree, found by a walk through it and through the tree of the same
// statement parsed with places.
class place_finder {
public:
    place_finder(const std::vector<finding> &found, place of_others) {
        for (const finding &each : found)
            if (each.node)
                wanted_.push_back({each.node, of_others});
        std::sort(wanted_.begin(), wanted_.end(), by_node);
        const auto is_same = [](const placed_node &a, const placed_node &b) {
            return a.node == b.node;
        };
        wanted_.erase(std::unique(wanted_.begin(), wanted_.end(), is_same), wanted_.end());
    }

    bool is_needed() const { return !wanted_.empty(); }

    void walk(const node_main *tree, const node_main *with_places) {
        std::vector<node_pair> left{{tree, with_places, kind_main}};
        while (!left.empty()) {
            const node_pair next = left.back();
            left.pop_back();
            if (placed_node *found = find(next.node))
                found->where = place_before(next.placed);
            for (const node_field *field = fields_of[next.kind]; field->role != field_role::end;
                 ++field) {
                if (field->role != field_role::child)
                    continue;
                const void *child = field_value<const void *>(next.node, *field);
                const void *placed = field_value<const void *>(next.placed, *field);
                if (child && placed) // a host may have changed the first tree
                    left.push_back({child, placed, field->kind});
            }
        }
    }

    place operator()(const void *node) { return find(node)->where; }

private:
    struct placed_node {
        const void *node;
        place where;
    };

    static bool by_node(const placed_node &a, const placed_node &b) {
        return std::less<>()(a.node, b.node);
    }

    placed_node *find(const void *node) {
        const auto found =
            std::lower_bound(wanted_.begin(), wanted_.end(), placed_node{node, {}}, by_node);
        return found != wanted_.end() && found->node == node ? &*found : nullptr;
    }

    std::vector<placed_node> wanted_;
};

// Whether a word stands before a string that is no type's.
bool has_lost_word(const node_const_generic &literal) {
    return literal.const_string && literal.type == QUILLET_TYPE_UNKNOWN &&
           place_before(&literal).begin < place_before(literal.const_string).begin;
}

} // namespace

std::string_view character_at(std::string_view text, std::size_t position) {
    const auto first = static_cast<unsigned char>(text[position]);
    const std::size_t size = first < 0xc2   ? 1
                             : first < 0xe0 ? 2
                             : first < 0xf0 ? 3
                             : first < 0xf5 ? 4
                                            : 1;
    const std::string_view character = text.substr(position, size);
    const bool is_whole = character.size() == size &&
                          std::none_of(character.begin() + 1, character.end(), begins_character);
    return is_whole ? character : character.substr(0, 1);
}

void diagnostic_list::add(const notice &what, place where) {
    list_.push_back({.severity = what.severity,
                     .code = what.code,
                     .id = what.id,
                     .message = what.message,
                     .hint = what.hint,
                     .offset = where.begin,
                     .length = where.end - where.begin,
                     .line = 0,
                     .column = 0});
}

void diagnostic_list::add(const notice &what, place where, std::string message) {
    notice own = what;
    own.message = texts_.emplace_back(std::move(message)).c_str();
    add(own, where);
}

template <class PlaceOf>
void diagnostic_list::add(findings &found, std::string_view statement, PlaceOf place_of) {
    for (const finding &each : found.list)
        add(each.what, each.node ? place_of(each.node) : whole(statement));
    texts_of_findings_ = std::move(found.texts); // whole, as the messages point into it
}

void diagnostic_list::add_lost_types(const notice &what, const node_main *tree_with_places) {
    visit_tree(tree_with_places, kind_main, [&](const void *node, node_kind kind) {
        if (kind == kind_const_generic)
            if (has_lost_word(*static_cast<const node_const_generic *>(node)))
                add(what, place_before(node));
        return true;
    });
}

void diagnostic_list::add(findings &found, std::string_view statement, const parse_result &parsed,
                          const notice *lost_type) {
    if (parsed.has_places) {
        if (lost_type)
            add_lost_types(*lost_type, parsed.root);
        return add(found, statement, place_before);
    }
    place_finder places(found.list, whole(statement));
    if (places.is_needed() || lost_type) {
        tree_memory memory;
        const tree_under_way placed(memory, tree_owner::library,
                                    std::numeric_limits<std::size_t>::max());
        const node_main *again = parse_statement_with_places(statement, memory).root;
        if (again)
            places.walk(parsed.root, again);
        if (again && lost_type)
            add_lost_types(*lost_type, again);
    }
    add(found, statement, [&](const void *node) { return places(node); });
}

bool diagnostic_list::explains_failure() const {
    return std::any_of(list_.begin(), list_.end(), [](const quillet_diagnostic &each) {
        return each.severity >= QUILLET_REFUSAL;
    });
}

void diagnostic_list::finish(std::string_view statement, std::int32_t least_severity) {
    std::erase_if(list_,
                  [&](const quillet_diagnostic &each) { return each.severity < least_severity; });
    std::stable_sort(list_.begin(), list_.end(),
                     [](const quillet_diagnostic &a, const quillet_diagnostic &b) {
                         return a.offset < b.offset;
                     });
    std::int32_t line = 1;
    std::int32_t column = 1;
    std::size_t position = 0;
    for (quillet_diagnostic &each : list_) {
        for (; position < each.offset; ++position) {
            if (statement[position] == '\n') {
                ++line;
                column = 1;
            } else if (begins_character(statement[position])) {
                ++column;
            }
        }
        each.line = line;
        each.column = column;
    }
}

} // namespace quillet
