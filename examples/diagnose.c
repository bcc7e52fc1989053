/* Writes a statement as MySQL text, or shows what is in the way. */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <quillet.h>

/* Prints a message with the statement's line, and a caret below the place. */
static void show(const char *statement, const quillet_diagnostic *found) {
    const char *place = statement + found->offset;
    const char *line = place;
    while (line > statement && line[-1] != '\n')
        --line;
    printf("%d:%d: %s\n", found->line, found->column, found->message);
    printf("%.*s\n", (int)strcspn(line, "\n"), line);
    for (; line < place; ++line)
        if ((*line & 0xc0) != 0x80) /* a character has one such byte */
            putchar(*line == '\t' ? '\t' : ' ');
    puts("^");
    if (found->hint)
        printf("hint: %s\n", found->hint);
}

int main(int argc, char **argv) {
    const char *statement = argc > 1 ? argv[1] : "";
    const int mysql = quillet_get_builder_id("mysql");
    quillet_translation *made = quillet_translate(statement, strlen(statement), mysql, NULL);
    const int status = made->code == QUILLET_SUCCESS ? EXIT_SUCCESS : EXIT_FAILURE;
    if (made->text)
        puts(made->text);
    for (size_t i = 0; i < made->diagnostic_count; ++i)
        show(statement, &made->diagnostics[i]);
    quillet_translation_free(made);
    return status;
}
