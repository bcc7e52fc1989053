// Prints the pieces of scripts, for a comparison with other programs: script_pieces FILE...
//
//   file NAME
//   statement|command|comment|copy BEGIN END       of a piece, in bytes
//   inside BEGIN END                               of a command, or of COPY's data, in the
//   statement
//                                                  that comes next
//   sent                                           a command ends the statement before

#include <cstdio>
#include <exception>
#include <string_view>

#include "psql_commands.h"
#include "source.h"
#include "splitter.h"
#include "translator.h"

namespace {

using namespace script;

void print(std::string_view what, std::size_t begin, std::size_t end) {
    std::printf("%.*s %zu %zu\n", static_cast<int>(what.size()), what.data(), begin, end);
}

std::string_view name_of(piece_kind kind) {
    switch (kind) {
    case piece_kind::line_comment:
    case piece_kind::block_comment: return "comment";
    case piece_kind::command: return "command";
    case piece_kind::copy_data: return "copy";
    case piece_kind::statement: return "statement";
    case piece_kind::blank: break;
    }
    return "";
}

void print_inside(const piece &statement) {
    bool is_data = false;
    for (const mark &each : statement.marks) {
        const std::string_view text = statement.text.substr(each.begin, each.end - each.begin);
        if (each.kind != mark_kind::comment || (!is_data && text[0] != '\\'))
            continue;
        print("inside", statement.offset + each.begin, statement.offset + each.end);
        is_data = is_data ? !text.starts_with("\\.") : copies_from_input(text);
    }
}

void print_pieces(const char *name) {
    std::printf("file %s\n", name);
    file_source from(name);
    splitter pieces(from);
    while (const piece *next = pieces.next()) {
        const std::size_t begin = next->offset;
        if (next->kind == piece_kind::statement)
            print_inside(*next);
        if (next->kind != piece_kind::blank)
            print(name_of(next->kind), begin, begin + next->text.size());
        if (next->kind != piece_kind::statement)
            continue;
        if (next->is_ended_by_command)
            std::puts("sent");
        if (const auto meaning = plain_strings_after(*next))
            pieces.set_plain_strings(*meaning);
    }
}

} // namespace

int main(int argc, char **argv) {
    try {
        for (int i = 1; i < argc; ++i)
            print_pieces(argv[i]);
        return 0;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "script_pieces: %s\n", error.what());
        return 2;
    }
}
