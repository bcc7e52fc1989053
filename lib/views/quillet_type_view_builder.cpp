#include "quillet_type_view_builder.h"

#include "quillet_builder_rendering.h"
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

rendered render_expression_with_type(rendering &r, node_expression *node, void *data) {
    const builder *parent = r.self->parent;
    const auto inherited =
        parent && parent->build_expression ? parent->build_expression : r.self->build_expression;
    if (inherited == quillet_expression_default_builder)
        return render_expression_framed(r, node, &type_frame);

    const std::size_t beginning = r.reserve_insertion();
    rendered result = r.take(inherited(r.self, node, data));
    r.insert(beginning, type_before_expression(*node));
    r.out.append(type_frame.end);
    result.text = true;
    return result;
}

const builder operations = [] {
    builder own{};
    own.build_expression = quillet_expression_type_view_builder;
    return own;
}();

dialect type_view = [] {
    dialect own{};
    own.operations = &operations;
    own.render_expression = render_expression_with_type;
    own.frame = &type_frame;
    return own;
}();

} // namespace

build_result *quillet_expression_type_view_builder(builder *self, node_expression *node,
                                                   void *data) {
    return render_alone(render_expression_with_type, self, node, data);
}

builder *quillet_type_view_builder_create(void) {
    rendering::know(type_view);
    builder *created = quillet_default_builder_create();
    created->parent = quillet_default_builder_create();
    created->build_expression = quillet_expression_type_view_builder;
    return created;
}
