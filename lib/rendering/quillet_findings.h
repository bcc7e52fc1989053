/*
 * What there is to say about a statement besides its text. Internal.
 *
 * Where a renderer fails it says so of the node that it renders. For quillet_translate that is
 * kept; the classic call knows the last reason alone.
 */
#ifndef QUILLET_FINDINGS_H
#define QUILLET_FINDINGS_H

#include <cstddef>
#include <cstdint>
#include <list>
#include <string>
#include <vector>

#include "quillet_diagnostic.h"
#include "quillet_tree_node_kinds.h"

namespace quillet {

// What can be said of a construct. The texts are static ones, or kept by the findings.
struct notice {
    std::int32_t severity = QUILLET_ERROR;
    std::int32_t code = 0; // of a refusal: the builder's own
    const char *id = "";
    const char *message = "";
    const char *hint = nullptr;
};

namespace notices {

inline constexpr const char *no_hint = nullptr;
#define NOTICE(name, severity, id, message, hint)                                                  \
    inline constexpr notice name{severity, 0, id, message, hint};
#include "quillet_notices.def"

} // namespace notices

// What is said of a construct that lacks a part which it must have.
const notice &missing_part_of(node_kind kind);

// Something said of a construct.
struct finding {
    notice what;
    const void *node = nullptr; // NULL: of the whole statement
    node_kind kind = node_kind_count;
};

// What has been found in a translation.
struct findings {
    std::vector<finding> list;
    std::list<std::string> texts;
    std::int32_t reason = 0; // the last one of the builder mysql

    bool is_exhausted = false; // whether no more is looked for in what is not rendered

    // The reasons of a host's operations, where they have some.
    std::int32_t (*host_code)() = nullptr;
    const char *(*host_description)() = nullptr;

    void add(const notice &what, const void *node = nullptr, node_kind kind = node_kind_count) {
        list.push_back({what, node, kind});
    }

    // Takes note of a node that a host's operation has failed with.
    void add_of_host(std::int32_t status, const void *node, node_kind kind);
};

} // namespace quillet

#endif
