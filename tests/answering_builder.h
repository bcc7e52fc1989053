// A builder whose operations answer what a test chose, to see what one operation does.
#ifndef QUILLET_TESTS_ANSWERING_BUILDER_H
#define QUILLET_TESTS_ANSWERING_BUILDER_H

#include <map>
#include <ostream>
#include <vector>

#include "support.h"

namespace quillet_tests {

// A builder that answers for every node what the test chose for it, and keeps the order in which
// the nodes came. A node without an answer has no record.

inline std::map<const void *, outcome> answers;

struct visit {
    const void *node;
    void *data;
    bool operator==(const visit &) const = default;

    friend std::ostream &operator<<(std::ostream &out, const visit &shown) {
        return out << shown.node << " with " << shown.data;
    }
};

inline std::vector<visit> visits;

inline build_result *answered(const void *node, void *data) {
    visits.push_back({node, data});
    const outcome answer = answers[node];
    if (!answer.record)
        return nullptr;
    build_result *result = quillet_build_result_create();
    result->query = answer.text ? copy(answer.text->c_str()) : nullptr;
    result->build_result = answer.status;
    return result;
}

template <class Node> build_result *answer(builder *, Node *node, void *data) {
    return answered(node, data);
}

// Operations on nodes that have answers. Begins without any.
class answering {
public:
    answering() {
        answers.clear();
        visits.clear();
#define NODE(kind) self.build_##kind = answer<node_##kind>;
#include "quillet_nodes.def"
#define OPERATOR(name, ...) self.build_operator_##name = answer<node_expression>;
#include "quillet_operators.def"
    }

    // A child that answers this.
    template <class Node> Node *child(Node *node, const outcome &result) {
        answers[node] = result;
        return node;
    }
    template <class Node> Node *child(const outcome &result) {
        return child(create<Node>(), result);
    }
    node_expression *expression(const outcome &result, int type = 0) {
        return child(make(node_expression{.sql_type = type}), result);
    }

    // Renders a node by an operation and keeps its type.
    template <class Node>
    outcome render(build_result *(*operation)(builder *, Node *, void *), Node *node,
                   void *data = nullptr) {
        const owned<Node> holder(node);
        outcome result = taken(operation(&self, node, data));
        rendered_type = node->sql_type;
        return result;
    }

    builder self{};
    int rendered_type = -1; // of the last node
};

} // namespace quillet_tests

#endif
