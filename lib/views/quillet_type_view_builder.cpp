#include "quillet_type_view_builder.h"

#include "quillet_expressions.h"
#include "quillet_type_view_dialect.h"
#include "quillet_types.h"

using namespace quillet;

quillet_builder_info quillet_type_view_builder_info = {
    .builder_name = "type_view",
    .builder_description = "outputs postgresql statement with debug information about types",
    .builder_id = 0,
    .constructor = quillet_type_view_builder_create,
    .get_error_code = nullptr,
    .get_error_description = nullptr,
};

quillet_builder_info *quillet_type_view_builder_get_info(void) {
    return &quillet_type_view_builder_info;
}

namespace {

std::string_view type_before_expression(const node_expression &node) {
    static constexpr std::string_view beginnings[] = {
#define TYPE(name, code, printed, ...) printed " ( ",
#include "quillet_types.def"
    };
    const bool known = node.sql_type >= 0 && node.sql_type < QUILLET_TYPE_COUNT;
    return beginnings[known ? node.sql_type : int{QUILLET_TYPE_UNKNOWN}];
}

constexpr expression_frame type_frame = {type_before_expression, " ) "};

outcome render_expression_with_type(rendering &r, node_expression *node, void *data) {
    constexpr auto slot = &builder::build_expression;
    const auto deferred_to = inherited(*r.self, slot);
    if (dialect_of(slot, deferred_to))
        return render_framed_expression(r, node, &type_frame);

    const output::place begin = r.out.here();
    const output::gap beginning = r.out.leave_gap();
    outcome result = r.call(deferred_to, node, data);
    if (!result.record) {
        r.out.cut(begin);
        return result;
    }
    r.out.fill(beginning, type_before_expression(*node));
    r.out.append(type_frame.end);
    result.text = true;
    return result;
}

} // namespace

build_result *quillet_expression_type_view_builder(builder *self, node_expression *node,
                                                   void *data) {
    return render_alone(render_expression_with_type, self, node, data);
}

constinit const dialect quillet::type_view_dialect = [] {
    dialect own{};
    own.operations.build_expression = quillet_expression_type_view_builder;
    own.render_expression = render_expression_with_type;
    own.frame = &type_frame;
    return own;
}();

builder *quillet_type_view_builder_create(void) {
    builder *created = create_derived_builder();
    if (created)
        created->build_expression = quillet_expression_type_view_builder;
    return created;
}
