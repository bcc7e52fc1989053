/* Writes MySQL text in which every table is one of the schema "shop": a builder of a host. */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <quillet.h>
#include <quillet_mysql_builder.h>
#include <quillet_strings_tools.h>

/* In the slot table, instead of the operation that it calls. */
static build_result *build_table(builder *self, node_table *node, void *data) {
    build_result *result = quillet_table_default_builder(self, node, data);
    if (!result || !result->query)
        return result;
    result->query = quillet_concat_free_second("shop.", result->query);
    if (!result->query)
        result->build_result = QUILLET_BUILD_CANNOT_RENDER;
    return result;
}

static builder *create(void) {
    builder *made = quillet_mysql_builder_create();
    if (made)
        made->build_table = build_table;
    return made;
}

int main(int argc, char **argv) {
    const char *statement = argc > 1 ? argv[1] : "";
    quillet_init();
    const int mysql = quillet_get_builder_id("mysql");
    quillet_get_builder_info(mysql)->constructor = create;

    quillet_translation *made = quillet_translate(statement, strlen(statement), mysql, NULL);
    for (size_t i = 0; i < made->diagnostic_count; ++i)
        printf("%d: %s\n", made->diagnostics[i].column, made->diagnostics[i].message);
    const int status = made->text ? EXIT_SUCCESS : EXIT_FAILURE;
    if (made->text)
        puts(made->text);
    quillet_translation_free(made);
    quillet_done();
    return status;
}
