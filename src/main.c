/*
 * The front-end of Quillet: translates the query on the command line, or the queries on standard
 * input, each ended by a blank line.
 */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "quillet.h"

enum { QUERY_SIZE = 4096, LINE_SIZE = 256 };

static const char usage[] =
    "QUILLET - simple front-end for quillet\n"
    "Translates a SQL statement of the PostgreSQL dialect into text of another.\n"
    "README.md shows how, docs/mysql.md says what MySQL output becomes.\n"
    "\n"
    "Usage:\n"
    "quillet [--postgresql|--mysql|--type_view] [<query>|-]\n"
    "\n";

static int print_translation(char *text) {
    puts(text);
    free(text);
    return EXIT_SUCCESS;
}

static int translate_argument(const char *query, int builder_id) {
    char *text = NULL;
    if (quillet_translate_query(query, &text, builder_id) == QUILLET_SUCCESS)
        return print_translation(text);
    printf("Error: %s\n", quillet_get_error_description());
    if (quillet_get_detailed_error_code() != 0)
        puts(quillet_get_detailed_error_description());
    return EXIT_FAILURE;
}

static void print_failure(int code) {
    switch (code) {
    case QUILLET_NO_SUCH_BUILDER: puts("Error: no such builder"); break;
    case QUILLET_INVALID_QUERY: puts("Error: invalid query"); break;
    case QUILLET_CAN_NOT_TRANSLATE: puts("Error: can not translate"); break;
    default: break;
    }
}

/* Reads a query up to a blank line or the end of the input. Returns its length, -1 if it is too
   long for the buffer. */
static int read_query(char *query) {
    char line[LINE_SIZE];
    size_t length = 0;
    query[0] = '\0';
    while (fgets(line, sizeof line, stdin)) {
        const size_t n = strlen(line);
        if (n == 1 && line[0] == '\n')
            break;
        if (length + n > QUERY_SIZE - 1)
            return -1;
        memcpy(query + length, line, n + 1);
        length += n;
    }
    return (int)length;
}

static int translate_input(int builder_id) {
    static char query[QUERY_SIZE];
    for (;;) {
        char *text = NULL;
        const int length = read_query(query);
        if (length < 0) {
            puts("Query too long");
            return EXIT_FAILURE;
        }
        if (length == 0) {
            puts("Thank you for using quillet!");
            return EXIT_SUCCESS;
        }
        const int code = quillet_translate_query(query, &text, builder_id);
        if (code != QUILLET_SUCCESS) {
            print_failure(code);
            return EXIT_FAILURE;
        }
        print_translation(text);
    }
}

static int run(int argc, char **argv) {
    int builder_id = 0;
    int argument = 1;
    if (argc > 1 && strncmp(argv[1], "--", 2) == 0 && argv[1][2] != '\0') {
        builder_id = quillet_get_builder_id(argv[1] + 2);
        argument = 2;
    }
    if (builder_id < 0) {
        puts("Error: no such builder");
        return EXIT_FAILURE;
    }
    if (argument >= argc) {
        fputs(usage, stdout);
        return EXIT_FAILURE;
    }
    if (strcmp(argv[argument], "-") == 0)
        return translate_input(builder_id);
    return translate_argument(argv[argument], builder_id);
}

int main(int argc, char **argv) {
    quillet_init();
    const int status = run(argc, argv);
    quillet_done();
    /* What could not be written was not done. */
    if (fflush(stdout) != 0 || ferror(stdout))
        return EXIT_FAILURE;
    return status;
}
