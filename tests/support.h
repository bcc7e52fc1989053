// What several tests share: owned results and trees, small trees to render, the parser's state.
#ifndef QUILLET_TESTS_SUPPORT_H
#define QUILLET_TESTS_SUPPORT_H

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <utility>

#include "quillet_builder.h"
#include "quillet_globals.h"
#include "quillet_parser.h"
#include "quillet_tree_node.h"

extern "C" int yy_quillet_lex_destroy(void);

// Trees are written as records of which only some fields are named; the others are zero.
#pragma GCC diagnostic ignored "-Wmissing-field-initializers"

namespace quillet_tests {

inline char *copy(const char *text) { return text ? strdup(text) : nullptr; }

struct release {
    void operator()(char *text) const { std::free(text); }
    void operator()(builder *self) const { quillet_builder_free(self); }
    void operator()(build_result *result) const {
        std::free(result->query);
        std::free(result);
    }
#define NODE(kind)                                                                                 \
    void operator()(node_##kind *node) const { quillet_node_##kind##_free(node); }
#include "quillet_nodes.def"
};

template <class T> using owned = std::unique_ptr<T, release>;

// By node type: create, and the call of the kind's slot.
template <class Node> Node *create();
#define NODE(kind)                                                                                 \
    template <> inline node_##kind *create<node_##kind>() {                                        \
        return quillet_node_##kind##_create();                                                     \
    }                                                                                              \
    inline build_result *call_slot(builder *self, node_##kind *node, void *data = nullptr) {       \
        return quillet_call_build_##kind(self, node, data);                                        \
    }
#include "quillet_nodes.def"

// A node on the heap with these fields. The texts among them must be copies.
template <class Node> Node *make(const Node &fields) {
    Node *node = create<Node>();
    *node = fields;
    return node;
}

// What an operation returned.
struct outcome {
    bool record = false;
    std::optional<std::string> text;
    int status = 0;

    bool operator==(const outcome &) const = default;

    friend std::ostream &operator<<(std::ostream &out, const outcome &shown) {
        if (!shown.record)
            return out << "no record";
        return out << (shown.text ? '"' + *shown.text + '"' : "no text") << ", status "
                   << shown.status;
    }
};

inline const outcome no_record{};
inline outcome gives(std::string text, int status = 0) { return {true, std::move(text), status}; }
inline outcome textless(int status = 0) { return {true, std::nullopt, status}; }

inline outcome taken(build_result *result) {
    const owned<build_result> record(result);
    if (!record)
        return no_record;
    return {true, record->query ? std::optional<std::string>(record->query) : std::nullopt,
            record->build_result};
}

inline std::string taken(char *text) {
    const owned<char> holder(text);
    return text ? text : "(NULL)";
}

// A tree of any kind, for tables of trees. Takes over the node.
class any_tree {
public:
    template <class Node>
    any_tree(Node *tree)
        : node(tree, release()),
          call([tree](builder *self, void *data) { return call_slot(self, tree, data); }) {}

    outcome render(builder *self, void *data = nullptr) const { return taken(call(self, data)); }

    // Every record begins with it.
    int sql_type() const { return *static_cast<const std::int32_t *>(node.get()); }

private:
    std::shared_ptr<void> node;
    std::function<build_result *(builder *, void *)> call;
};

// Names, columns and literals.
inline node_identifier *identifier(const char *name) {
    return make(node_identifier{.name = copy(name)});
}

inline node_column_reference *reference(const char *column, const char *correlation = nullptr) {
    return make(
        node_column_reference{.column_name = identifier(column),
                              .correlation_name = correlation ? identifier(correlation) : nullptr});
}

inline node_expression *column(const char *name, const char *correlation = nullptr) {
    return make(node_expression{.column_reference = reference(name, correlation)});
}

inline node_const_string *const_string(const char *text) {
    return make(node_const_string{.string = copy(text)});
}

inline node_const_integer *const_integer(const char *text) {
    return make(node_const_integer{.integer = copy(text)});
}

inline node_const_floating *const_floating(const char *text) {
    return make(node_const_floating{.floating = copy(text)});
}

inline node_const_boolean *const_boolean(int value) {
    return make(node_const_boolean{.value = value});
}

inline node_expression *literal(const node_const_generic &fields) {
    return make(node_expression{.const_generic = make(fields)});
}

inline node_expression *integer(const char *text) {
    return literal({.const_integer = const_integer(text)});
}

inline node_expression *floating(const char *text) {
    return literal({.const_floating = const_floating(text)});
}

inline node_expression *string(const char *text) {
    return literal({.const_string = const_string(text)});
}

inline node_expression *boolean(int value) {
    return literal({.const_boolean = const_boolean(value)});
}

inline node_expression *typed(int type, const char *text, node_at_time_zone *zone = nullptr) {
    return literal({.const_string = const_string(text), .type = type, .at_time_zone = zone});
}

// Operator applications and calls.
inline node_expression *operation(const char *name, node_expression *a,
                                  node_expression *b = nullptr, node_expression *c = nullptr) {
    return make(node_expression{
        .operator_ = copy(name), .expression_1 = a, .expression_2 = b, .expression_3 = c});
}

inline node_expression *parentheses(node_expression *inner) {
    return make(node_expression{.expression_1 = inner});
}

inline node_expression *calling(node_function_call *call) {
    return make(node_expression{.function_call = call});
}

template <class... Expressions>
node_expressions_list *arguments(node_expression *first, Expressions *...rest) {
    node_expressions_list *list = make(node_expressions_list{.expression = first});
    ((list = make(node_expressions_list{.expressions_list = list, .expression = rest})), ...);
    return list;
}

inline node_overlaps_expression *pair(const char *first, const char *second) {
    return make(
        node_overlaps_expression{.expression_1 = column(first), .expression_2 = column(second)});
}

inline node_function_call *call_of(const std::string &name, node_expressions_list *list = nullptr) {
    return make(
        node_function_call{.function_name = identifier(name.c_str()), .expressions_list = list});
}

// While one lives the end of the process is a failure: an unknown character ends it with status 0,
// which would pass for a success.
class going_on {
public:
    going_on() {
        [[maybe_unused]] static const int registered = std::atexit(check);
        alive = true;
    }
    ~going_on() { alive = false; }
    going_on(const going_on &) = delete;
    going_on &operator=(const going_on &) = delete;

private:
    static void check() {
        if (alive) {
            std::fputs("the process was ended inside a test\n", stderr);
            std::_Exit(EXIT_FAILURE);
        }
    }

    static inline bool alive = false;
};

// The scanner's state is one for the process and outlives a query.
inline void reset_scanner() {
    yy_quillet_lex_destroy();
    quillet_comment_count = 0;
}

// A parse, with what it printed. The tree is no longer in root.
struct parsed {
    int result = 0;
    std::string printed;
    owned<node_main> tree;
};

// Parses with the scanner as the last query left it.
inline parsed parse_on(const std::string &statement) {
    const going_on guard;
    parsed outcome;
    testing::internal::CaptureStdout();
    outcome.result = quillet_parse(statement.c_str());
    outcome.printed = testing::internal::GetCapturedStdout();
    outcome.tree.reset(std::exchange(root, nullptr));
    return outcome;
}

inline parsed parse(const std::string &statement) {
    reset_scanner();
    return parse_on(statement);
}

} // namespace quillet_tests

#endif
