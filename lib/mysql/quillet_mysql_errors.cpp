#include "quillet_mysql_errors.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

#include "quillet_letter_case.h"
#include "quillet_rendering.h"

using namespace quillet;

const char *const mysql_error_descriptions[40] = {
#define ERROR(name, code, text, hint) text,
#include "quillet_mysql_errors.def"
};

namespace {

constexpr const char *no_hint = nullptr;

constexpr const char *hints[] = {
#define ERROR(name, code, text, hint) hint,
#include "quillet_mysql_errors.def"
};

// The id of a reason's diagnostic: refused-at-time-zone for AT_TIME_ZONE.
using id = std::array<char, 32>;

constexpr id id_of(std::string_view name) {
    constexpr std::string_view prefix = "refused-";
    id made{};
    auto next = std::copy(prefix.begin(), prefix.end(), made.begin());
    for (const char c : name)
        *next++ = c == '_' ? '-' : lower_case(c);
    return made;
}

constexpr id ids[] = {
#define ERROR(name, code, text, hint) id_of(#name),
#include "quillet_mysql_errors.def"
};

std::size_t index_of(std::int32_t reason) { return static_cast<std::size_t>(-reason); }

} // namespace

std::int32_t &mysql::kept_reason() {
    findings *heard = rendering_memory_in_use().heard;
    return heard ? heard->reason : mysql_error_code;
}

void mysql::keep_reason(std::int32_t reason) { kept_reason() = reason; }

notice mysql::notice_of(std::int32_t reason) {
    const std::size_t index = index_of(reason);
    return {.severity = QUILLET_REFUSAL,
            .code = reason,
            .id = ids[index].data(),
            .message = mysql_error_descriptions[index],
            .hint = hints[index]};
}
