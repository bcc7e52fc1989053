// All that quillet_translate may say, in one list.

#include <iterator>

#include "quillet.h"
#include "quillet_mysql_errors.h"
#include "quillet_mysql_remarks.h"
#include "quillet_postgresql_remarks.h"

using namespace quillet;

namespace {

constexpr notice notices_of_all[] = {
#define NOTICE(name, severity, id, message, hint) notices::name,
#include "quillet_notices.def"
#define NOTICE(name, severity, id, message, hint) postgresql::notices::name,
#include "quillet_postgresql_notices.def"
#define NOTICE(name, severity, id, message, hint) mysql::notices::name,
#include "quillet_mysql_notices.def"
};

constexpr std::size_t notice_count = std::size(notices_of_all);
constexpr std::size_t reason_count = std::size(mysql_error_descriptions) - 1; // 0 is none

notice notice_at(std::size_t index) {
    if (index < notice_count)
        return notices_of_all[index];
    return mysql::notice_of(-1 - static_cast<std::int32_t>(index - notice_count));
}

} // namespace

std::int32_t quillet_get_known_diagnostic(std::size_t index, quillet_diagnostic *found) {
    if (index >= notice_count + reason_count)
        return 0;
    const notice what = notice_at(index);
    *found = {.severity = what.severity,
              .code = what.code,
              .id = what.id,
              .message = what.message,
              .hint = what.hint,
              .offset = 0,
              .length = 0,
              .line = 0,
              .column = 0};
    return 1;
}
