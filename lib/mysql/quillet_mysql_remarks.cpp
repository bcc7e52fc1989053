// When the builder mysql remarks something. A rule looks at a construct that has been rendered, so
// that the types of its parts are known; columns have none.

#include "quillet_mysql_remarks.h"

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "quillet_date_format_scanner.h"
#include "quillet_function_rules.h"
#include "quillet_letter_case.h"
#include "quillet_mysql_intervals.h"
#include "quillet_mysql_rendering.h"
#include "quillet_mysql_reserved_words.h"
#include "quillet_rendering.h"

namespace quillet::mysql {

namespace {

// What is seen of an expression, through the parentheses round it.

const node_expression *inside(const node_expression *node) {
    while (node && node->expression_1 && !node->operator_ && !node->expression_2)
        node = node->expression_1;
    return node;
}

// The text of a string literal without its quotes; with a type word or without.
std::string_view literal_text(const node_expression *node) {
    const node_expression *inner = inside(node);
    const node_const_generic *constant = inner ? inner->const_generic : nullptr;
    const node_const_string *string = constant ? constant->const_string : nullptr;
    return string && string->string ? without_quotes(string->string) : std::string_view{};
}

bool is_string(const node_expression *node) {
    const node_expression *inner = inside(node);
    return inner && inner->const_generic && inner->const_generic->const_string;
}

std::string_view operator_of(const node_expression *node) {
    const node_expression *inner = inside(node);
    const char *name = inner ? inner->operator_ : nullptr;
    constexpr std::string_view prefix = "operator_";
    return name ? std::string_view(name).substr(prefix.size()) : std::string_view{};
}

bool is_operator(const node_expression *node, std::initializer_list<std::string_view> names) {
    const std::string_view own = operator_of(node);
    return std::find(names.begin(), names.end(), own) != names.end();
}

bool is_null(const node_expression *node) {
    const node_expression *inner = inside(node);
    const node_const_generic *constant = inner ? inner->const_generic : nullptr;
    return constant && !constant->const_string && !constant->const_boolean &&
           !constant->const_integer && !constant->const_floating;
}

int type_of(const node_expression *node) {
    return node ? inside(node)->sql_type : int{QUILLET_TYPE_UNKNOWN};
}

bool is_unknown(const node_expression *node) {
    return type_of(node) == QUILLET_TYPE_UNKNOWN && !is_null(node);
}

bool is_text(const node_expression *node) {
    const int type = type_of(node);
    return type == QUILLET_TYPE_VARCHAR || type == QUILLET_TYPE_CHAR || type == QUILLET_TYPE_TEXT;
}

bool is_interval(const node_expression *node) {
    return node && type_of(node) == QUILLET_TYPE_INTERVAL;
}

// Names.

void look_at_name(rendering &r, const node_identifier *name) {
    if (!name || !name->name)
        return;
    const std::string_view text = name->name;
    if (text.find('`') != std::string_view::npos)
        r.say(notices::name_backquote, name);
    else if (is_reserved(text))
        r.say(notices::reserved_word, name);
}

// A table, an alias of one, or a name that refers to either.
void look_at_table_name(rendering &r, const node_identifier *name) {
    look_at_name(r, name);
    if (!name || !name->name)
        return;
    const std::string_view text = name->name;
    if (std::any_of(text.begin(), text.end(), [](char c) { return lower_case(c) != c; }))
        r.say(notices::name_case, name);
}

void on_column_reference(rendering &r, node_column_reference *node) {
    look_at_table_name(r, node->correlation_name);
    look_at_name(r, node->column_name);
}

void on_table(rendering &r, node_table *node) {
    look_at_table_name(r, node->identifier);
    look_at_table_name(r, node->alias);
}

void on_identifier_list(rendering &r, node_identifier_list *node) {
    for (; node; node = node->identifier_list)
        look_at_name(r, node->identifier);
}

// Literals.

// Whether MySQL takes the quote behind a string, or one within it, for a part of it.
bool has_escaped_end(std::string_view text) {
    return text.ends_with('\\') || text.find("\\'") != std::string_view::npos;
}

// Whether MySQL changes a character behind a backslash. It leaves those that are for LIKE.
bool has_escape(std::string_view text) {
    for (std::size_t at = text.find('\\'); at != std::string_view::npos;
         at = text.find('\\', at + 1))
        if (at + 1 == text.size() || (text[at + 1] != '%' && text[at + 1] != '_'))
            return true;
    return false;
}

void on_const_generic(rendering &r, node_const_generic *node) {
    if (!node->const_string || !node->const_string->string)
        return;
    const std::string_view text = without_quotes(node->const_string->string);
    if (has_escaped_end(text))
        r.say(notices::backslash_before_quote, node);
    else if (has_escape(text))
        r.say(notices::string_backslash, node);
    if (node->type == QUILLET_TYPE_BOOL)
        r.say(notices::boolean_cast, node);
    if (node->type == QUILLET_TYPE_INTERVAL) {
        const interval_form form = form_of_interval(text);
        if (!form.is_read)
            r.say(notices::interval_form, node);
        else if (form.has_fraction)
            r.say(notices::interval_fraction, node);
        return;
    }
    if (!quillet_is_datetime(node->type))
        return;
    if (!is_numeric_date(text))
        r.say(notices::date_in_words, node);
    else if (!is_in_calendar(text, node->type))
        r.say(notices::wrong_date, node);
    else if (text.find('.') != std::string_view::npos)
        r.say(notices::lost_fraction, node);
}

// Casts.

void on_cast_expression(rendering &r, node_cast_expression *node) {
    const node_expression *operand = node->expression;
    switch (node->type) {
    case QUILLET_TYPE_UNKNOWN: r.say(notices::empty_cast, node); break;
    case QUILLET_TYPE_BOOL: r.say(notices::boolean_cast, node); break;
    case QUILLET_TYPE_VARCHAR:
    case QUILLET_TYPE_CHAR:
    case QUILLET_TYPE_TEXT:
        r.say(type_of(operand) == QUILLET_TYPE_BOOL ? notices::boolean_as_text : notices::text_cast,
              node);
        break;
    case QUILLET_TYPE_FLOAT8:
    case QUILLET_TYPE_DECIMAL:
    case QUILLET_TYPE_FLOAT:
        r.say(is_text(operand) ? notices::dropped_cast : notices::number_cast, node);
        // The parentheses go with the cast, and what stands beside it takes a part of the operand.
        if (operand && operand->operator_ && !is_operator(operand, {"uminus"}))
            r.say(notices::grouped_otherwise, node);
        break;
    case QUILLET_TYPE_INTERVAL: {
        const interval_form form = form_of_interval(literal_text(operand));
        if (!form.is_read)
            r.say(notices::interval_form, node);
        else if (form.has_fraction)
            r.say(notices::interval_fraction, node);
        break;
    }
    case QUILLET_TYPE_DATE:
    case QUILLET_TYPE_TIME:
    case QUILLET_TYPE_TIMEZ:
    case QUILLET_TYPE_TIMESTAMP:
    case QUILLET_TYPE_TIMESTAMPZ: {
        const bool is_date = node->type == QUILLET_TYPE_DATE;
        if (is_string(operand) && !is_numeric_date(literal_text(operand)))
            r.say(notices::date_in_words, node);
        else if (is_string(operand) && !is_in_calendar(literal_text(operand), node->type))
            r.say(notices::wrong_date, node);
        else if (literal_text(operand).find('.') != std::string_view::npos)
            r.say(notices::lost_fraction, node);
        else if (!is_string(operand))
            r.say(is_date ? notices::unchecked_date : notices::cast_of_time, node);
        break;
    }
    case QUILLET_TYPE_INT8:
    case QUILLET_TYPE_INT4:
    case QUILLET_TYPE_INT2:
    case QUILLET_TYPE_SERIAL:
    case QUILLET_TYPE_SERIAL4:
        if (is_text(operand) || is_unknown(operand))
            r.say(notices::unchecked_number, node);
        else
            r.say(notices::overflow, node);
        break;
    default: break;
    }
}

// Assignments.

std::string lower_case_of(const char *name) {
    std::string text = name;
    std::transform(text.begin(), text.end(), text.begin(), lower_case);
    return text;
}

// Whether an expression reads one of some columns.
bool reads_one_of(const std::set<std::string> &columns, const node_expression *expression) {
    bool is_found = false;
    visit_tree(expression, kind_expression, [&](const void *node, node_kind kind) {
        if (kind == kind_column_reference) {
            const auto *column = static_cast<const node_column_reference *>(node)->column_name;
            is_found = columns.contains(lower_case_of(column->name));
        }
        return !is_found;
    });
    return is_found;
}

void on_set_clausule(rendering &r, node_set_clausule *node) {
    std::vector<const node_set_item *> items; // the list begins at its end
    for (const node_set_list *list = node->set_list; list; list = list->set_list)
        items.push_back(list->set_item);
    std::reverse(items.begin(), items.end());
    r.say(notices::stored_value, node);
    std::set<std::string> assigned;
    for (const node_set_item *item : items) {
        if (!assigned.empty() && reads_one_of(assigned, item->expression))
            r.say(notices::assignments_in_order, item);
        assigned.insert(lower_case_of(item->column_reference->column_name->name));
    }
}

// Output columns.

// Whether an expression can be NULL: never, or for certain values of columns, or as it stands.
enum class nullness : std::uint8_t { never, of_columns, as_written };

nullness nullness_of(const node_expression *node) {
    nullness worst = nullness::never;
    std::vector<const node_expression *> left{node};
    while (!left.empty()) {
        const node_expression *next = inside(left.back());
        left.pop_back();
        if (is_operator(next, {"is_null", "is_not_null", "distinct_from", "is", "is_not"}))
            continue;
        if (is_null(next))
            return nullness::as_written;
        if (!next->operator_ && !next->const_generic)
            worst = nullness::of_columns;
        for (const node_expression *operand :
             {next->expression_1, next->expression_2, next->expression_3})
            if (operand)
                left.push_back(operand);
    }
    return worst;
}

void on_select_item(rendering &r, node_select_item *node) {
    look_at_name(r, node->identifier);
    const node_expression *expression = node->expression;
    if (!expression)
        return;
    if (type_of(expression) == QUILLET_TYPE_BOOL) {
        const nullness found = nullness_of(expression);
        if (found == nullness::as_written)
            r.say(notices::boolean_item, node);
        else if (found == nullness::of_columns)
            r.say(notices::boolean_of_columns, node);
    }
    if (is_interval(expression))
        r.say(notices::interval_alone, node);
}

// Operators.

void look_at_operands(rendering &r, node_expression *node) {
    if (is_interval(node->expression_1) || is_interval(node->expression_2))
        r.say(notices::interval_alone, node);
}

void on_comparison(rendering &r, node_expression *node) {
    look_at_operands(r, node);
    const node_expression *first = node->expression_1;
    const node_expression *second = node->expression_2;
    if (is_text(first) || is_text(second) || (is_unknown(first) && is_unknown(second)))
        r.say(notices::text_comparison, node);
}

void on_pattern(rendering &r, node_expression *node) { r.say(notices::pattern, node); }

void on_like(rendering &r, node_expression *node) { r.say(notices::text_comparison, node); }

void look_at_sum(rendering &r, node_expression *node) {
    const node_expression *first = node->expression_1;
    const node_expression *second = node->expression_2;
    r.say(is_unknown(first) || is_unknown(second) ? notices::unknown_arithmetic : notices::overflow,
          node);
}

void on_addition(rendering &r, node_expression *node) { look_at_sum(r, node); }

void on_substraction(rendering &r, node_expression *node) {
    if (is_interval(node->expression_2) &&
        form_of_interval(literal_text(node->expression_2)).parts > 1)
        r.say(notices::interval_subtracted, node);
    look_at_sum(r, node);
}

void on_product(rendering &r, node_expression *node) { r.say(notices::overflow, node); }
void on_modulo(rendering &r, node_expression *node) { r.say(notices::zero_divisor, node); }

// Whether a number has a fraction by its form.
bool is_fraction(const node_expression *node) {
    const node_expression *inner = inside(node);
    const bool is_literal = inner->const_generic && inner->const_generic->const_floating;
    const bool is_cast = inner->cast_expression && quillet_is_float(inner->sql_type);
    return is_literal || is_cast;
}

// A part that is not a text for certain.
void on_concatenate(rendering &r, node_expression *node) {
    if (!is_text(node->expression_1) || !is_text(node->expression_2))
        r.say(notices::text_form, node);
}

void on_divide(rendering &r, node_expression *node) {
    const bool first = quillet_is_integer(type_of(node->expression_1)) != 0;
    const bool second = quillet_is_integer(type_of(node->expression_2)) != 0;
    if (first && second)
        r.say(notices::integer_division, node);
    else if (!is_fraction(node->expression_1) && !is_fraction(node->expression_2))
        r.say(notices::division, node);
    else
        r.say(notices::zero_divisor, node);
}

void on_bits(rendering &r, node_expression *node) { r.say(notices::unsigned_bits, node); }
void on_overlaps(rendering &r, node_expression *node) { r.say(notices::overlaps_ends, node); }
void on_cubic_root(rendering &r, node_expression *node) { r.say(notices::less_exact, node); }

// Functions.

template <const notice &What> void say(rendering &r, node_function_call *call) {
    r.say(What, call);
}

void on_extract_of(rendering &r, node_function_call *call, std::string_view field,
                   const node_expression *source) {
    if (is_interval(source))
        r.say(notices::interval_field, call);
    else if (equal_ignoring_case(field, "week"))
        r.say(notices::iso_week, call);
    else if (equal_ignoring_case(field, "epoch"))
        r.say(notices::epoch, call);
}

void on_extract(rendering &r, node_function_call *call) {
    const node_from_for_argument *argument = call->from_for_argument;
    const node_expression *field = argument ? argument->expression_1 : nullptr;
    if (field && field->column_reference && field->column_reference->column_name)
        on_extract_of(r, call, field->column_reference->column_name->name, argument->expression_2);
}

void on_date_part(rendering &r, node_function_call *call) {
    on_extract_of(r, call, literal_text(previous_argument(*call)), last_argument(*call));
}

void on_trim(rendering &r, node_function_call *call) {
    const node_trim_argument *argument = call->trim_argument;
    if (!argument || !argument->expression_1)
        return;
    if (!is_string(argument->expression_1) || literal_text(argument->expression_1).size() > 1)
        r.say(notices::trimmed_characters, call);
}

void on_side_trim(rendering &r, node_function_call *call) {
    if (previous_argument(*call) && !is_string(last_argument(*call)))
        r.say(notices::trimmed_characters, call);
}

// What there is to say of a word of a pattern; NULL for nothing.
const notice *notice_of_word(const date_format_node &word) {
    const bool is_plain = word.prefix != DATE_FORMAT_PREFIX_FM;
    if (word.suffix)
        return &notices::pattern_word;
    switch (word.format) {
    case DATE_FORMAT_MM: return is_plain ? &notices::month_name : nullptr;
    case DATE_FORMAT_YY:
    case DATE_FORMAT_IY:
    case DATE_FORMAT_IYYY: return &notices::year_digits;
    case DATE_FORMAT_MONTH_CAPITAL: return is_plain ? &notices::padded_name : nullptr;
    default: break;
    }
    const bool is_letter = word.format > 0 && word.format < DATE_FORMAT_STRING &&
                           ((word.format | 0x20) >= 'a' && (word.format | 0x20) <= 'z');
    return is_letter ? &notices::pattern_word : nullptr;
}

void on_to_char(rendering &r, node_function_call *call) {
    const std::string_view pattern = literal_text(last_argument(*call));
    if (has_escape(pattern))
        r.say(notices::string_backslash, call);
    const date_format_list words = parse_date_format_in_place(pattern);
    for (const date_format_node *word = words.get(); word; word = word->next)
        if (const notice *found = notice_of_word(*word))
            return r.say(*found, call);
    if (pattern.find(".M.") != std::string_view::npos)
        r.say(notices::pattern_word, call);
}

// A start or a length that a text is cut or filled by.
void on_lengths(rendering &r, node_function_call *call) {
    const node_expression *second = nullptr;
    for (const node_expressions_list *list = call->expressions_list; list && list->expressions_list;
         list = list->expressions_list)
        second = list->expression;
    if (!second)
        return;
    const node_expression *inner = inside(second);
    const node_const_generic *literal = inner->const_generic;
    const char *digits =
        literal && literal->const_integer ? literal->const_integer->integer : nullptr;
    if (is_operator(second, {"uminus"}) || (digits && std::string_view(digits) == "0"))
        r.say(notices::start_below_one, call);
    else
        r.say(notices::lengths_below_zero, call);
}

void on_count(rendering &r, node_function_call *call) {
    if (call->agregate_expression && call->agregate_expression->expression &&
        call->agregate_expression->type == QUILLET_AGREGATE_DISTINCT)
        r.say(notices::text_groups, call);
}

bool is_among(std::string_view name, std::initializer_list<std::string_view> names) {
    return std::any_of(names.begin(), names.end(),
                       [&](std::string_view known) { return equal_ignoring_case(known, name); });
}

void on_other_function(rendering &r, node_function_call *call) {
    const std::string_view name = call->function_name->name;
    if (is_among(name, {"concat", "concat_ws"}))
        r.say(notices::concat_of_null, call);
    else
        r.say(notices::other_function, call);
}

// Clauses.

void on_case_expression(rendering &r, node_case_expression *node) {
    if (node->expression)
        r.say(notices::text_comparison, node);
}

void on_insert(rendering &r, node_insert *node) { r.say(notices::stored_value, node); }

void on_delete(rendering &r, node_delete *node) {
    if (node->table && node->table->alias)
        r.say(notices::delete_alias, node->table);
}

void on_join(rendering &r, node_join *node) {
    if (node->type == QUILLET_JOIN_FULL)
        r.say(notices::full_join, node);
    else if (node->natural || (node->join_expression && node->join_expression->identifier_list))
        r.say(notices::text_comparison, node);
}

void on_distinct(rendering &r, node_distinct *node) {
    if (node->select_list)
        r.say(notices::distinct_on, node);
    else
        r.say(notices::text_groups, node);
}

void on_group_by_clausule(rendering &r, node_group_by_clausule *node) {
    r.say(notices::text_groups, node);
}

// The name of a column, with that of its table if there is one; "" for another expression.
std::string column_of(const node_expression *node) {
    const node_column_reference *column = node ? node->column_reference : nullptr;
    if (!column || !column->column_name)
        return {};
    const node_identifier *table = column->correlation_name;
    return (table ? lower_case_of(table->name) + "." : "") +
           lower_case_of(column->column_name->name);
}

// A test of a column for NULL is never NULL, and settles where the column's NULLs come.
void on_order_by_clausule(rendering &r, node_order_by_clausule *node) {
    std::vector<const node_order_by_item *> items; // the list begins at its end
    for (const auto *list = node->order_by_list; list; list = list->order_by_list)
        items.push_back(list->order_by_item);
    std::reverse(items.begin(), items.end());
    std::set<std::string> tested;
    for (const node_order_by_item *item : items) {
        const node_expression *expression = item ? inside(item->expression) : nullptr;
        if (!expression)
            continue;
        const std::string column = column_of(expression);
        const std::string column_below = column_of(inside(expression->expression_1));
        if (is_operator(expression, {"is_null"}) && !column_below.empty())
            tested.insert(column_below);
        else
            r.say(tested.contains(column) ? notices::text_comparison : notices::null_order, item);
    }
}

} // namespace

constinit const remark_table remarks = [] {
    remark_table all{};
    all.on_column_reference = on_column_reference;
    all.on_table = on_table;
    all.on_identifier_list = on_identifier_list;
    all.on_const_generic = on_const_generic;
    all.on_cast_expression = on_cast_expression;
    all.on_select_item = on_select_item;
    all.on_case_expression = on_case_expression;
    all.on_insert = on_insert;
    all.on_delete = on_delete;
    all.on_set_clausule = on_set_clausule;
    all.on_join = on_join;
    all.on_distinct = on_distinct;
    all.on_group_by_clausule = on_group_by_clausule;
    all.on_order_by_clausule = on_order_by_clausule;
    all.other_functions = on_other_function;
    all.is_frequent = true;
    all.forms = &forms;
    all.grouped_otherwise = &notices::grouped_otherwise;
    all.lost_type = &notices::lost_type;

    const auto for_operators = [&](remark<node_expression> rule,
                                   std::initializer_list<operator_id> ids) {
        for (const operator_id id : ids)
            all.operators[id] = rule;
    };
    for_operators(on_comparison,
                  {operator_id_equal, operator_id_not_equal, operator_id_greater,
                   operator_id_not_greater, operator_id_lesser, operator_id_not_lesser,
                   operator_id_distinct_from, operator_id_between, operator_id_not_between});
    for_operators(on_like, {operator_id_like, operator_id_not_like, operator_id_ilike,
                            operator_id_not_ilike});
    for_operators(on_pattern, {operator_id_regex, operator_id_iregex, operator_id_not_regex,
                               operator_id_not_iregex});
    for_operators(on_bits,
                  {operator_id_shift_left, operator_id_shift_right, operator_id_bitwise_and,
                   operator_id_bitwise_or, operator_id_bitwise_xor, operator_id_bitwise_not});
    for_operators(on_addition, {operator_id_addition});
    for_operators(on_product, {operator_id_multiplicity, operator_id_uminus, operator_id_abs,
                               operator_id_power});
    for_operators(on_modulo, {operator_id_modulo});
    for_operators(on_concatenate, {operator_id_concatenate});
    for_operators(on_substraction, {operator_id_substraction});
    for_operators(on_divide, {operator_id_divide});
    for_operators(on_overlaps, {operator_id_overlaps});
    for_operators(on_cubic_root, {operator_id_cubic_root});

    const auto for_functions = [&](remark<node_function_call> rule,
                                   std::initializer_list<function_id> ids) {
        for (const function_id id : ids)
            all.functions[id] = rule;
    };
    for_functions(say<notices::of_population>, {function_id_stddev, function_id_variance});
    for_functions(say<notices::less_exact>, {function_id_cbrt, function_id_pi});
    for_functions(say<notices::rounding>, {function_id_round});
    for_functions(say<notices::outside_domain>,
                  {function_id_ln, function_id_log, function_id_sqrt, function_id_acos,
                   function_id_asin, function_id_cot, function_id_mod, function_id_power,
                   function_id_exp});
    for_functions(say<notices::unknown_arithmetic>, {function_id_sum, function_id_avg});
    for_functions(on_lengths, {function_id_substr, function_id_lpad, function_id_rpad});
    for_functions(say<notices::bytes_of_text>, {function_id_length, function_id_ascii,
                                                function_id_chr, function_id_octet_length});
    for_functions(say<notices::unsigned_bits>, {function_id_bit_and, function_id_bit_or});
    for_functions(say<notices::text_comparison>,
                  {function_id_position, function_id_strpos, function_id_replace, function_id_max,
                   function_id_min, function_id_nullif});
    for_functions(say<notices::no_such_function>,
                  {function_id_to_date, function_id_to_timestamp, function_id_to_number});
    for_functions(say<notices::clock>,
                  {function_id_now, function_id_current_time, function_id_current_timestamp,
                   function_id_localtime, function_id_localtimestamp});
    for_functions(on_extract, {function_id_extract});
    for_functions(on_date_part, {function_id_date_part});
    for_functions(on_trim, {function_id_trim});
    for_functions(on_side_trim, {function_id_ltrim, function_id_rtrim});
    for_functions(on_to_char, {function_id_to_char});
    for_functions(on_count, {function_id_count});
    return all;
}();

} // namespace quillet::mysql
