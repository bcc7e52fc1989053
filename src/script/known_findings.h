// All findings that there may be, by their ids.

#ifndef QUILLET_SCRIPT_KNOWN_FINDINGS_H
#define QUILLET_SCRIPT_KNOWN_FINDINGS_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <quillet.hpp>

namespace script {

struct known_finding {
    std::string_view id;
    quillet::severity severity;
    std::optional<std::string_view> message; // nothing where it depends on the statement
};

// An id may come again with another message.
std::vector<known_finding> known_findings();

bool is_known_id(std::string_view id);

// A line for each, in the order of the ids, with tabs between id, severity and message.
std::string list_of_known_findings();

} // namespace script

#endif
