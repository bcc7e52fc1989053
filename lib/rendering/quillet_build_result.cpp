#include "quillet_build_result.h"

#include <cstdlib>

build_result *quillet_build_result_create(void) {
    return static_cast<build_result *>(std::calloc(1, sizeof(build_result)));
}
