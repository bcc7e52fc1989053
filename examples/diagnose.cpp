// Writes a statement as MySQL text, or shows what is in the way.
#include <cstdlib>
#include <iostream>
#include <string_view>

#include <quillet.hpp>

// Prints a message with the statement's line, and a caret below the place.
static void show(std::string_view statement, const quillet::diagnostic &found) {
    const auto begin = statement.substr(0, found.offset).rfind('\n') + 1;
    const auto line = statement.substr(begin, statement.find('\n', found.offset) - begin);
    std::cout << found.line << ':' << found.column << ": " << found.message << '\n' << line << '\n';
    for (const char c : line.substr(0, found.offset - begin))
        if ((c & 0xc0) != 0x80) // a character has one such byte
            std::cout << (c == '\t' ? '\t' : ' ');
    std::cout << "^\n";
    if (found.hint)
        std::cout << "hint: " << *found.hint << '\n';
}

int main(int argc, char **argv) {
    const std::string_view statement = argc > 1 ? argv[1] : "";
    const auto made = quillet::translate(statement, quillet::target::mysql);
    if (made)
        std::cout << made.text() << '\n';
    for (const quillet::diagnostic &found : made.diagnostics())
        show(statement, found);
    return made ? EXIT_SUCCESS : EXIT_FAILURE;
}
