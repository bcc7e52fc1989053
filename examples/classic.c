/* Translates one statement after the other by the classic call. */
#include <stdio.h>
#include <stdlib.h>

#include <quillet.h>

int main(int argc, char **argv) {
    quillet_init();
    const int mysql = quillet_get_builder_id("mysql");
    for (int i = 1; i < argc; ++i) {
        char *text = NULL;
        const int code = quillet_translate_query(argv[i], &text, mysql);
        puts(code == QUILLET_SUCCESS ? text : quillet_get_error_description());
        if (code == QUILLET_CAN_NOT_TRANSLATE && quillet_get_detailed_error_code() != 0)
            puts(quillet_get_detailed_error_description());
        free(text);
    }
    quillet_done();
}
