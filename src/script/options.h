// What a run is asked for.

#ifndef QUILLET_SCRIPT_OPTIONS_H
#define QUILLET_SCRIPT_OPTIONS_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <quillet.hpp>

#include "placeholders.h"
#include "splitter.h"
#include "wanted_remarks.h"

namespace script {

enum class format { sql, json };

struct options {
    std::vector<std::string> files; // "-" is standard input
    std::optional<std::string> output;
    std::string to = "mysql";
    format input = format::sql;
    format output_format = format::sql;
    placeholder_style placeholders = placeholder_style::none;
    placeholder_style placeholders_out = placeholder_style::none; // none: the target's own
    backslashes plain_strings = backslashes::are_characters;
    wanted_remarks remarks;
    std::string color = "auto";
    bool is_strict = false;
    bool shows_each_note = false;
    std::optional<std::string> report;
    std::string docs; // a URL

    quillet::target target() const;
};

// Reads the command line. Returns nothing if the run ends here: *status is its exit status, and
// what there was to say has been said.
std::optional<options> read_options(int argc, char **argv, int *status);

} // namespace script

#endif
