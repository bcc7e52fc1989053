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

namespace script {

enum class format { sql, json };

// Which warnings and notes are wanted. The last word on an id or on all holds.
class wanted_remarks {
public:
    void set_all(bool warnings, bool notes);
    void set(const std::string &id, bool is_wanted);

    bool has(quillet::severity severity, std::string_view id) const;

    // The least severity that anything wanted may have.
    quillet::severity least() const;

private:
    struct choice {
        std::string id;
        bool is_wanted;
    };

    bool warnings_ = true;
    bool notes_ = true;
    std::vector<choice> choices_;
};

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
