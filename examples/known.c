/* Says whether there is a diagnostic with an id, and how severe it is. */
#include <stdio.h>
#include <string.h>

#include <quillet.h>

int main(int argc, char **argv) {
    static const char *const severities[] = {"note", "warning", "refusal", "error"};
    quillet_diagnostic found = {0};
    for (size_t i = 0; quillet_get_known_diagnostic(i, &found); ++i)
        if (argc > 1 && strcmp(found.id, argv[1]) == 0) {
            printf("%s: %s\n", severities[found.severity], found.message ? found.message : "");
            return 0;
        }
    puts("no such id");
    return 1;
}
