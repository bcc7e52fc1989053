#include "quillet_findings.h"

#include "quillet_build_result.h"

namespace quillet {

const notice &missing_part_of(node_kind kind) {
    switch (kind) {
    case kind_function_call: return notices::missing_arguments;
    case kind_insert: return notices::missing_values;
    case kind_values_list: return notices::missing_list;
    case kind_at_time_zone: return notices::missing_time;
    default: return notices::missing_part;
    }
}

void findings::add_of_host(std::int32_t status, const void *node, node_kind kind) {
    if (status == QUILLET_BUILD_MISSING_PART) {
        add(missing_part_of(kind), node, kind);
        return;
    }
    notice refused = notices::refused;
    refused.code = host_code ? host_code() : 0;
    const char *description = host_description ? host_description() : nullptr;
    if (description && *description)
        refused.message = texts.emplace_back(description).c_str();
    add(refused, node, kind);
}

} // namespace quillet
