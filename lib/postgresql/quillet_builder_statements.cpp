// The default rendering of statements and clauses.

#include "quillet_default_rendering.h"
#include "quillet_lists.h"

namespace quillet {

// Statements.

outcome render_main(rendering &r, node_main *node, void *) {
    if (node->select)
        return r.child(node->select);
    if (node->insert)
        return r.child(node->insert);
    if (node->update)
        return r.child(node->update);
    return r.child(node->delete_);
}

outcome render_select(rendering &r, node_select *node, void *) {
    if (!node->distinct_select_list)
        return r.lacks(node);
    outcome result = r.enclosed_child("SELECT ", node->distinct_select_list);
    const output::place after_list = r.out.here();
    r.out.append(" FROM ");
    const output::place begin = r.out.here();
    const outcome tables = r.child(node->tables);
    result.fail_with(tables);
    result.fail_with(r.spaced_child(begin, node->where_clausule));
    result.fail_with(r.spaced_child(begin, node->group_by_clausule));
    result.fail_with(r.spaced_child(begin, node->order_by_clausule));
    result.fail_with(r.spaced_child(begin, node->limit_clausule));
    if (!tables.text)
        r.out.cut(after_list);
    return result;
}

outcome render_insert(rendering &r, node_insert *node, void *) {
    if (!node->table || !node->values_list)
        return r.lacks(node);
    const output::place begin = r.out.here();
    r.remark(node);
    outcome result = r.enclosed_child("INSERT INTO ", node->table);
    const outcome columns = r.prefixed_child(" (", node->identifier_list);
    result.fail_with(columns);
    r.out.append(columns.text ? ") VALUES " : " VALUES ");
    result.fail_with(r.child(node->values_list, node->identifier_list));
    const auto *values = node->values_list->expression_or_default_list;
    if (columns.text && node->identifier_list->count != (values ? values->count : 0)) {
        r.out.cut(begin);
        return r.lacks(node, seen::yes);
    }
    return result;
}

outcome render_update(rendering &r, node_update *node, void *) {
    if (!node->table || !node->set_clausule)
        return r.lacks(node);
    r.out.append("UPDATE ");
    const output::place begin = r.out.here();
    outcome result = a_text;
    result.fail_with(r.child(node->table));
    result.fail_with(r.spaced_child(begin, node->set_clausule));
    result.fail_with(r.spaced_child(begin, node->where_clausule));
    return result;
}

outcome render_delete(rendering &r, node_delete *node, void *) {
    if (!node->table)
        return r.lacks(node);
    r.remark(node);
    r.out.append("DELETE FROM ");
    const output::place begin = r.out.here();
    outcome result = a_text;
    result.fail_with(r.child(node->table));
    result.fail_with(r.spaced_child(begin, node->where_clausule));
    return result;
}

// The values of an INSERT. The data argument is the list of column names: each list of values gets
// the names that belong to it, each value its own name.

namespace {

struct column_names {
    static void *earlier(void *names) {
        return names ? static_cast<node_identifier_list *>(names)->identifier_list : nullptr;
    }
    static void *item(void *names) {
        return names ? static_cast<node_identifier_list *>(names)->identifier : nullptr;
    }
};

} // namespace

outcome render_values_list(rendering &r, node_values_list *node, void *names) {
    if (!node->expression_or_default_list)
        return r.lacks(node);
    r.out.append("(");
    const outcome items = r.child(node->expression_or_default_list, names);
    r.out.append(")");
    return {true, true, items.status};
}

outcome render_expression_or_default_list(rendering &r, node_expression_or_default_list *node,
                                          void *names) {
    return render_list<&node_expression_or_default_list::expression_or_default_list,
                       &node_expression_or_default_list::expression_or_default_item, column_names>(
        r, node, names, comma);
}

outcome render_expression_or_default_item(rendering &r, node_expression_or_default_item *node,
                                          void *) {
    const outcome value = r.child(node->expression);
    if (!value.text)
        r.out.append("DEFAULT");
    return {true, true, value.status};
}

// The assignments of an UPDATE.

outcome render_set_clausule(rendering &r, node_set_clausule *node, void *) {
    if (!node->set_list)
        return r.lacks(node);
    r.remark(node);
    return r.enclosed_child("SET ", node->set_list);
}

outcome render_set_list(rendering &r, node_set_list *node, void *data) {
    return render_list<&node_set_list::set_list, &node_set_list::set_item>(r, node, data, comma);
}

outcome render_set_item(rendering &r, node_set_item *node, void *) {
    if (!node->column_reference || !node->expression)
        return r.lacks(node);
    outcome result = r.enclosed_child("", node->column_reference, " = ");
    result.fail_with(r.child(node->expression));
    return result;
}

// Tables and joins.

outcome render_tables(rendering &r, node_tables *node, void *) {
    if (!node->tables_list)
        return r.lacks(node);
    const output::place begin = r.out.here();
    outcome result = r.child(node->tables_list);
    const outcome joins = r.spaced_child(begin, node->join_list);
    result.fail_with(joins);
    return {true, result.text || joins.text, result.status};
}

outcome render_tables_list(rendering &r, node_tables_list *node, void *data) {
    return render_list<&node_tables_list::tables_list, &node_tables_list::table>(r, node, data,
                                                                                 comma);
}

outcome render_table(rendering &r, node_table *node, void *) {
    if (!node->identifier)
        return r.lacks(node);
    outcome result = r.child(node->identifier);
    const outcome alias = r.prefixed_child(" AS ", node->alias);
    result.fail_with(alias);
    r.remark(node);
    return {true, result.text || alias.text, result.status};
}

outcome render_join_list(rendering &r, node_join_list *node, void *data) {
    return render_list<&node_join_list::join_list, &node_join_list::join>(r, node, data, blank);
}

outcome render_join(rendering &r, node_join *node, void *) {
    static constexpr std::string_view words[] = {"",
                                                 "CROSS JOIN ",
                                                 "INNER JOIN ",
                                                 "LEFT OUTER JOIN ",
                                                 "RIGHT OUTER JOIN ",
                                                 "FULL OUTER JOIN "};
    if (!node->table)
        return r.lacks(node);
    const bool known = node->type >= QUILLET_JOIN_CROSS && node->type <= QUILLET_JOIN_FULL;
    if (node->natural)
        r.out.append("NATURAL ");
    r.out.append(words[known ? node->type : QUILLET_JOIN_NONE]);
    const output::place begin = r.out.here();
    outcome result = r.child(node->table);
    const outcome condition = r.spaced_child(begin, node->join_expression);
    result.fail_with(condition);
    r.remark(node);
    return {true, result.text || condition.text || known || node->natural, result.status};
}

outcome render_join_type(rendering &, node_join_type *, void *) { return absent; }

outcome render_join_expression(rendering &r, node_join_expression *node, void *) {
    const outcome condition = r.prefixed_child("ON ", node->expression);
    const output::place after_condition = r.out.here();
    const outcome names = r.prefixed_child("USING(", node->identifier_list);
    if (condition.text)
        r.out.cut(after_condition);
    else if (names.text)
        r.out.append(")");
    outcome result{true, condition.text || names.text, condition.status};
    result.fail_with(names);
    return result;
}

// The later clauses of a statement.

outcome render_where_clausule(rendering &r, node_where_clausule *node, void *) {
    if (!node->expression)
        return r.lacks(node);
    return r.enclosed_child("WHERE ", node->expression);
}

outcome render_group_by_clausule(rendering &r, node_group_by_clausule *node, void *) {
    if (!node->column_reference_list)
        return r.lacks(node);
    r.out.append("GROUP BY ");
    r.remark(node);
    const output::place begin = r.out.here();
    outcome result = a_text;
    result.fail_with(r.child(node->column_reference_list));
    result.fail_with(r.spaced_child(begin, node->having_clausule));
    return result;
}

outcome render_having_clausule(rendering &r, node_having_clausule *node, void *) {
    if (!node->expression)
        return r.lacks(node);
    return r.enclosed_child("HAVING ", node->expression);
}

outcome render_order_by_clausule(rendering &r, node_order_by_clausule *node, void *) {
    if (!node->order_by_list)
        return r.lacks(node);
    const outcome result = r.enclosed_child("ORDER BY ", node->order_by_list);
    r.remark(node);
    return result;
}

outcome render_order_by_list(rendering &r, node_order_by_list *node, void *data) {
    return render_list<&node_order_by_list::order_by_list, &node_order_by_list::order_by_item>(
        r, node, data, comma);
}

outcome render_order_by_item(rendering &r, node_order_by_item *node, void *) {
    if (!node->expression)
        return r.lacks(node);
    return r.enclosed_child("", node->expression,
                            node->type == QUILLET_SORT_ASCENDING ? " ASC" : " DESC");
}

outcome render_limit_clausule(rendering &r, node_limit_clausule *node, void *) {
    const outcome limit = r.prefixed_child("LIMIT ", node->const_integer_1);
    const outcome offset =
        r.prefixed_child(limit.text ? " OFFSET " : "OFFSET ", node->const_integer_2);
    outcome result{true, limit.text || offset.text, limit.status};
    result.fail_with(offset);
    return result;
}

// The select list.

outcome render_distinct_select_list(rendering &r, node_distinct_select_list *node, void *) {
    if (!node->select_list)
        return r.lacks(node);
    const output::place begin = r.out.here();
    const outcome distinct = r.child(node->distinct);
    const outcome list = r.spaced_child(begin, node->select_list);
    outcome result{true, distinct.text || list.text, distinct.status};
    result.fail_with(list);
    return result;
}

outcome render_distinct(rendering &r, node_distinct *node, void *) {
    r.out.append("DISTINCT");
    r.remark(node);
    const outcome list = r.prefixed_child(" (", node->select_list);
    if (list.text)
        r.out.append(")");
    return {true, true, list.status};
}

outcome render_select_list(rendering &r, node_select_list *node, void *data) {
    return render_list<&node_select_list::select_list, &node_select_list::select_item>(r, node,
                                                                                       data, comma);
}

outcome render_select_item(rendering &r, node_select_item *node, void *) {
    const outcome result = complete_select_item(r, node->identifier, r.child(node->expression));
    r.remark(node);
    return result;
}

// Names and columns.

outcome render_identifier_list(rendering &r, node_identifier_list *node, void *data) {
    r.remark(node);
    return render_list<&node_identifier_list::identifier_list, &node_identifier_list::identifier>(
        r, node, data, comma);
}

outcome render_identifier(rendering &r, node_identifier *node, void *) {
    if (!node->name)
        return r.lacks(node);
    r.append_of_tree(node->name);
    return a_text;
}

outcome render_column_reference_list(rendering &r, node_column_reference_list *node, void *data) {
    return render_list<&node_column_reference_list::column_reference_list,
                       &node_column_reference_list::column_reference>(r, node, data, comma);
}

outcome render_column_reference(rendering &r, node_column_reference *node, void *) {
    if (!node->column_name)
        return r.lacks(node);
    const outcome qualifier = r.child(node->correlation_name);
    if (qualifier.text)
        r.out.append(".");
    const outcome column = r.child(node->column_name);
    r.remark(node);
    outcome result{true, qualifier.text || column.text, qualifier.status};
    result.fail_with(column);
    return result;
}

} // namespace quillet
