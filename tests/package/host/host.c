/* Uses the library both ways in. It compiles without a warning for as long as Quillet's own
   warnings do not reach it. */
#include <quillet.h>
#include <quillet/quillet.h>

#include <stdlib.h>
#include <string.h>

int main(void) {
    const char *statement = "select a||b";
    const short builder = quillet_get_builder_id("mysql"); /* -Wconversion */
    quillet_translation *made = quillet_translate(statement, strlen(statement), builder, NULL);
    char *text = NULL;
    int builder_id, status;
    quillet_init();
    {
        const int builder = quillet_get_builder_id("postgresql"); /* -Wshadow */
        builder_id = builder;
    }
    status = quillet_translate_query(statement, &text, builder_id) == QUILLET_SUCCESS &&
             strcmp(text, "SELECT a || b") == 0 && made->text &&
             strcmp(made->text, "SELECT CONCAT(a, b)") == 0 &&
             strcmp(quillet_version(), QUILLET_VERSION) == 0;
    free(text);
    quillet_translation_free(made);
    quillet_done();
    return status ? EXIT_SUCCESS : EXIT_FAILURE;
}
