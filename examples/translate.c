#include <stdio.h>
#include <string.h>

#include <quillet.h>

int main(void) {
    const char *statement = "select 1 + 2";
    const int builder = quillet_get_builder_id("type_view");
    quillet_translation *made = quillet_translate(statement, strlen(statement), builder, NULL);
    puts(made->text ? made->text : made->diagnostics[0].message);
    quillet_translation_free(made);
}
