// What there is to say about a part of a script.

#ifndef QUILLET_SCRIPT_FINDING_H
#define QUILLET_SCRIPT_FINDING_H

#include <cstddef>
#include <optional>
#include <string_view>

#include <quillet.hpp>

#include "position.h"

namespace script {

// A diagnostic of the library, or one of the script's own. The texts belong to the translation.
struct finding {
    quillet::severity severity;
    int code; // as the library has it
    std::string_view id;
    std::string_view message;
    std::optional<std::string_view> hint;
    std::size_t offset; // in the statement, in bytes
    std::size_t length;
    position at; // in the file
};

// What only a script can have wrong.
struct own_finding {
    std::string_view id;
    quillet::severity severity;
    std::string_view message;
    std::string_view hint; // "" for none
};

constexpr own_finding copied_statement = {
    "copied", quillet::severity::note,
    "copied as it is: what is translated are SELECT, INSERT, UPDATE and DELETE", ""};
constexpr own_finding comment_dropped = {"comment-dropped", quillet::severity::note,
                                         "the translation is without the comments in the statement",
                                         "write them before it"};
constexpr own_finding psql_command = {"psql-command", quillet::severity::note,
                                      "psql's command is kept as a comment", ""};
constexpr own_finding unknown_escape = {"unknown-escape", quillet::severity::error,
                                        "an escape that stands for no character",
                                        "write two backslashes for one"};
constexpr own_finding misread_string = {
    "misread-string", quillet::severity::error,
    "a string that ends with a backslash, which would take its closing quote away",
    "write '...' || chr(92)"};
constexpr own_finding unended_string = {
    "unended-string", quillet::severity::error, "a string without an end",
    "end it as it has begun; a quote within a string is written twice"};
constexpr own_finding unicode_escapes = {
    "unicode-escapes", quillet::severity::error,
    "a string or a name with Unicode escapes, which are not read",
    "write the characters themselves"};
constexpr own_finding misplaced_placeholder = {
    "misplaced-placeholder", quillet::severity::error,
    "a placeholder where no expression may stand",
    "write it in the place of a value, or of the number of LIMIT or OFFSET"};
constexpr own_finding not_utf8 = {
    "not-utf8", quillet::severity::warning, "bytes that are no character of UTF-8",
    "convert the script, as in iconv --from-code latin1 --to-code utf-8"};
constexpr own_finding unended_comment = {"unended-comment", quillet::severity::warning,
                                         "a comment without an end",
                                         "end it with */, also each comment within it"};
constexpr own_finding not_json = {"not-json", quillet::severity::error,
                                  "a line that is no object with a statement",
                                  "write {\"id\": 1, \"statement\": \"select ...\"}"};
constexpr own_finding not_one_statement = {"not-one-statement", quillet::severity::error,
                                           "more than one statement, or none",
                                           "write an object a statement"};

constexpr const own_finding *own_findings[] = {
    &copied_statement, &comment_dropped, &psql_command,    &misread_string,
    &unknown_escape,   &unended_string,  &unicode_escapes, &misplaced_placeholder,
    &not_utf8,         &unended_comment, &not_json,        &not_one_statement};

inline std::string_view name_of(quillet::severity severity) {
    switch (severity) {
    case quillet::severity::note: return "note";
    case quillet::severity::warning: return "warning";
    case quillet::severity::refusal: return "refusal";
    case quillet::severity::error: break;
    }
    return "error";
}

} // namespace script

#endif
