#include "wanted_remarks.h"

#include <algorithm>

namespace script {

void wanted_remarks::set_all(bool warnings, bool notes) {
    warnings_ = warnings;
    notes_ = notes;
    choices_.clear();
}

void wanted_remarks::set(const std::string &id, bool is_wanted) {
    choices_.push_back({id, is_wanted});
}

bool wanted_remarks::has(quillet::severity severity, std::string_view id) const {
    const auto last = std::find_if(choices_.rbegin(), choices_.rend(),
                                   [id](const choice &each) { return each.id == id; });
    if (last != choices_.rend())
        return last->is_wanted;
    return severity == quillet::severity::warning ? warnings_ : notes_;
}

std::vector<std::string> wanted_remarks::as_options() const {
    std::vector<std::string> made;
    if (!notes_)
        made.emplace_back(warnings_ ? "--warn=warnings" : "--warn=none");
    for (const choice &each : choices_)
        made.push_back((each.is_wanted ? "--warn=" : "--no-warn=") + each.id);
    return made;
}

quillet::severity wanted_remarks::least() const {
    bool has_choice = false;
    for (const choice &each : choices_)
        has_choice |= each.is_wanted;
    return notes_ || has_choice ? quillet::severity::note
           : warnings_          ? quillet::severity::warning
                                : quillet::severity::refusal;
}

} // namespace script
