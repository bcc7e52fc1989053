#include "known_findings.h"

#include <algorithm>
#include <set>

#include "finding.h"

namespace script {

std::vector<known_finding> known_findings() {
    std::vector<known_finding> all;
    quillet_diagnostic known{};
    for (std::size_t i = 0; quillet_get_known_diagnostic(i, &known) == 1; ++i) {
        known_finding each{known.id, static_cast<quillet::severity>(known.severity), {}};
        if (known.message)
            each.message = known.message;
        all.push_back(each);
    }
    for (const own_finding *own : own_findings)
        all.push_back({own->id, own->severity, own->message});
    return all;
}

bool is_known_id(std::string_view id) {
    const auto all = known_findings();
    return std::any_of(all.begin(), all.end(),
                       [id](const known_finding &each) { return each.id == id; });
}

std::string list_of_known_findings() {
    std::set<std::string> lines; // the builders share some
    for (const known_finding &each : known_findings())
        lines.insert(std::string(each.id) + '\t' + std::string(name_of(each.severity)) + '\t' +
                     std::string(each.message.value_or("depends on the statement")) + '\n');
    std::string list;
    for (const std::string &line : lines)
        list += line;
    return list;
}

} // namespace script
