#include "quillet_mysql_errors.h"

#include <iterator>

#include "quillet_mysql_builder.h"

using namespace quillet;

const char *const mysql_error_descriptions[40] = {
#define ERROR(name, code, text) text,
#include "quillet_mysql_errors.def"
};

int32_t quillet_mysql_get_error_code(void) { return mysql_error_code; }

const char *quillet_mysql_get_error_description(void) {
    const std::int64_t index = -static_cast<std::int64_t>(mysql_error_code);
    const bool known = index >= 0 && index < std::int64_t{std::size(mysql_error_descriptions)};
    return known ? mysql_error_descriptions[index] : "";
}

void mysql::keep_reason(std::int32_t code) { mysql_error_code = code; }

rendered mysql::refuse(reason why) {
    keep_reason(static_cast<std::int32_t>(why));
    return refused_part;
}
