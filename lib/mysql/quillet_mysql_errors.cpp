#include "quillet_mysql_errors.h"

using namespace quillet;

const char *const mysql_error_descriptions[40] = {
#define ERROR(name, code, text) text,
#include "quillet_mysql_errors.def"
};

void mysql::keep_reason(std::int32_t code) { mysql_error_code = code; }

outcome mysql::refuse(reason why) {
    keep_reason(static_cast<std::int32_t>(why));
    return refused_part;
}
