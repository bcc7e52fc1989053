#include "quillet_postgresql_builder.h"

quillet_builder_info quillet_postgresql_builder_info = {
    .builder_name = "postgresql",
    .builder_description = "outputs prosgresql statement",
    .builder_id = 0,
    .constructor = quillet_postgresql_builder_create,
    .get_error_code = nullptr,
    .get_error_description = nullptr,
};

quillet_builder_info *quillet_postgresql_builder_get_info(void) {
    return &quillet_postgresql_builder_info;
}

builder *quillet_postgresql_builder_create(void) { return quillet_default_builder_create(); }
