/*
 * The grammar of one SQL statement in the PostgreSQL dialect (LALR(1), bison).
 *
 * Conventions
 *
 * - An action makes one node of the tree, named after its nonterminal, and moves the values of the
 *   right-hand side into it; "new (here)" makes it in the tree's memory, so an action reads as the
 *   record that it builds. An empty optional clause is NULL.
 * - A token's text is a copy that the scanner hands over; it ends up in a node. A node that only
 *   carries a word to its parent (identifiers that name types, join types) is given back there.
 * - What a failed parse had built goes with the tree's memory.
 * - Three parsers are made of this grammar: that of quillet_parse, which reads from the scanner of
 *   the process, with bison's own driver; one of a statement where it stands, with the driver of
 *   quillet_parser_driver.h; and the same with the place of each node. "here" is where an action's
 *   node goes.
 * - Lists are left-recursive: the head of the chain holds the last item.
 * - The value of the kind k is v_k. The union of the values is plain pointers: bison lets the stacks
 *   grow from 200 to 10,000 entries in C++ only if they can be copied as bytes.
 *
 * Conflicts
 *
 * The order of the rules and the precedence block decide what the input language means; bison's
 * defaults (shift; the earlier rule) resolve the rest. There are 599 shift/reduce and 23 reduce/reduce
 * conflicts; the build pins both counts (bison's own %expect-rr serves GLR parsers alone), so that a
 * change of meaning cannot slip in:
 *
 * - Operators without precedence ("!" after its operand, "!~~", "!~~*", "#", "&", "|", binary "~",
 *   SIMILAR TO, "::", the FROM of IS DISTINCT FROM) are shifted wherever they follow an operand:
 *   they take the shortest left operand and everything to their right. Nearly all of the
 *   shift/reduce conflicts are theirs: one for each operator's complete right operand.
 * - "e AND e" stands before the BETWEEN rules, and after "x BETWEEN 1 AND 2" both could be reduced:
 *   the earlier rule wins. So "x BETWEEN 1 AND 2 AND y" groups as "x BETWEEN (1 AND 2) AND y", and
 *   "x BETWEEN 1 AND 2 OR y" needs parentheses round the BETWEEN. These are the reduce/reduce
 *   conflicts.
 * - The first join of a list may follow the empty list or stand alone: the empty list wins.
 */

%code requires {
#include "quillet_parser_values.h"

struct quillet_parsing;
struct quillet_tree_memory;
}

%code {
#include "quillet_limits.h"
#include "quillet_parser_actions.h"
#include "quillet_parser_symbols.h"

using namespace quillet;

#ifdef QUILLET_PLACES
using symbol = placed_symbol;
#define here (placed_tree{static_cast<tree_memory &>(*memory), where})
#else
using symbol = parsed_symbol;
#define here (static_cast<tree_memory &>(*memory))
#endif

/* For bison's own driver. */
#ifndef QUILLET_IN_PLACE
#define YYMALLOC(size) _quillet_blocks_take(&parse->stack, nullptr, size)
#define YYFREE(block) _quillet_blocks_give(&parse->stack, block)
#define YYINITDEPTH QUILLET_PARSER_STACK_INITIAL
#define YYMAXDEPTH QUILLET_PARSER_STACK_MAXIMUM

static int yylex(quillet_value *value, quillet_parsing *) { return _quillet_query_lex(value, nullptr); }

static void yyerror(quillet_parsing *, quillet_tree_memory *, const char *message) { yy_quillet_error(message); }
#endif
}

%define api.pure full
%param {struct quillet_parsing *parse}
%parse-param {struct quillet_tree_memory *memory}
%define api.token.prefix {TOKEN_}

%define api.value.type {union quillet_value}

/* Keywords, in any letter case. */
%token ALL                  258
%token AND                  259
%token AS                   260
%token ASC                  261
%token AT                   262
%token BETWEEN              263
%token BOTH                 264
%token BY                   265
%token CASE                 266
%token CAST                 267
%token CROSS                268
%token DEFAULT              269
%token DELETE               270
%token DESC                 271
%token DISTINCT             272
%token ELSE                 273
%token END                  274
%token ESCAPE               275
%token FALSE                276
%token FROM                 277
%token FOR                  278
%token FULL                 279
%token GROUP                280
%token HAVING               281
%token ILIKE                282
%token IN                   283
%token INNER                284
%token INSERT               285
%token INTO                 286
%token IS                   287
%token ISNULL               288
%token JOIN                 289
%token LEADING              290
%token LEFT                 291
%token LIKE                 292
%token LIMIT                293
%token NATURAL              294
%token NOT                  295
%token NOTNULL              296
%token NULL                 297
%token OFFSET               298
%token ON                   299
%token OR                   300
%token ORDER                301
%token OUTER                302
%token OVERLAPS             303
%token PLACING              304
%token RIGHT                305
%token SELECT               306
%token SET                  307
%token SIMILAR              308
%token THEN                 309
%token TO                   310
%token TRAILING             311
%token TRUE                 312
%token UNKNOW               313
%token UPDATE               314
%token USING                315
%token WHEN                 316
%token WHERE                317
%token VALUES               318
%token ZONE                 319

/* Operators of several characters. The reserved codes and the names of the prefix operators are
   never scanned. */
%token NOT_ILIKE_OP         320
%token NOT_LIKE_OP          321
%token NOT_IREGEX_OP        322
%token NOT_REGEX_OP         323
%token IREGEX_OP            324
%token RESERVED_325         325
%token LESS_EQUAL           326
%token GREATER_EQUAL        327
%token NOT_EQUAL            328
%token SQUARE_ROOT_OP       329
%token CUBIC_ROOT_OP        330
%token PREFIX_FACTORIAL_OP  331
%token SHIFT_LEFT_OP        332
%token SHIFT_RIGHT_OP       333
%token CONCAT_OP            334
%token RESERVED_335         335
%token RESERVED_340         340
%token PREFIX_NOT           342
%token PREFIX_MINUS         343
%token PREFIX_ABS           344
%token PREFIX_SQUARE_ROOT   345
%token PREFIX_CUBIC_ROOT    346
%token PREFIX_FACTORIAL     347
%token PREFIX_BITWISE_NOT   348
%token TYPECAST_OP          349

/* Tokens with a text. */
%token <v_string> IDENTIFIER           336
%token <v_string> STRING               337
%token <v_string> INTEGER              338
%token <v_string> FLOAT                339
%token <v_string> CURRENT_DATETIME     341

/* Precedence, lowest first. The prefix operators have names of their own, because "-" and NOT are
   other operators when they stand between operands. */
%left OR
%left AND
%precedence NOT /* as the first word of NOT BETWEEN, NOT LIKE, NOT ILIKE and NOT SIMILAR TO */
%right '='
%nonassoc '<' '>'
%nonassoc LIKE ILIKE IREGEX_OP NOT_REGEX_OP NOT_IREGEX_OP
%precedence BETWEEN
%left LESS_EQUAL GREATER_EQUAL NOT_EQUAL SHIFT_LEFT_OP SHIFT_RIGHT_OP CONCAT_OP
%precedence IS ISNULL NOTNULL
%left '+' '-'
%left '*' '/' '%'
%left '^'
%precedence PREFIX_NOT PREFIX_MINUS PREFIX_ABS PREFIX_SQUARE_ROOT PREFIX_CUBIC_ROOT
%precedence PREFIX_FACTORIAL PREFIX_BITWISE_NOT

/* A nonterminal makes the node of its name; a statement makes the root. */
%type <v_main> statement <v_select> select <v_insert> insert <v_values_list> values_list
%type <v_expression_or_default_list> expression_or_default_list
%type <v_expression_or_default_item> expression_or_default_item
%type <v_update> update <v_set_clausule> set_clausule <v_set_list> set_list <v_set_item> set_item <v_delete> delete
%type <v_distinct_select_list> distinct_select_list <v_tables> tables <v_tables_list> tables_list <v_table> table
%type <v_join_list> join_list <v_join> join <v_join_type> join_type <v_join_expression> join_expression
%type <v_where_clausule> where_clausule <v_group_by_clausule> group_by_clausule <v_having_clausule> having_clausule
%type <v_order_by_clausule> order_by_clausule <v_order_by_list> order_by_list <v_order_by_item> order_by_item
%type <v_limit_clausule> limit_clausule <v_distinct> distinct <v_select_list> select_list
%type <v_expression> expression <v_case_expression> case_expression <v_when_list> when_list <v_when_item> when_item
%type <v_else_clausule> else_clausule <v_overlaps_expression> overlaps_expression
%type <v_cast_expression> cast_expression <v_const_generic> const_generic <v_at_time_zone> at_time_zone
%type <v_const_string> const_string <v_const_integer> const_integer <v_const_floating> const_floating
%type <v_escape> escape <v_const_boolean> const_boolean <v_select_item> select_item
%type <v_identifier_list> identifier_list <v_identifier> identifier
%type <v_column_reference_list> column_reference_list <v_column_reference> column_reference
%type <v_function_call> function_call <v_using_argument> using_argument
%type <v_placing_from_for_argument> placing_from_for_argument <v_in_argument> in_argument
%type <v_from_for_argument> from_for_argument <v_trim_argument> trim_argument
%type <v_expressions_list> expressions_list <v_agregate_expression> agregate_expression

%start input

%%

/* Statements. */

input
    : statement { parse->root = $1; }
    ;

statement
    : insert opt_semicolon { $$ = new (here) node_main{.insert = $1}; }
    | select opt_semicolon { $$ = new (here) node_main{.select = $1}; }
    | update opt_semicolon { $$ = new (here) node_main{.update = $1}; }
    | delete opt_semicolon { $$ = new (here) node_main{.delete_ = $1}; }
    ;

opt_semicolon
    : %empty
    | ';'
    ;

insert
    : INSERT INTO table VALUES values_list { $$ = new (here) node_insert{.table = $3, .values_list = $5}; }
    | INSERT INTO table '(' identifier_list ')' VALUES values_list
        { $$ = new (here) node_insert{.table = $3, .identifier_list = $5, .values_list = $8}; }
    ;

update
    : UPDATE table set_clausule where_clausule { $$ = new (here) node_update{.table = $2, .set_clausule = $3, .where_clausule = $4}; }
    ;

delete
    : DELETE FROM table where_clausule { $$ = new (here) node_delete{.table = $3, .where_clausule = $4}; }
    ;

set_clausule
    : SET set_list { $$ = new (here) node_set_clausule{.set_list = $2}; }
    ;

set_list
    : set_list ',' set_item { $$ = new (here) node_set_list{.set_list = $1, .set_item = $3}; }
    | set_item              { $$ = new (here) node_set_list{.set_item = $1}; }
    ;

set_item
    : column_reference '=' expression { $$ = new (here) node_set_item{.column_reference = $1, .expression = $3}; }
    ;

values_list
    : DEFAULT VALUES                     { $$ = new (here) node_values_list{}; }
    | '(' expression_or_default_list ')' { $$ = new (here) node_values_list{.expression_or_default_list = $2}; }
    ;

expression_or_default_list
    : expression_or_default_list ',' expression_or_default_item
        { $$ = new (here) node_expression_or_default_list{.expression_or_default_list = $1, .expression_or_default_item = $3}; }
    | expression_or_default_item { $$ = new (here) node_expression_or_default_list{.expression_or_default_item = $1}; }
    ;

expression_or_default_item
    : expression { $$ = new (here) node_expression_or_default_item{.expression = $1}; }
    | DEFAULT    { $$ = new (here) node_expression_or_default_item{}; }
    ;

select
    : SELECT distinct_select_list FROM tables where_clausule group_by_clausule order_by_clausule limit_clausule
        {
          $$ = new (here) node_select{.distinct_select_list = $2, .tables = $4, .where_clausule = $5,
                                .group_by_clausule = $6, .order_by_clausule = $7, .limit_clausule = $8};
        }
    | SELECT distinct_select_list { $$ = new (here) node_select{.distinct_select_list = $2}; }
    ;

/* The FROM part. */

tables
    : tables_list join_list { $$ = new (here) node_tables{.tables_list = $1, .join_list = $2}; }
    ;

tables_list
    : table                 { $$ = new (here) node_tables_list{.table = $1}; }
    | tables_list ',' table { $$ = new (here) node_tables_list{.table = $3, .tables_list = $1}; }
    ;

join_list
    : %empty         { $$ = nullptr; }
    | join_list join { $$ = new (here) node_join_list{.join = $2, .join_list = $1}; }
    | join           { $$ = new (here) node_join_list{.join = $1}; }
    ;

join
    : join_type JOIN table join_expression { $$ = new (here) node_join{.type = taken(here, $1), .table = $3, .join_expression = $4}; }
    | NATURAL join_type JOIN table         { $$ = new (here) node_join{.type = taken(here, $2), .natural = 1, .table = $4}; }
    | CROSS JOIN table                     { $$ = new (here) node_join{.type = QUILLET_JOIN_CROSS, .table = $3}; }
    ;

join_type
    : %empty      { $$ = new (here) node_join_type{.type = QUILLET_JOIN_INNER}; }
    | INNER       { $$ = new (here) node_join_type{.type = QUILLET_JOIN_INNER}; }
    | OUTER       { $$ = new (here) node_join_type{.type = QUILLET_JOIN_LEFT}; }
    | LEFT        { $$ = new (here) node_join_type{.type = QUILLET_JOIN_LEFT}; }
    | RIGHT       { $$ = new (here) node_join_type{.type = QUILLET_JOIN_RIGHT}; }
    | FULL        { $$ = new (here) node_join_type{.type = QUILLET_JOIN_FULL}; }
    | LEFT OUTER  { $$ = new (here) node_join_type{.type = QUILLET_JOIN_LEFT}; }
    | RIGHT OUTER { $$ = new (here) node_join_type{.type = QUILLET_JOIN_RIGHT}; }
    | FULL OUTER  { $$ = new (here) node_join_type{.type = QUILLET_JOIN_FULL}; }
    ;

join_expression
    : %empty                        { $$ = nullptr; }
    | ON expression                 { $$ = new (here) node_join_expression{.expression = $2}; }
    | USING '(' identifier_list ')' { $$ = new (here) node_join_expression{.identifier_list = $3}; }
    ;

table
    : identifier               { $$ = new (here) node_table{.identifier = $1}; }
    | identifier identifier    { $$ = new (here) node_table{.identifier = $1, .alias = $2}; }
    | identifier AS identifier { $$ = new (here) node_table{.identifier = $1, .alias = $3}; }
    ;

/* The later clauses. */

where_clausule
    : %empty           { $$ = nullptr; }
    | WHERE expression { $$ = new (here) node_where_clausule{.expression = $2}; }
    ;

group_by_clausule
    : %empty { $$ = nullptr; }
    | GROUP BY column_reference_list having_clausule
        { $$ = new (here) node_group_by_clausule{.column_reference_list = $3, .having_clausule = $4}; }
    ;

having_clausule
    : %empty            { $$ = nullptr; }
    | HAVING expression { $$ = new (here) node_having_clausule{.expression = $2}; }
    ;

order_by_clausule
    : %empty                 { $$ = nullptr; }
    | ORDER BY order_by_list { $$ = new (here) node_order_by_clausule{.order_by_list = $3}; }
    ;

order_by_list
    : order_by_list ',' order_by_item { $$ = new (here) node_order_by_list{.order_by_list = $1, .order_by_item = $3}; }
    | order_by_item                   { $$ = new (here) node_order_by_list{.order_by_item = $1}; }
    ;

order_by_item
    : expression      { $$ = new (here) node_order_by_item{.type = QUILLET_SORT_ASCENDING, .expression = $1}; }
    | expression ASC  { $$ = new (here) node_order_by_item{.type = QUILLET_SORT_ASCENDING, .expression = $1}; }
    | expression DESC { $$ = new (here) node_order_by_item{.type = QUILLET_SORT_DESCENDING, .expression = $1}; }
    ;

limit_clausule
    : %empty                                   { $$ = nullptr; }
    | LIMIT ALL                                { $$ = nullptr; }
    | LIMIT const_integer                      { $$ = new (here) node_limit_clausule{.const_integer_1 = $2}; }
    | LIMIT const_integer OFFSET const_integer { $$ = new (here) node_limit_clausule{.const_integer_1 = $2, .const_integer_2 = $4}; }
    | OFFSET const_integer                     { $$ = new (here) node_limit_clausule{.const_integer_2 = $2}; }
    | LIMIT ALL OFFSET const_integer           { $$ = new (here) node_limit_clausule{.const_integer_2 = $4}; }
    ;

/* The select list. */

distinct_select_list
    : select_list          { $$ = new (here) node_distinct_select_list{.select_list = $1}; }
    | ALL select_list      { $$ = new (here) node_distinct_select_list{.select_list = $2}; }
    | distinct select_list { $$ = new (here) node_distinct_select_list{.distinct = $1, .select_list = $2}; }
    ;

distinct
    : DISTINCT                        { $$ = new (here) node_distinct{}; }
    | DISTINCT ON '(' select_list ')' { $$ = new (here) node_distinct{.select_list = $4}; }
    ;

select_list
    : select_item                 { $$ = new (here) node_select_list{.select_item = $1}; }
    | select_list ',' select_item { $$ = new (here) node_select_list{.select_list = $1, .select_item = $3}; }
    ;

select_item
    : '*'                      { $$ = new (here) node_select_item{}; }
    | identifier '.' '*'       { $$ = new (here) node_select_item{.identifier = $1}; }
    | expression               { $$ = new (here) node_select_item{.expression = $1}; }
    | expression AS identifier { $$ = new (here) node_select_item{.expression = $1, .identifier = $3}; }
    ;

/* Expressions. The order of the alternatives is part of the language. */

expression
    : column_reference                                      { $$ = new (here) node_expression{.column_reference = $1}; }
    | function_call                                         { $$ = new (here) node_expression{.function_call = $1}; }
    | const_generic                                         { $$ = new (here) node_expression{.const_generic = $1}; }
    | '(' expression ')'                                    { $$ = new (here) node_expression{.expression_1 = $2}; }
    | expression '*' expression                             { $$ = apply(here, "operator_multiplicity", $1, $3); }
    | expression '/' expression                             { $$ = apply(here, "operator_divide", $1, $3); }
    | expression '%' expression                             { $$ = apply(here, "operator_modulo", $1, $3); }
    | expression '+' expression                             { $$ = apply(here, "operator_addition", $1, $3); }
    | expression '-' expression                             { $$ = apply(here, "operator_substraction", $1, $3); }
    | expression '<' expression                             { $$ = apply(here, "operator_lesser", $1, $3); }
    | expression '>' expression                             { $$ = apply(here, "operator_greater", $1, $3); }
    | expression LESS_EQUAL expression                      { $$ = apply(here, "operator_not_greater", $1, $3); }
    | expression GREATER_EQUAL expression                   { $$ = apply(here, "operator_not_lesser", $1, $3); }
    | expression NOT_EQUAL expression                       { $$ = apply(here, "operator_not_equal", $1, $3); }
    | expression '=' expression                             { $$ = apply(here, "operator_equal", $1, $3); }
    | expression '^' expression                             { $$ = apply(here, "operator_power", $1, $3); }
    | '@' expression %prec PREFIX_ABS                       { $$ = apply(here, "operator_abs", $2); }
    | '-' expression %prec PREFIX_MINUS                     { $$ = apply(here, "operator_uminus", $2); }
    | expression AND expression                             { $$ = apply(here, "operator_and", $1, $3); }
    | expression OR expression                              { $$ = apply(here, "operator_or", $1, $3); }
    | expression SHIFT_LEFT_OP expression                   { $$ = apply(here, "operator_shift_left", $1, $3); }
    | expression SHIFT_RIGHT_OP expression                  { $$ = apply(here, "operator_shift_right", $1, $3); }
    | SQUARE_ROOT_OP expression %prec PREFIX_SQUARE_ROOT    { $$ = apply(here, "operator_square_root", $2); }
    | expression CONCAT_OP expression                       { $$ = apply(here, "operator_concatenate", $1, $3); }
    | CUBIC_ROOT_OP expression %prec PREFIX_CUBIC_ROOT      { $$ = apply(here, "operator_cubic_root", $2); }
    | NOT expression %prec PREFIX_NOT                       { $$ = apply(here, "operator_not", $2); }
    | expression BETWEEN expression AND expression          { $$ = apply(here, "operator_between", $1, $3, $5); }
    | expression NOT BETWEEN expression AND expression      { $$ = apply(here, "operator_not_between", $1, $4, $6); }
    | expression ISNULL                                     { $$ = apply(here, "operator_is_null", $1); }
    | expression IS NULL                                    { $$ = apply(here, "operator_is_null", $1); }
    | expression NOTNULL                                    { $$ = apply(here, "operator_is_not_null", $1); }
    | expression IS NOT NULL                                { $$ = apply(here, "operator_is_not_null", $1); }
    | expression IS DISTINCT FROM expression                { $$ = apply(here, "operator_distinct_from", $1, $5); }
    | expression IS const_boolean                           { $$ = truth_test(here, "operator_is", $1, $3); }
    | expression IS NOT const_boolean                       { $$ = truth_test(here, "operator_is_not", $1, $4); }
    | expression LIKE expression                            { $$ = match(here, "operator_like", $1, $3); }
    | expression LIKE expression escape                     { $$ = match(here, "operator_like", $1, $3, $4); }
    | expression NOT LIKE expression                        { $$ = match(here, "operator_not_like", $1, $4); }
    | expression NOT LIKE expression escape                 { $$ = match(here, "operator_not_like", $1, $4, $5); }
    | expression NOT_LIKE_OP expression escape              { $$ = match(here, "operator_not_like", $1, $3, $4); }
    | expression ILIKE expression                           { $$ = match(here, "operator_ilike", $1, $3); }
    | expression ILIKE expression escape                    { $$ = match(here, "operator_ilike", $1, $3, $4); }
    | expression NOT ILIKE expression                       { $$ = match(here, "operator_not_ilike", $1, $4); }
    | expression NOT ILIKE expression escape                { $$ = match(here, "operator_not_ilike", $1, $4, $5); }
    | expression NOT_ILIKE_OP expression                    { $$ = match(here, "operator_not_ilike", $1, $3); }
    | expression NOT_ILIKE_OP expression escape             { $$ = match(here, "operator_not_ilike", $1, $3, $4); }
    | expression SIMILAR TO expression                      { $$ = match(here, "operator_similar_to", $1, $4); }
    | expression SIMILAR TO expression escape               { $$ = match(here, "operator_similar_to", $1, $4, $5); }
    | expression NOT SIMILAR TO expression                  { $$ = match(here, "operator_not_similar_to", $1, $5); }
    | expression NOT SIMILAR TO expression escape           { $$ = match(here, "operator_not_similar_to", $1, $5, $6); }
    | expression '~' expression                             { $$ = apply(here, "operator_regex", $1, $3); }
    | expression IREGEX_OP expression                       { $$ = apply(here, "operator_iregex", $1, $3); }
    | expression NOT_REGEX_OP expression                    { $$ = apply(here, "operator_not_regex", $1, $3); }
    | expression NOT_IREGEX_OP expression                   { $$ = apply(here, "operator_not_iregex", $1, $3); }
    | PREFIX_FACTORIAL_OP expression %prec PREFIX_FACTORIAL { $$ = apply(here, "operator_factorial", $2); }
    | expression '!'                                        { $$ = apply(here, "operator_factorial", $1); }
    | expression '&' expression                             { $$ = apply(here, "operator_bitwise_and", $1, $3); }
    | expression '|' expression                             { $$ = apply(here, "operator_bitwise_or", $1, $3); }
    | expression '#' expression                             { $$ = apply(here, "operator_bitwise_xor", $1, $3); }
    | '~' expression %prec PREFIX_BITWISE_NOT               { $$ = apply(here, "operator_bitwise_not", $2); }
    | cast_expression                                       { $$ = new (here) node_expression{.cast_expression = $1}; }
    | overlaps_expression OVERLAPS overlaps_expression      { $$ = overlaps(here, $1, $3); }
    | case_expression                                       { $$ = new (here) node_expression{.case_expression = $1}; }
    ;

case_expression
    : CASE expression when_list else_clausule END
        { $$ = new (here) node_case_expression{.expression = $2, .when_list = $3, .else_clausule = $4}; }
    | CASE when_list else_clausule END { $$ = new (here) node_case_expression{.when_list = $2, .else_clausule = $3}; }
    ;

when_list
    : when_list when_item { $$ = new (here) node_when_list{.when_list = $1, .when_item = $2}; }
    | when_item           { $$ = new (here) node_when_list{.when_item = $1}; }
    ;

when_item
    : WHEN expression THEN expression { $$ = new (here) node_when_item{.expression_1 = $2, .expression_2 = $4}; }
    ;

else_clausule
    : %empty          { $$ = nullptr; }
    | ELSE expression { $$ = new (here) node_else_clausule{.expression = $2}; }
    ;

overlaps_expression
    : '(' expression ',' expression ')' { $$ = new (here) node_overlaps_expression{.expression_1 = $2, .expression_2 = $4}; }
    ;

const_string
    : STRING { $$ = new (here) node_const_string{.string = $1}; }
    ;

const_integer
    : INTEGER { $$ = new (here) node_const_integer{.integer = $1}; }
    ;

const_floating
    : FLOAT { $$ = new (here) node_const_floating{.floating = $1}; }
    ;

escape
    : ESCAPE STRING { $$ = new (here) node_escape{.string = $2}; }
    ;

const_boolean
    : TRUE   { $$ = new (here) node_const_boolean{.value = QUILLET_TRUTH_TRUE}; }
    | FALSE  { $$ = new (here) node_const_boolean{.value = QUILLET_TRUTH_FALSE}; }
    | UNKNOW { $$ = new (here) node_const_boolean{.value = QUILLET_TRUTH_UNKNOW}; }
    ;

cast_expression
    : CAST '(' expression AS identifier ')' { $$ = new (here) node_cast_expression{.expression = $3, .type = type_named(here, $5)}; }
    | expression TYPECAST_OP identifier     { $$ = new (here) node_cast_expression{.expression = $1, .type = type_named(here, $3)}; }
    ;

/* Function calls. */

function_call
    : identifier '(' ')'                     { $$ = new (here) node_function_call{.function_name = $1}; }
    | CURRENT_DATETIME                       { $$ = new (here) node_function_call{.function_name = name(here, $1)}; }
    | CURRENT_DATETIME '(' ')'               { $$ = new (here) node_function_call{.function_name = name(here, $1)}; }
    | CURRENT_DATETIME '(' expressions_list ')'
        { $$ = new (here) node_function_call{.function_name = name(here, $1), .expressions_list = $3}; }
    | identifier '(' agregate_expression ')' { $$ = new (here) node_function_call{.function_name = $1, .agregate_expression = $3}; }
    | identifier '(' expressions_list ')'    { $$ = new (here) node_function_call{.function_name = $1, .expressions_list = $3}; }
    | identifier '(' using_argument ')'      { $$ = new (here) node_function_call{.function_name = $1, .using_argument = $3}; }
    | identifier '(' placing_from_for_argument ')'
        { $$ = new (here) node_function_call{.function_name = $1, .placing_from_for_argument = $3}; }
    | identifier '(' from_for_argument ')'   { $$ = new (here) node_function_call{.function_name = $1, .from_for_argument = $3}; }
    | identifier '(' in_argument ')'         { $$ = new (here) node_function_call{.function_name = $1, .in_argument = $3}; }
    | identifier '(' trim_argument ')'       { $$ = new (here) node_function_call{.function_name = $1, .trim_argument = $3}; }
    ;

using_argument
    : expression USING identifier { $$ = new (here) node_using_argument{.expression = $1, .identifier = $3}; }
    ;

placing_from_for_argument
    : expression PLACING expression FROM expression                { $$ = placing(here, $1, $3, $5, nullptr); }
    | expression PLACING expression FROM expression FOR expression { $$ = placing(here, $1, $3, $5, $7); }
    | expression PLACING expression FOR expression                 { $$ = placing(here, $1, $3, nullptr, $5); }
    | expression PLACING expression                                { $$ = placing(here, $1, $3, nullptr, nullptr); }
    ;

from_for_argument
    : expression FROM expression { $$ = new (here) node_from_for_argument{.expression_1 = $1, .expression_2 = $3}; }
    | expression FROM expression FOR expression
        { $$ = new (here) node_from_for_argument{.expression_1 = $1, .expression_2 = $3, .expression_3 = $5}; }
    ;

in_argument
    : expression IN expression { $$ = new (here) node_in_argument{.expression_1 = $1, .expression_2 = $3}; }
    ;

trim_argument
    : LEADING expression FROM expression  { $$ = trim(here, QUILLET_TRIM_LEADING, $2, $4); }
    | TRAILING expression FROM expression { $$ = trim(here, QUILLET_TRIM_TRAILING, $2, $4); }
    | BOTH expression FROM expression     { $$ = trim(here, QUILLET_TRIM_BOTH, $2, $4); }
    | LEADING FROM expression             { $$ = trim(here, QUILLET_TRIM_LEADING, nullptr, $3); }
    | TRAILING FROM expression            { $$ = trim(here, QUILLET_TRIM_TRAILING, nullptr, $3); }
    | BOTH FROM expression                { $$ = trim(here, QUILLET_TRIM_BOTH, nullptr, $3); }
    | FROM expression                     { $$ = trim(here, QUILLET_TRIM_BOTH, nullptr, $2); }
    ;

agregate_expression
    : DISTINCT expression { $$ = new (here) node_agregate_expression{.type = QUILLET_AGREGATE_DISTINCT, .expression = $2}; }
    | ALL expression      { $$ = new (here) node_agregate_expression{.type = QUILLET_AGREGATE_ALL, .expression = $2}; }
    | '*'                 { $$ = new (here) node_agregate_expression{.type = QUILLET_AGREGATE_STAR}; }
    ;

expressions_list
    : expression                      { $$ = new (here) node_expressions_list{.expression = $1}; }
    | expressions_list ',' expression { $$ = new (here) node_expressions_list{.expressions_list = $1, .expression = $3}; }
    ;

/* Literals, columns and names. */

const_generic
    : const_boolean  { $$ = new (here) node_const_generic{.const_boolean = $1}; }
    | const_string   { $$ = new (here) node_const_generic{.const_string = $1}; }
    | const_integer  { $$ = new (here) node_const_generic{.const_integer = $1}; }
    | const_floating { $$ = new (here) node_const_generic{.const_floating = $1}; }
    | NULL           { $$ = new (here) node_const_generic{}; }
    | identifier const_string at_time_zone
        { $$ = new (here) node_const_generic{.const_string = $2, .type = parse->literal_type(type_named(here, $1)), .at_time_zone = $3}; }
    | identifier identifier const_string at_time_zone
        { $$ = new (here) node_const_generic{.const_string = $3, .type = parse->literal_type(type_named(here, $1, $2)), .at_time_zone = $4}; }
    ;

at_time_zone
    : %empty                                     { $$ = nullptr; }
    | AT identifier ZONE const_string            { $$ = new (here) node_at_time_zone{.type = zone_type(here, $2), .const_string = $4}; }
    | AT identifier ZONE identifier const_string { $$ = new (here) node_at_time_zone{.type = zone_type(here, $2, $4), .const_string = $5}; }
    ;

column_reference_list
    : column_reference_list ',' column_reference
        { $$ = new (here) node_column_reference_list{.column_reference_list = $1, .column_reference = $3}; }
    | column_reference { $$ = new (here) node_column_reference_list{.column_reference = $1}; }
    ;

column_reference
    : identifier                { $$ = new (here) node_column_reference{.column_name = $1}; }
    | identifier '.' identifier { $$ = new (here) node_column_reference{.column_name = $3, .correlation_name = $1}; }
    ;

identifier_list
    : identifier_list ',' identifier { $$ = new (here) node_identifier_list{.identifier_list = $1, .identifier = $3}; }
    | identifier                     { $$ = new (here) node_identifier_list{.identifier = $1}; }
    ;

identifier
    : IDENTIFIER { $$ = name(here, $1); }
    ;

%%
