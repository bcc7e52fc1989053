#include "quillet_parser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <optional>
#include <string>
#include <vector>

#include "quillet_bison_parser.h"
#include "support.h"

using namespace quillet_tests;

namespace {

// Trees are shown as kind{field=child, ...}, without absent children and codes that are 0, and
// without "field=" before a child whose kind has the field's name. Shorter forms:
//
//   a  t.a        identifier, column_reference
//   'a'  1  TRUE  the constants, and a const_generic with nothing but one of them; NULL
//   addition(a, b)  an expression with an operator
//   (a)           an expression with nothing but expression_1
//   list[a; b]    the items of a list in order
//
// An expression with nothing but another child is shown as that child.

#define NODE(kind) [[maybe_unused]] std::string shown(const node_##kind &node);
#include "quillet_nodes.def"

struct fields {
    std::string text;

    void add(const std::string &name, const std::string &value) {
        text += text.empty() ? "" : ", ";
        text += value.starts_with(name + '{') || value.starts_with(name + '[') ? value
                                                                               : name + '=' + value;
    }
    void add_code(const std::string &name, int code) {
        if (code)
            add(name, std::to_string(code));
    }
    void add_text(const std::string &name, const char *value) {
        if (value)
            add(name, value);
    }
    template <class Child> void add_child(const std::string &name, const Child *child) {
        if (child)
            add(name, shown(*child));
    }
};

// Every field of a node in full.
#define NODE(kind)                                                                                 \
    std::string all_fields(const node_##kind &node) {                                              \
        fields all;                                                                                \
        all.add_code("sql_type", node.sql_type);
#define CHILD(kind, type, field) all.add_child(#field, node.field);
#define CODE(kind, field) all.add_code(#field, node.field);
#define TEXT(kind, field) all.add_text(#field, node.field);
#define END(kind)                                                                                  \
    return all.text;                                                                               \
    }
#include "quillet_nodes.def"

// The short form of a node, if it has one.
template <class Node> std::optional<std::string> brief(const Node &) { return std::nullopt; }

template <class List, class Item>
std::string items(const char *kind, const List &list, List *List::*earlier, Item *List::*item) {
    std::string all;
    for (const List *link = &list; link; link = link->*earlier)
        all = (link->*item ? shown(*(link->*item)) : "?") + (all.empty() ? "" : "; ") + all;
    return std::string(kind) + '[' + all + ']';
}

#define LIST(list, item)                                                                           \
    template <> std::optional<std::string> brief(const node_##list &node) {                        \
        return node.sql_type                                                                       \
                   ? std::nullopt                                                                  \
                   : std::optional(items(#list, node, &node_##list::list, &node_##list::item));    \
    }
LIST(select_list, select_item)
LIST(tables_list, table)
LIST(join_list, join)
LIST(set_list, set_item)
LIST(identifier_list, identifier)
LIST(expression_or_default_list, expression_or_default_item)
LIST(column_reference_list, column_reference)
LIST(order_by_list, order_by_item)
LIST(when_list, when_item)
LIST(expressions_list, expression)
#undef LIST

// The kinds whose text says all, as long as they have no type.
#define TEXT_ALONE(kind, text)                                                                     \
    template <> std::optional<std::string> brief(const node_##kind &node) {                        \
        return node.sql_type || !node.text ? std::nullopt : std::optional<std::string>(node.text); \
    }
TEXT_ALONE(identifier, name)
TEXT_ALONE(const_string, string)
TEXT_ALONE(const_integer, integer)
TEXT_ALONE(const_floating, floating)
TEXT_ALONE(escape, string)
#undef TEXT_ALONE

template <> std::optional<std::string> brief(const node_const_boolean &node) {
    switch (node.value) {
    case 1: return "TRUE";
    case 2: return "FALSE";
    case 3: return "UNKNOW";
    default: return std::nullopt;
    }
}

template <> std::optional<std::string> brief(const node_column_reference &node) {
    if (node.sql_type || !node.column_name)
        return std::nullopt;
    return (node.correlation_name ? shown(*node.correlation_name) + '.' : "") +
           shown(*node.column_name);
}

template <> std::optional<std::string> brief(const node_const_generic &node) {
    const std::string all = all_fields(node);
    if (all.empty())
        return "NULL";
    if (node.sql_type || node.type || node.at_time_zone)
        return std::nullopt;
    return all.substr(all.find('=') + 1);
}

template <> std::optional<std::string> brief(const node_expression &node) {
    const std::string all = all_fields(node);
    if (node.sql_type)
        return std::nullopt;
    if (!node.operator_ && node.expression_1 && !node.expression_2 && !node.expression_3)
        return '(' + shown(*node.expression_1) + ')';
    if (!node.operator_) {
        for (const char *name : {"const_generic", "column_reference", "function_call",
                                 "cast_expression", "case_expression"}) {
            if (all.starts_with(std::string(name) + '='))
                return all.substr(std::strlen(name) + 1);
            if (all.starts_with(std::string(name) + '{'))
                return all;
        }
        return std::nullopt;
    }
    const std::string name = node.operator_;
    fields operands;
    for (const node_expression *operand : {node.expression_1, node.expression_2, node.expression_3})
        if (operand)
            operands.text += (operands.text.empty() ? "" : ", ") + shown(*operand);
    operands.add_child("const_boolean", node.const_boolean);
    operands.add_child("escape", node.escape);
    operands.add_child("overlaps_expression_1", node.overlaps_expression_1);
    operands.add_child("overlaps_expression_2", node.overlaps_expression_2);
    if (!name.starts_with("operator_") || node.const_generic || node.column_reference ||
        node.function_call || node.cast_expression || node.case_expression)
        return std::nullopt;
    return name.substr(std::strlen("operator_")) + '(' + operands.text + ')';
}

#define NODE(kind)                                                                                 \
    std::string shown(const node_##kind &node) {                                                   \
        return brief(node).value_or(#kind "{" + all_fields(node) + "}");                           \
    }
#include "quillet_nodes.def"

// The tree of a statement, or what was printed instead.
std::string tree_of(const std::string &statement) {
    const parsed outcome = parse(statement);
    if (outcome.result != 0)
        return "result " + std::to_string(outcome.result) + ", " + outcome.printed;
    EXPECT_EQ(outcome.printed, "");
    return outcome.tree ? shown(*outcome.tree) : "no tree";
}

struct tree_case {
    const char *text;
    const char *tree;
};

// The cases' trees, each between before and after.
template <std::size_t Count>
void expect_trees(const tree_case (&cases)[Count], const std::string &before_text = "",
                  const std::string &before_tree = "", const std::string &after_tree = "") {
    for (const auto &[text, tree] : cases)
        EXPECT_EQ(tree_of(before_text + text), before_tree + tree + after_tree) << text;
}

TEST(Parser, Statements) {
    constexpr tree_case cases[] = {
        {"SELECT 1", "main{select{distinct_select_list{select_list[select_item{expression=1}]}}}"},
        {"SELECT 1;", "main{select{distinct_select_list{select_list[select_item{expression=1}]}}}"},
        {"SELECT a FROM t WHERE b GROUP BY c HAVING d ORDER BY e LIMIT 1;",
         "main{select{distinct_select_list{select_list[select_item{expression=a}]}, "
         "tables{tables_list[table{identifier=t}]}, where_clausule{expression=b}, "
         "group_by_clausule{column_reference_list[c], having_clausule{expression=d}}, "
         "order_by_clausule{order_by_list[order_by_item{type=1, expression=e}]}, "
         "limit_clausule{const_integer_1=1}}}"},
        {"INSERT INTO t VALUES (1, DEFAULT)",
         "main{insert{table{identifier=t}, values_list{expression_or_default_list["
         "expression_or_default_item{expression=1}; expression_or_default_item{}]}}}"},
        {"INSERT INTO t VALUES DEFAULT VALUES;",
         "main{insert{table{identifier=t}, values_list{}}}"},
        {"INSERT INTO t (a) VALUES (a + 1)",
         "main{insert{table{identifier=t}, identifier_list[a], values_list{"
         "expression_or_default_list[expression_or_default_item{expression=addition(a, 1)}]}}}"},
        {"INSERT INTO t AS u (a, b, c) VALUES (DEFAULT);",
         "main{insert{table{identifier=t, alias=u}, identifier_list[a; b; c], values_list{"
         "expression_or_default_list[expression_or_default_item{}]}}}"},
        {"INSERT INTO t (a) VALUES DEFAULT VALUES",
         "main{insert{table{identifier=t}, identifier_list[a], values_list{}}}"},
        {"UPDATE t SET a = 1",
         "main{update{table{identifier=t}, "
         "set_clausule{set_list[set_item{column_reference=a, expression=1}]}}}"},
        {"UPDATE t u SET a = b = c, u.b = 'x' WHERE d;",
         "main{update{table{identifier=t, alias=u}, set_clausule{set_list["
         "set_item{column_reference=a, expression=equal(b, c)}; "
         "set_item{column_reference=u.b, expression='x'}]}, where_clausule{expression=d}}}"},
        {"DELETE FROM t", "main{delete_=delete{table{identifier=t}}}"},
        {"DELETE FROM t x WHERE a;",
         "main{delete_=delete{table{identifier=t, alias=x}, where_clausule{expression=a}}}"},
        {"dElEtE\n-- which\nfRoM /* where */ T", "main{delete_=delete{table{identifier=T}}}"},
    };
    expect_trees(cases);
}

TEST(Parser, SelectLists) {
    constexpr tree_case cases[] = {
        {"*", "select_list[select_item{}]"},
        {"t.*", "select_list[select_item{identifier=t}]"},
        {"a", "select_list[select_item{expression=a}]"},
        {"t.a", "select_list[select_item{expression=t.a}]"},
        {"a AS x", "select_list[select_item{expression=a, identifier=x}]"},
        {"a, *, t.*, 1 AS \"o n e\"",
         "select_list[select_item{expression=a}; select_item{}; select_item{identifier=t}; "
         "select_item{expression=1, identifier=\"o n e\"}]"},
        {"ALL a, b", "select_list[select_item{expression=a}; select_item{expression=b}]"},
        {"DISTINCT a", "distinct{}, select_list[select_item{expression=a}]"},
        {"DISTINCT (a)", "distinct{}, select_list[select_item{expression=(a)}]"},
        {"DISTINCT ON (a, b AS c) *",
         "distinct{select_list[select_item{expression=a}; "
         "select_item{expression=b, identifier=c}]}, select_list[select_item{}]"},
    };
    expect_trees(cases, "SELECT ", "main{select{distinct_select_list{", "}}}");
}

const std::string all_of = "main{select{distinct_select_list{select_list[select_item{}]}, ";

TEST(Parser, Tables) {
    constexpr tree_case cases[] = {
        {"t", "tables_list[table{identifier=t}]"},
        {"t u", "tables_list[table{identifier=t, alias=u}]"},
        {"t AS u", "tables_list[table{identifier=t, alias=u}]"},
        {"a, b c, d", "tables_list[table{identifier=a}; table{identifier=b, alias=c}; "
                      "table{identifier=d}]"},
        {"a, b JOIN c ON x",
         "tables_list[table{identifier=a}; table{identifier=b}], "
         "join_list[join{type=2, table{identifier=c}, join_expression{expression=x}}]"},
        {"a JOIN b USING (x) CROSS JOIN c NATURAL JOIN d AS e",
         "tables_list[table{identifier=a}], join_list["
         "join{type=2, table{identifier=b}, join_expression{identifier_list[x]}}; "
         "join{type=1, table{identifier=c}}; "
         "join{type=2, natural=1, table{identifier=d, alias=e}}]"},
        {"a JOIN b u USING (x, y, z)",
         "tables_list[table{identifier=a}], join_list[join{type=2, "
         "table{identifier=b, alias=u}, join_expression{identifier_list[x; y; z]}}]"},
    };
    expect_trees(cases, "SELECT * FROM ", all_of + "tables{", "}}}");
}

struct join_case {
    const char *words;
    const char *type;
};

TEST(Parser, JoinTypes) {
    constexpr join_case cases[] = {
        {"", "2"},           {"INNER", "2"}, {"OUTER", "3"},       {"LEFT", "3"},
        {"LEFT OUTER", "3"}, {"RIGHT", "4"}, {"RIGHT OUTER", "4"}, {"FULL", "5"},
        {"FULL OUTER", "5"},
    };
    const std::string before = all_of + "tables{tables_list[table{identifier=a}], join_list[";
    for (const auto &[words, type] : cases) {
        const std::string join = words + std::string(" JOIN b");
        const std::string typed = std::string("join{type=") + type + ", ";
        EXPECT_EQ(tree_of("SELECT * FROM a " + join), before + typed + "table{identifier=b}}]}}}");
        EXPECT_EQ(tree_of("SELECT * FROM a " + join + " ON c"),
                  before + typed + "table{identifier=b}, join_expression{expression=c}}]}}}");
        EXPECT_EQ(tree_of("SELECT * FROM a NATURAL " + join),
                  before + typed + "natural=1, table{identifier=b}}]}}}");
    }
}

TEST(Parser, Clauses) {
    constexpr tree_case cases[] = {
        {"WHERE a", ", where_clausule{expression=a}"},
        {"GROUP BY a", ", group_by_clausule{column_reference_list[a]}"},
        {"GROUP BY a, t.b, c HAVING d",
         ", group_by_clausule{column_reference_list[a; t.b; c], having_clausule{expression=d}}"},
        {"ORDER BY a", ", order_by_clausule{order_by_list[order_by_item{type=1, expression=a}]}"},
        {"ORDER BY a ASC, 1 DESC, b",
         ", order_by_clausule{order_by_list[order_by_item{type=1, expression=a}; "
         "order_by_item{type=2, expression=1}; order_by_item{type=1, expression=b}]}"},
        {"LIMIT ALL", ""},
        {"LIMIT 10", ", limit_clausule{const_integer_1=10}"},
        {"LIMIT 10 OFFSET 5", ", limit_clausule{const_integer_1=10, const_integer_2=5}"},
        {"OFFSET 5", ", limit_clausule{const_integer_2=5}"},
        {"LIMIT ALL OFFSET 5", ", limit_clausule{const_integer_2=5}"},
        {"", ""},
        {";", ""},
    };
    expect_trees(cases, "SELECT * FROM t ", all_of + "tables{tables_list[table{identifier=t}]}",
                 "}}");
}

// Expressions as they come out in the select list.
template <std::size_t Count> void expect_expressions(const tree_case (&cases)[Count]) {
    expect_trees(cases, "SELECT ",
                 "main{select{distinct_select_list{select_list[select_item{expression=", "}]}}}");
}

TEST(Parser, Operators) {
    constexpr tree_case cases[] = {
        {"a", "a"},
        {"(a)", "(a)"},
        {"((a))", "((a))"},
        {"a * b", "multiplicity(a, b)"},
        {"a / b", "divide(a, b)"},
        {"a % b", "modulo(a, b)"},
        {"a + b", "addition(a, b)"},
        {"a - b", "substraction(a, b)"},
        {"a < b", "lesser(a, b)"},
        {"a > b", "greater(a, b)"},
        {"a <= b", "not_greater(a, b)"},
        {"a >= b", "not_lesser(a, b)"},
        {"a <> b", "not_equal(a, b)"},
        {"a != b", "not_equal(a, b)"},
        {"a = b", "equal(a, b)"},
        {"a ^ b", "power(a, b)"},
        {"@ a", "abs(a)"},
        {"- a", "uminus(a)"},
        {"a AND b", "and(a, b)"},
        {"a OR b", "or(a, b)"},
        {"a << b", "shift_left(a, b)"},
        {"a >> b", "shift_right(a, b)"},
        {"|/ a", "square_root(a)"},
        {"a || b", "concatenate(a, b)"},
        {"||/ a", "cubic_root(a)"},
        {"NOT a", "not(a)"},
        {"a BETWEEN b AND c", "between(a, b, c)"},
        {"a NOT BETWEEN b AND c", "not_between(a, b, c)"},
        {"a ISNULL", "is_null(a)"},
        {"a IS NULL", "is_null(a)"},
        {"a NOTNULL", "is_not_null(a)"},
        {"a IS NOT NULL", "is_not_null(a)"},
        {"a IS DISTINCT FROM b", "distinct_from(a, b)"},
        {"a IS TRUE", "is(a, const_boolean=TRUE)"},
        {"a IS FALSE", "is(a, const_boolean=FALSE)"},
        {"a IS UNKNOW", "is(a, const_boolean=UNKNOW)"},
        {"a IS NOT TRUE", "is_not(a, const_boolean=TRUE)"},
        {"a IS NOT FALSE", "is_not(a, const_boolean=FALSE)"},
        {"a IS NOT UNKNOW", "is_not(a, const_boolean=UNKNOW)"},
        {"a LIKE b", "like(a, b)"},
        {"a LIKE b ESCAPE '!'", "like(a, b, escape='!')"},
        {"a ~~ b", "like(a, b)"},
        {"a ~~ b ESCAPE '!'", "like(a, b, escape='!')"},
        {"a NOT LIKE b", "not_like(a, b)"},
        {"a NOT LIKE b ESCAPE '!'", "not_like(a, b, escape='!')"},
        {"a NOT ~~ b", "not_like(a, b)"},
        {"a !~~ b ESCAPE '!'", "not_like(a, b, escape='!')"},
        {"a ILIKE b", "ilike(a, b)"},
        {"a ILIKE b ESCAPE '!'", "ilike(a, b, escape='!')"},
        {"a ~~* b", "ilike(a, b)"},
        {"a ~~* b ESCAPE '!'", "ilike(a, b, escape='!')"},
        {"a NOT ILIKE b", "not_ilike(a, b)"},
        {"a NOT ILIKE b ESCAPE '!'", "not_ilike(a, b, escape='!')"},
        {"a !~~* b", "not_ilike(a, b)"},
        {"a !~~* b ESCAPE '!'", "not_ilike(a, b, escape='!')"},
        {"a SIMILAR TO b", "similar_to(a, b)"},
        {"a SIMILAR TO b ESCAPE '!'", "similar_to(a, b, escape='!')"},
        {"a NOT SIMILAR TO b", "not_similar_to(a, b)"},
        {"a NOT SIMILAR TO b ESCAPE '!'", "not_similar_to(a, b, escape='!')"},
        {"a ~ b", "regex(a, b)"},
        {"a ~* b", "iregex(a, b)"},
        {"a !~ b", "not_regex(a, b)"},
        {"a !~* b", "not_iregex(a, b)"},
        {"!! a", "factorial(a)"},
        {"a !", "factorial(a)"},
        {"a & b", "bitwise_and(a, b)"},
        {"a | b", "bitwise_or(a, b)"},
        {"a # b", "bitwise_xor(a, b)"},
        {"~ a", "bitwise_not(a)"},
        {"(a, b) OVERLAPS (c, d)",
         "overlaps(overlaps_expression_1=overlaps_expression{expression_1=a, expression_2=b}, "
         "overlaps_expression_2=overlaps_expression{expression_1=c, expression_2=d})"},
    };
    expect_expressions(cases);
}

TEST(Parser, Constants) {
    constexpr tree_case cases[] = {
        {"'a'", "'a'"},
        {"'a\\'b'", "'a\\'b'"},
        {"007", "007"},
        {"1.50", "1.50"},
        {".5e-3", ".5e-3"},
        {"true", "TRUE"},
        {"FALSE", "FALSE"},
        {"UNKNOW", "UNKNOW"},
        {"NULL", "NULL"},
        {"DATE '2005-01-01'", "const_generic{const_string='2005-01-01', type=6}"},
        {"interval '1 day'", "const_generic{const_string='1 day', type=9}"},
        {"Double Precision '1'", "const_generic{const_string='1', type=7}"},
        {"double '1'", "'1'"},
        {"money '1'", "'1'"},
        {"big money '1'", "'1'"},
        {"\"date\" '1'", "'1'"},
        {"timestamp '2005-01-01' AT time ZONE 'UTC'",
         "const_generic{const_string='2005-01-01', type=17, "
         "at_time_zone{type=1, const_string='UTC'}}"},
        {"TIMESTAMP '2005-01-01' AT TIME ZONE INTERVAL '+02:00'",
         "const_generic{const_string='2005-01-01', type=17, "
         "at_time_zone{type=2, const_string='+02:00'}}"},
        {"time '1' AT local ZONE 'UTC'",
         "const_generic{const_string='1', type=15, at_time_zone{type=3, const_string='UTC'}}"},
        {"time '1' AT timestamp ZONE 'UTC'",
         "const_generic{const_string='1', type=15, at_time_zone{type=3, const_string='UTC'}}"},
        {"time '1' AT time ZONE date '2'",
         "const_generic{const_string='1', type=15, at_time_zone{type=3, const_string='2'}}"},
        {"time '1' AT local ZONE interval '2'",
         "const_generic{const_string='1', type=15, at_time_zone{type=3, const_string='2'}}"},
        {"money '1' AT time ZONE '2'",
         "const_generic{const_string='1', at_time_zone{type=1, const_string='2'}}"},
        {"double precision '1' AT time ZONE '2'",
         "const_generic{const_string='1', type=7, at_time_zone{type=1, const_string='2'}}"},
    };
    expect_expressions(cases);
}

TEST(Parser, CastsAndCases) {
    constexpr tree_case cases[] = {
        {"CAST(a AS int)", "cast_expression{expression=a, type=8}"},
        {"cast('1' as Char)", "cast_expression{expression='1', type=5}"},
        {"CAST(a AS money)", "cast_expression{expression=a}"},
        {"a::text", "cast_expression{expression=a, type=14}"},
        {"a::int::text",
         "cast_expression{expression=cast_expression{expression=a, type=8}, type=14}"},
        {"'1'::date", "cast_expression{expression='1', type=6}"},
        {"CASE WHEN a THEN b END",
         "case_expression{when_list[when_item{expression_1=a, expression_2=b}]}"},
        {"CASE WHEN a THEN b WHEN c THEN d ELSE e END",
         "case_expression{when_list[when_item{expression_1=a, expression_2=b}; "
         "when_item{expression_1=c, expression_2=d}], else_clausule{expression=e}}"},
        {"CASE x WHEN 1 THEN 'a' ELSE 'b' END",
         "case_expression{expression=x, when_list[when_item{expression_1=1, expression_2='a'}], "
         "else_clausule{expression='b'}}"},
        {"CASE x WHEN 1 THEN 2 END",
         "case_expression{expression=x, when_list[when_item{expression_1=1, expression_2=2}]}"},
    };
    expect_expressions(cases);
}

TEST(Parser, Calls) {
    constexpr tree_case cases[] = {
        {"f()", "function_call{function_name=f}"},
        {"\"f\"(a)", "function_call{function_name=\"f\", expressions_list[a]}"},
        {"f(a, b + 1, f())", "function_call{function_name=f, expressions_list[a; addition(b, 1); "
                             "function_call{function_name=f}]}"},
        {"Current_Date", "function_call{function_name=Current_Date}"},
        {"CURRENT_TIME()", "function_call{function_name=CURRENT_TIME}"},
        {"localtimestamp(1, a)",
         "function_call{function_name=localtimestamp, expressions_list[1; a]}"},
        {"count(*)", "function_call{function_name=count, agregate_expression{type=3}}"},
        {"count(DISTINCT a)",
         "function_call{function_name=count, agregate_expression{type=1, expression=a}}"},
        {"count(ALL a)",
         "function_call{function_name=count, agregate_expression{type=2, expression=a}}"},
        {"convert(a USING utf8)",
         "function_call{function_name=convert, using_argument{expression=a, identifier=utf8}}"},
        {"overlay(a PLACING b FROM c)",
         "function_call{function_name=overlay, placing_from_for_argument{expression_1=a, "
         "expression_2=b, expression_3=c}}"},
        {"overlay(a PLACING b FROM c FOR d)",
         "function_call{function_name=overlay, placing_from_for_argument{expression_1=a, "
         "expression_2=b, expression_3=c, expression_4=d}}"},
        {"overlay(a PLACING b FOR d)",
         "function_call{function_name=overlay, placing_from_for_argument{expression_1=a, "
         "expression_2=b, expression_4=d}}"},
        {"overlay(a PLACING b)",
         "function_call{function_name=overlay, placing_from_for_argument{expression_1=a, "
         "expression_2=b}}"},
        {"substring(x FROM 1)", "function_call{function_name=substring, "
                                "from_for_argument{expression_1=x, expression_2=1}}"},
        {"substring(x FROM 1 FOR 2)",
         "function_call{function_name=substring, "
         "from_for_argument{expression_1=x, expression_2=1, expression_3=2}}"},
        {"extract(year FROM d)", "function_call{function_name=extract, "
                                 "from_for_argument{expression_1=year, expression_2=d}}"},
        {"position(a IN b)",
         "function_call{function_name=position, in_argument{expression_1=a, expression_2=b}}"},
        {"trim(LEADING 'x' FROM s)", "function_call{function_name=trim, trim_argument{mode=2, "
                                     "expression_1='x', expression_2=s}}"},
        {"trim(TRAILING 'x' FROM s)", "function_call{function_name=trim, trim_argument{mode=3, "
                                      "expression_1='x', expression_2=s}}"},
        {"trim(BOTH 'x' FROM s)", "function_call{function_name=trim, trim_argument{mode=1, "
                                  "expression_1='x', expression_2=s}}"},
        {"trim(LEADING FROM s)",
         "function_call{function_name=trim, trim_argument{mode=2, expression_2=s}}"},
        {"trim(TRAILING FROM s)",
         "function_call{function_name=trim, trim_argument{mode=3, expression_2=s}}"},
        {"trim(BOTH FROM s)",
         "function_call{function_name=trim, trim_argument{mode=1, expression_2=s}}"},
        {"TRIM(FROM x)",
         "function_call{function_name=TRIM, trim_argument{mode=1, expression_2=x}}"},
        {"trim('x' FROM s)", "function_call{function_name=trim, "
                             "from_for_argument{expression_1='x', expression_2=s}}"},
    };
    expect_expressions(cases);
}

TEST(Parser, Precedence) {
    constexpr tree_case cases[] = {
        // lowest first, each level beside itself and its neighbours
        {"a OR b OR c", "or(or(a, b), c)"},
        {"a OR b AND c", "or(a, and(b, c))"},
        {"a AND b OR c", "or(and(a, b), c)"},
        {"a AND b AND c", "and(and(a, b), c)"},
        {"a AND b NOT LIKE c", "and(a, not_like(b, c))"},
        {"a OR b NOT ILIKE c", "or(a, not_ilike(b, c))"},
        {"a AND b NOT SIMILAR TO c", "and(a, not_similar_to(b, c))"},
        {"a AND b NOT BETWEEN c AND d", "and(a, not_between(b, c, d))"},
        {"a = b NOT LIKE c", "not_like(equal(a, b), c)"},
        {"a < b NOT ILIKE c", "not_ilike(lesser(a, b), c)"},
        {"a AND b = c", "and(a, equal(b, c))"},
        {"a = b AND c", "and(equal(a, b), c)"},
        {"a = b = c", "equal(a, equal(b, c))"},
        {"a = b < c", "equal(a, lesser(b, c))"},
        {"a > b = c", "equal(greater(a, b), c)"},
        {"a < b LIKE c", "lesser(a, like(b, c))"},
        {"a LIKE b < c", "lesser(like(a, b), c)"},
        {"a = b ILIKE c", "equal(a, ilike(b, c))"},
        {"a > b ~* c", "greater(a, iregex(b, c))"},
        {"a !~ b > c", "greater(not_regex(a, b), c)"},
        {"a = b !~* c", "equal(a, not_iregex(b, c))"},
        {"a LIKE b BETWEEN c AND d", "like(a, between(b, c, d))"},
        {"a = b BETWEEN c AND d", "equal(a, between(b, c, d))"},
        {"a BETWEEN b || c AND d", "between(a, concatenate(b, c), d)"},
        {"a BETWEEN b AND c + d", "between(a, b, addition(c, d))"},
        {"a <= b BETWEEN c AND d", "between(not_greater(a, b), c, d)"},
        {"a <= b >= c", "not_lesser(not_greater(a, b), c)"},
        {"a <> b << c", "shift_left(not_equal(a, b), c)"},
        {"a >> b || c", "concatenate(shift_right(a, b), c)"},
        {"a || b || c", "concatenate(concatenate(a, b), c)"},
        {"a LIKE b || c", "like(a, concatenate(b, c))"},
        {"a || b LIKE c", "like(concatenate(a, b), c)"},
        {"a || b IS NULL", "concatenate(a, is_null(b))"},
        {"a || b ISNULL", "concatenate(a, is_null(b))"},
        {"a <= b NOTNULL", "not_greater(a, is_not_null(b))"},
        {"a = b IS TRUE", "equal(a, is(b, const_boolean=TRUE))"},
        {"a + b IS NULL", "is_null(addition(a, b))"},
        {"a - b NOTNULL", "is_not_null(substraction(a, b))"},
        {"a + b - c", "substraction(addition(a, b), c)"},
        {"a || b + c", "concatenate(a, addition(b, c))"},
        {"a + b * c", "addition(a, multiplicity(b, c))"},
        {"a * b + c", "addition(multiplicity(a, b), c)"},
        {"a * b / c % d", "modulo(divide(multiplicity(a, b), c), d)"},
        {"a * b ^ c", "multiplicity(a, power(b, c))"},
        {"a ^ b * c", "multiplicity(power(a, b), c)"},
        {"a ^ b ^ c", "power(power(a, b), c)"},
        {"NOT a = b", "equal(not(a), b)"},
        {"NOT a AND b", "and(not(a), b)"},
        {"- a ^ b", "power(uminus(a), b)"},
        {"@ a ^ b", "power(abs(a), b)"},
        {"|/ a ^ b", "power(square_root(a), b)"},
        {"||/ a ^ b", "power(cubic_root(a), b)"},
        {"!! a ^ b", "power(factorial(a), b)"},
        {"~ a ^ b", "power(bitwise_not(a), b)"},
        {"NOT - @ a", "not(uminus(abs(a)))"},
        {"a - - b", "substraction(a, uminus(b))"},
        {"a ^ - b", "power(a, uminus(b))"},
        {"(a + b) * c", "multiplicity((addition(a, b)), c)"},
        // what has no precedence takes the shortest operand to its left and all to its right
        {"a + b :: int", "addition(a, cast_expression{expression=b, type=8})"},
        {"- a :: int", "uminus(cast_expression{expression=a, type=8})"},
        {"a = b & c + d", "equal(a, bitwise_and(b, addition(c, d)))"},
        {"a & b & c", "bitwise_and(a, bitwise_and(b, c))"},
        {"a ^ b # c ^ d", "power(a, bitwise_xor(b, power(c, d)))"},
        {"a | b OR c", "bitwise_or(a, or(b, c))"},
        {"a * b ~ c + d", "multiplicity(a, regex(b, addition(c, d)))"},
        {"a + b !", "addition(a, factorial(b))"},
        {"- a !", "uminus(factorial(a))"},
        {"a ! !", "factorial(factorial(a))"},
        {"a * b !~~* c AND d", "multiplicity(a, not_ilike(b, and(c, d)))"},
        {"a * b !~~ c OR d ESCAPE '!'", "multiplicity(a, not_like(b, or(c, d), escape='!'))"},
        {"a + b SIMILAR TO c AND d", "addition(a, similar_to(b, and(c, d)))"},
        {"a IS DISTINCT FROM b AND c", "distinct_from(a, and(b, c))"},
        {"a + b IS DISTINCT FROM c", "distinct_from(addition(a, b), c)"},
        // AND is an operator before it is a part of BETWEEN
        {"x BETWEEN 1 AND 2 AND y", "between(x, and(1, 2), y)"},
        {"(x BETWEEN 1 AND 2) AND y", "and((between(x, 1, 2)), y)"},
        {"(x BETWEEN 1 AND 2) OR y", "or((between(x, 1, 2)), y)"},
    };
    expect_expressions(cases);
}

TEST(Parser, Refusals) {
    constexpr const char *statements[] = {
        // statements
        "",
        " \n -- nothing",
        ";",
        "SELECT",
        "SELECT ;",
        "SELECT 1;;",
        "SELECT 1; SELECT 2",
        "SELECT 1 2",
        "1",
        "select_",
        "SELECT 1 WHERE x",
        "SELECT 1 ORDER BY 1",
        "SELECT 1 LIMIT 1",
        "INSERT t VALUES (1)",
        "INSERT INTO t",
        "INSERT INTO t VALUES",
        "INSERT INTO t VALUES ()",
        "INSERT INTO t VALUES (1,)",
        "INSERT INTO t VALUES (1), (2)",
        "INSERT INTO t () VALUES (1)",
        "INSERT INTO t (t.a) VALUES (1)",
        "INSERT INTO t DEFAULT VALUES",
        "UPDATE t",
        "UPDATE t SET",
        "UPDATE t SET a",
        "UPDATE t SET a = DEFAULT",
        "UPDATE t SET a = 1,",
        "UPDATE SET a = 1",
        "DELETE t",
        "DELETE FROM",
        "DELETE FROM t, u",
        // the parts of a SELECT
        "SELECT FROM t",
        "SELECT ALL",
        "SELECT DISTINCT",
        "SELECT DISTINCT ON a b",
        "SELECT ALL DISTINCT a",
        "SELECT a x",
        "SELECT * AS x",
        "SELECT t.* AS x",
        "SELECT a AS 'x'",
        "SELECT a,",
        "SELECT * FROM",
        "SELECT * FROM t,",
        "SELECT * FROM s.t",
        "SELECT * FROM (t)",
        "SELECT * FROM a JOIN b, c",
        "SELECT * FROM a CROSS JOIN b ON c",
        "SELECT * FROM a NATURAL JOIN b ON c",
        "SELECT * FROM a NATURAL CROSS JOIN b",
        "SELECT * FROM a INNER OUTER JOIN b",
        "SELECT * FROM a JOIN b USING x",
        "SELECT * FROM a JOIN b USING (t.x)",
        "SELECT * FROM a JOIN b ON x USING (y)",
        "SELECT * FROM t WHERE",
        "SELECT * FROM t HAVING a",
        "SELECT * FROM t GROUP BY",
        "SELECT * FROM t GROUP BY 1",
        "SELECT * FROM t GROUP BY a WHERE b",
        "SELECT * FROM t ORDER a",
        "SELECT * FROM t ORDER BY a ASC DESC",
        "SELECT * FROM t LIMIT",
        "SELECT * FROM t LIMIT 10 + 1",
        "SELECT * FROM t LIMIT a",
        "SELECT * FROM t LIMIT 1.5",
        "SELECT * FROM t LIMIT -1",
        "SELECT * FROM t LIMIT 1, 2",
        "SELECT * FROM t OFFSET 5 LIMIT 10",
        "SELECT * FROM t OFFSET ALL",
        "SELECT * FROM t LIMIT 1 ORDER BY a",
        // expressions
        "SELECT ()",
        "SELECT (1",
        "SELECT 1)",
        "SELECT (1, 2)",
        "SELECT a +",
        "SELECT * a",
        "SELECT a.b.c",
        "SELECT a.",
        "SELECT a !~~ b",
        "SELECT a ~ b ESCAPE '!'",
        "SELECT a LIKE b ESCAPE c",
        "SELECT a LIKE b LIKE c",
        "SELECT a LIKE b ILIKE c",
        "SELECT a ~* b !~ c",
        "SELECT a !~* b ~~ c",
        "SELECT a < b < c",
        "SELECT a < b > c",
        "SELECT a SIMILAR b",
        "SELECT a NOT b",
        "SELECT a NOT = b",
        "SELECT a NOT ~ b",
        "SELECT a BETWEEN 1",
        "SELECT a BETWEEN 1 OR 2",
        "SELECT x BETWEEN 1 AND 2 OR y",
        "SELECT a IS",
        "SELECT a IS NOT",
        "SELECT a IS 1",
        "SELECT x IS UNKNOWN",
        "SELECT a IS NOT DISTINCT FROM b",
        "SELECT a IN b",
        "SELECT a IN (1, 2)",
        "SELECT (a, b) OVERLAPS c",
        "SELECT (a, b, c) OVERLAPS (d, e)",
        "SELECT CASE END",
        "SELECT CASE a END",
        "SELECT CASE WHEN a END",
        "SELECT CASE WHEN a THEN b",
        "SELECT CASE ELSE a END",
        "SELECT x::double precision",
        "SELECT x::'int'",
        "SELECT CAST(x AS double precision)",
        "SELECT CAST(x, int)",
        "SELECT CAST(x AS varchar(1))",
        // literals and calls
        "SELECT 'a''b'",
        "SELECT DATE 1",
        "SELECT a b c '1'",
        "SELECT CURRENT_DATE '1'",
        "SELECT '1' AT time ZONE 'UTC'",
        "SELECT a AT time ZONE 'UTC'",
        "SELECT time '1' AT time ZONE a",
        "SELECT time '1' AT ZONE 'UTC'",
        "SELECT f(,)",
        "SELECT f(a,)",
        "SELECT f(a",
        "SELECT f(DISTINCT a, b)",
        "SELECT f(*, a)",
        "SELECT s.f(a)",
        "SELECT f(a USING 'b')",
        "SELECT f(a FROM)",
        "SELECT f(a FOR b)",
        "SELECT trim(LEADING s)",
        "SELECT trim(BOTH)",
        "SELECT f(a IN b, c)",
        "SELECT CURRENT_DATE(*)",
        "SELECT f(SELECT 1)",
        "SELECT left(a, 1)",
    };
    for (const char *statement : statements) {
        const parsed outcome = parse(statement);
        EXPECT_EQ(outcome.result, 1) << statement;
        EXPECT_EQ(outcome.printed, "Error: syntax error\n") << statement;
        EXPECT_EQ(outcome.tree, nullptr) << statement;
    }
}

// Every prefix of a statement that uses much of the grammar: most are refused, and nothing leaks.
TEST(Parser, FreesWhatAFailedParseBuilt) {
    const std::string words[] = {
        "SELECT",   "DISTINCT", "ON",      "(",     "a",        ")",      "CAST",  "(",
        "'1'",      "AS",       "int",     ")",     ",",        "trim",   "(",     "BOTH",
        "'x'",      "FROM",     "s",       ")",     ",",        "CASE",   "a",     "WHEN",
        "1",        "THEN",     "1.5",     "ELSE",  "TRUE",     "END",    ",",     "overlay",
        "(",        "a",        "PLACING", "b",     "FROM",     "1",      "FOR",   "2",
        ")",        ",",        "time",    "'1'",   "AT",       "time",   "ZONE",  "interval",
        "'2'",      ",",        "count",   "(",     "DISTINCT", "a",      ")",     ",",
        "convert",  "(",        "a",       "USING", "b",        ")",      ",",     "position",
        "(",        "a",        "IN",      "b",     ")",        "FROM",   "t",     "AS",
        "u",        ",",        "v",       "LEFT",  "JOIN",     "w",      "USING", "(",
        "c",        ",",        "d",       ")",     "WHERE",    "a",      "LIKE",  "'x'",
        "ESCAPE",   "'!'",      "AND",     "(",     "a",        ",",      "b",     ")",
        "OVERLAPS", "(",        "c",       ",",     "d",        ")",      "GROUP", "BY",
        "a",        ",",        "t",       ".",     "b",        "HAVING", "a",     "IS",
        "NOT",      "TRUE",     "ORDER",   "BY",    "a",        "DESC",   ",",     "b",
        "LIMIT",    "1",        "OFFSET",  "2",     ";"};
    std::string statement;
    int accepted = 0;
    for (const std::string &word : words) {
        EXPECT_EQ(parse(statement + "ELSE ELSE").result, 1) << statement;
        statement += word + ' ';
        accepted += parse(statement).result == 0;
    }
    EXPECT_EQ(parse(statement).result, 0);
    EXPECT_GT(accepted, 0);
    EXPECT_LT(accepted, static_cast<int>(std::size(words)));
}

std::string nested(std::size_t parentheses) {
    return "SELECT " + std::string(parentheses, '(') + '1' + std::string(parentheses, ')');
}

TEST(ParserStack, Holds9995Parentheses) {
    const parsed outcome = parse(nested(9995));
    EXPECT_EQ(outcome.result, 0);
    EXPECT_EQ(outcome.printed, "");
    EXPECT_NE(outcome.tree, nullptr);
}

TEST(ParserStack, OverflowsWith9996Parentheses) {
    for (const std::size_t parentheses : {9996U, 9997U, 100'000U}) {
        const parsed outcome = parse(nested(parentheses));
        EXPECT_EQ(outcome.result, 2) << parentheses;
        EXPECT_EQ(outcome.printed, "Error: parser stack overflow\n") << parentheses;
        EXPECT_EQ(outcome.tree, nullptr) << parentheses;
    }
}

TEST(ParserStack, IsNotUsedUpByLists) {
    std::string list = "1";
    std::string sum = "1";
    for (int i = 0; i < 100'000; ++i) {
        list += ",1";
        sum += "+1";
    }
    EXPECT_EQ(parse("SELECT " + list).result, 0);
    EXPECT_EQ(parse("SELECT " + sum).result, 0);
    EXPECT_EQ(parse("SELECT f(" + list + ")").result, 0);
    EXPECT_EQ(parse("INSERT INTO t VALUES (" + list + ")").result, 0);
}

std::string shown_tree(const parsed &outcome) {
    return outcome.tree ? shown(*outcome.tree) : outcome.printed;
}

TEST(ParserState, WhatASyntaxErrorLeftUnreadBelongsToTheNextQuery) {
    EXPECT_EQ(parse("SELECT 1 ) SELECT 2").result, 1);
    EXPECT_EQ(shown_tree(parse_on(" , 3")),
              "main{select{distinct_select_list{select_list[select_item{expression=2}; "
              "select_item{expression=3}]}}}");
    EXPECT_EQ(shown_tree(parse_on("DELETE FROM t")), "main{delete_=delete{table{identifier=t}}}");
}

TEST(ParserState, AnErrorAtTheEndLeavesNothing) {
    EXPECT_EQ(parse("SELECT 1 +").result, 1);
    EXPECT_EQ(shown_tree(parse_on("DELETE FROM t")), "main{delete_=delete{table{identifier=t}}}");
}

// A token that could have gone on has met the end of its query: the next query begins with that.
TEST(ParserState, AnErrorAtATokenThatCouldGoOnLeavesTheEnd) {
    for (const char *token : {"from", "a", "a$", "1",   "1.",   "1.5",   "1e5", "1.5e-5", ".5",
                              ".5e5", "!", "!~", "!~~", "~",    "~~",    "|",   "||",     "<",
                              ">",    "-", "/",  ".",   "'\\'", "'a\\'", " a",  "\n1"}) {
        EXPECT_EQ(parse(token).result, 1) << token;
        EXPECT_EQ(parse_on("select 1").result, 1) << token;
        EXPECT_EQ(parse_on("select 1").result, 0) << token;
    }
}

TEST(ParserState, AnErrorAtATokenThatIsCompleteLeavesNothing) {
    for (const char *token : {"#",       "@",     "&",  "*",  "(",        ")",    ",",
                              "^",       "%",     "+",  "=",  ";",        "!~~*", "!~*",
                              "~*",      "~~*",   "<=", ">=", "<>",       "!=",   "|/",
                              "||/",     "!!",    "<<", ">>", "::",       "'a'",  "''",
                              "'a\\'b'", "\"a\"", "* ", "a ", "( -- a\n", " ("}) {
        EXPECT_EQ(parse(token).result, 1) << token;
        EXPECT_EQ(parse_on("select 1").result, 0) << token;
    }
}

// An error in the remainder of an earlier query, before the next one has been read: that one is
// lost.
TEST(ParserState, AnErrorAtTheEndOfARemainderLosesTheQuery) {
    EXPECT_EQ(parse("SELECT 1 ) ,").result, 1);
    EXPECT_EQ(parse_on("DELETE FROM t").result, 1);
    EXPECT_EQ(shown_tree(parse_on("DELETE FROM u")), "main{delete_=delete{table{identifier=u}}}");

    // "1" is followed by no exponent, which only the comment after it shows.
    EXPECT_EQ(parse(")1e+").result, 1);
    EXPECT_EQ(parse_on("/*").result, 1);
    EXPECT_EQ(parse_on("").result, 1);
    EXPECT_EQ(parse_on("").result, 1);
    EXPECT_EQ(shown_tree(parse_on("*/ DELETE FROM t")),
              "main{delete_=delete{table{identifier=t}}}");
}

TEST(ParserState, AnUnfinishedCommentGoesOnInTheNextQuery) {
    EXPECT_EQ(parse("DELETE FROM t /* a /* b").result, 0);
    EXPECT_EQ(shown_tree(parse_on("DELETE FROM t")), "Error: syntax error\n");
    EXPECT_EQ(shown_tree(parse_on("*/ DELETE FROM t")), "Error: syntax error\n");
    EXPECT_EQ(quillet_comment_count, 1);
    EXPECT_EQ(shown_tree(parse_on("*/ DELETE FROM t")),
              "main{delete_=delete{table{identifier=t}}}");
}

TEST(ParserState, ATreeIsTakenOnce) {
    reset_scanner();
    ASSERT_EQ(quillet_parse("DELETE FROM t"), QUILLET_PARSE_ACCEPTED);
    const owned<node_main> tree(quillet_take_root());
    ASSERT_NE(tree, nullptr);
    EXPECT_EQ(shown(*tree), "main{delete_=delete{table{identifier=t}}}");
    EXPECT_EQ(root, nullptr);
    EXPECT_EQ(quillet_take_root(), nullptr);
}

TEST(ParserState, AFailedParseLeavesNoTreeToTake) {
    for (const char *statement : {"", "SELECT", "DELETE FROM t )"}) {
        reset_scanner();
        testing::internal::CaptureStdout();
        EXPECT_EQ(quillet_parse(statement), QUILLET_PARSE_SYNTAX_ERROR) << statement;
        EXPECT_EQ(testing::internal::GetCapturedStdout(), "Error: syntax error\n") << statement;
        EXPECT_EQ(quillet_take_root(), nullptr) << statement;
    }
    reset_scanner();
}

TEST(ParserState, TheQueryIsThereDuringAParseAlone) {
    EXPECT_EQ(parse("SELECT 1").result, 0);
    EXPECT_EQ(quillet_query, nullptr);
    EXPECT_EQ(parse("SELECT").result, 1);
    EXPECT_EQ(quillet_query, nullptr);
}

TEST(ParserState, ALineCommentGoesOnInTheNextQuery) {
    EXPECT_EQ(parse("DELETE FROM t -- a").result, 0);
    EXPECT_EQ(shown_tree(parse_on("b \n DELETE FROM t")),
              "main{delete_=delete{table{identifier=t}}}");
}

TEST(ParserState, ASyntaxErrorComesBeforeAnUnknownCharacterBehindIt) {
    const parsed outcome = parse("SELECT 1 ) ?");
    EXPECT_EQ(outcome.result, 1);
    EXPECT_EQ(outcome.printed, "Error: syntax error\n");
}

TEST(ParserState, NewlinesInCommentsArePrinted) {
    EXPECT_EQ(parse("SELECT /* \n */ 1").printed, "\n");
    EXPECT_EQ(parse("SELECT /* \n */ )").printed, "\nError: syntax error\n");
}

[[noreturn]] void parse_to_the_end(const std::string &statement) {
    reset_scanner();
    dup2(STDERR_FILENO, STDOUT_FILENO);
    quillet_parse(statement.c_str());
    std::_Exit(EXIT_FAILURE);
}

TEST(ParserDeathTest, AnUnknownCharacterEndsTheProcess) {
    for (const char *statement : {"?", "SELECT ?", "SELECT 1 ?", "SELECT $1", "SELECT 'abc"})
        EXPECT_EXIT(parse_to_the_end(statement), testing::ExitedWithCode(0),
                    testing::StrEq("Unknow character\n"))
            << statement;
}

TEST(ParseError, PrintsItsMessage) {
    testing::internal::CaptureStdout();
    const int result = yy_quillet_error("of no kind");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "Error: of no kind\n");
    EXPECT_EQ(result, 0);
}

} // namespace
