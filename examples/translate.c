#include <stdio.h>
#include <stdlib.h>

#include <quillet.h>

int main(void) {
    char *text = NULL;
    quillet_init();
    const int builder = quillet_get_builder_id("type_view");
    const int code = quillet_translate_query("select 1 + 2", &text, builder);
    puts(code == QUILLET_SUCCESS ? text : quillet_get_error_description());
    free(text);
    quillet_done();
}
