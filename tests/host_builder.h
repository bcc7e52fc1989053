// Builders as a host may change them: each filled slot holds an operation of the host, which calls
// the one that it stands for. Nothing is rendered in place then, and all must come out the same.
#ifndef QUILLET_TESTS_HOST_BUILDER_H
#define QUILLET_TESTS_HOST_BUILDER_H

#include "quillet.h"
#include "quillet_builder.h"

namespace quillet_tests {

template <class Node> using slot = build_result *(*builder::*)(builder *, Node *, void *);

template <class Node, slot<Node> Slot> struct stand_in {
    static build_result *call(builder *self, Node *node, void *data) {
        return own(self, node, data);
    }

    static void install(builder &self) {
        own = self.*Slot;
        if (own)
            self.*Slot = call;
    }

    static inline build_result *(*own)(builder *, Node *, void *) = nullptr;
};

// While one lives, translations with a builder go through operations of a host.
class hosted {
public:
    explicit hosted(int builder_id) : info(*quillet_get_builder_info(builder_id)) {
        constructor = info.constructor;
        info.constructor = create;
    }
    ~hosted() { info.constructor = constructor; }
    hosted(const hosted &) = delete;
    hosted &operator=(const hosted &) = delete;

private:
    static builder *create() {
        builder *created = constructor();
        if (!created)
            return nullptr;
#define NODE(kind) stand_in<node_##kind, &builder::build_##kind>::install(*created);
#include "quillet_nodes.def"
#define OPERATOR(name, ...)                                                                        \
    stand_in<node_expression, &builder::build_operator_##name>::install(*created);
#include "quillet_operators.def"
#define FUNCTION(name, rule)                                                                       \
    stand_in<node_function_call, &builder::build_function_##name>::install(*created);
#include "quillet_functions.def"
        return created;
    }

    quillet_builder_info &info;
    static inline builder *(*constructor)() = nullptr;
};

} // namespace quillet_tests

#endif
