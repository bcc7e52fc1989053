/* Uses the installed library as a C program would: every header, a translation, a tree by hand. */
#include <quillet.h>
#include <quillet_build_result.h>
#include <quillet_builder.h>
#include <quillet_mysql_builder.h>
#include <quillet_postgresql_builder.h>
#include <quillet_strings_tools.h>
#include <quillet_tree_node.h>
#include <quillet_tree_view_builder.h>
#include <quillet_type_view_builder.h>
#include <quillet_types.h>

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
    translate();
    render_by_hand();
    expect_text("a type", quillet_type_to_string(QUILLET_TYPE_INT8), "INT8");
    expect_number("its code", quillet_string_to_type("bigint"), QUILLET_TYPE_INT8);
    return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
