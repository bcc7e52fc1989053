/* Uses the installed library as a C program would: every header, a translation, a parse alone, a
   tree by hand, a date format. */
#include <quillet.h>
#include <quillet_build_result.h>
#include <quillet_builder.h>
#include <quillet_date_format_parser.h>
#include <quillet_mysql_builder.h>
#include <quillet_parse_data.h>
#include <quillet_parser.h>
#include <quillet_postgresql_builder.h>
#include <quillet_strings_tools.h>
#include <quillet_tree_node.h>
#include <quillet_tree_view_builder.h>
#include <quillet_type_view_builder.h>
#include <quillet_types.h>
#include <quillet_version.h>

#include <quillet/quillet.h> /* as well */

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static int failures = 0;

static void expect_text(const char *what, const char *found, const char *wanted) {
    if (found && strcmp(found, wanted) == 0)
        return;
    printf("%s: \"%s\" instead of \"%s\"\n", what, found ? found : "(none)", wanted);
    failures += 1;
}

static void expect_number(const char *what, int found, int wanted) {
    if (found == wanted)
        return;
    printf("%s: %d instead of %d\n", what, found, wanted);
    failures += 1;
}

/* The package, the headers and the library are of one version, and the compiler can compare it. */
static void compare_versions(void) {
    char version[40];
    snprintf(version, sizeof version, "%d.%d.%d", QUILLET_VERSION_MAJOR, QUILLET_VERSION_MINOR,
             QUILLET_VERSION_PATCH);
#if QUILLET_VERSION_MAJOR < 1
#error "before the first version"
#endif
    expect_text("the headers", QUILLET_VERSION, version);
    expect_text("the library", quillet_version(), version);
    expect_text("the package", PACKAGE_VERSION, version);
}

static void translate(void) {
    char *text = NULL;
    quillet_init();
    expect_number("builders", quillet_get_builder_count(), 4);
    expect_number("mysql", quillet_get_builder_id("MySQL"), 1);
    expect_number("a query", quillet_translate_query("select 1", &text, 0), QUILLET_SUCCESS);
    expect_text("its text", text, "SELECT 1");
    free(text);
    expect_number("no builder", quillet_translate_query("select 1", &text, 4),
                  QUILLET_NO_SUCH_BUILDER);
    expect_text("its description", quillet_get_error_description(), "no such builder");
    quillet_done();
}

static void look_at_registry(void) {
    quillet_init();
    expect_text("a builder", quillet_builders[3]->builder_name, "type_view");
    expect_number("its id", quillet_builders[3]->builder_id, 3);
    quillet_done();
}

static void parse_alone(void) {
    builder *plain = quillet_default_builder_create();
    node_main *tree;
    build_result *result;
    expect_number("a parse", quillet_parse("select a from t where b"), QUILLET_PARSE_ACCEPTED);
    expect_number("the query after it", quillet_query != NULL, 0);
    expect_number("the comments", quillet_comment_count, 0);
    tree = quillet_take_root();
    expect_number("a second tree", quillet_take_root() != NULL, 0);
    result = quillet_call_build_main(plain, tree, NULL);
    expect_text("the parsed statement", result->query, "SELECT a FROM t WHERE b");
    free(result->query);
    free(result);
    quillet_node_main_free(tree);
    quillet_builder_free(plain);
    expect_number("a wrong one", quillet_parse("select from"), QUILLET_PARSE_SYNTAX_ERROR);
    expect_number("its tree", quillet_take_root() != NULL, 0);
}

static void parse_date_format(void) {
    date_format_node *words = quillet_date_format_parse("FMDDth\"of\"");
    date_format_node *lone = quillet_date_format_node_create();
    expect_number("a prefix", words->prefix, DATE_FORMAT_PREFIX_FM);
    expect_number("a word", words->format, DATE_FORMAT_DD);
    expect_number("a suffix", words->suffix, DATE_FORMAT_SUFFIX_TH_LOWER);
    expect_text("a text", words->next->string, "of");
    expect_number("the end", words->next->next != NULL, 0);
    expect_number("a word of none", lone->format, 0);
    quillet_date_format_node_free(words);
    quillet_date_format_node_free(lone);
}

static build_result *render_shouting(builder *self, node_identifier *node, void *data) {
    build_result *result = quillet_call_parent_build_identifier(self, node, data);
    result->query = quillet_concat_free_first(result->query, "!");
    return result;
}

static void render_by_hand(void) {
    builder *shouting = quillet_default_builder_create();
    node_identifier *identifier = quillet_node_identifier_create();
    build_result *result;
    shouting->parent = quillet_default_builder_create();
    shouting->build_identifier = render_shouting;
    identifier->name = quillet_concat("a", "b");
    result = quillet_call_build_identifier(shouting, identifier, NULL);
    expect_text("an identifier", result->query, "ab!");
    free(result->query);
    free(result);
    quillet_node_identifier_free(identifier);
    quillet_builder_free(shouting);
}

int main(void) {
    compare_versions();
    translate();
    look_at_registry();
    parse_alone();
    parse_date_format();
    render_by_hand();
    expect_text("a type", quillet_type_to_string(QUILLET_TYPE_INT8), "INT8");
    expect_number("its code", quillet_string_to_type("bigint"), QUILLET_TYPE_INT8);
    return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
