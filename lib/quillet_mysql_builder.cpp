#include "quillet_mysql_builder.h"

#include <cstdlib>

quillet_builder_info quillet_mysql_builder_info = {
    .builder_name = "mysql",
    .builder_description = "outputs mysql statement",
    .builder_id = 0,
    .constructor = quillet_mysql_builder_create,
    .get_error_code = quillet_mysql_get_error_code,
    .get_error_description = quillet_mysql_get_error_description,
};

quillet_builder_info *quillet_mysql_builder_get_info(void) { return &quillet_mysql_builder_info; }

// No rendering yet: with every slot empty a translation ends as one that cannot be made.
builder *quillet_mysql_builder_create(void) {
    return static_cast<builder *>(std::calloc(1, sizeof(builder)));
}

int32_t quillet_mysql_get_error_code(void) { return 0; }

const char *quillet_mysql_get_error_description(void) { return ""; }
