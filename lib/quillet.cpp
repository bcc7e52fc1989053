#include "quillet.h"

#include <cstdlib>
#include <iterator>
#include <memory>
#include <new>

#include "quillet_builder.h"
#include "quillet_date_format_scanner.h"
#include "quillet_globals.h"
#include "quillet_letter_case.h"
#include "quillet_own_builders.h"
#include "quillet_parse_tree.h"
#include "quillet_parser.h"
#include "quillet_rendering.h"
#include "quillet_scanner.h"
#include "quillet_text_buffer.h"
#include "quillet_translation_context.h"

using namespace quillet;

void quillet_init(void) {
    for (int id = 0; id < builder_count; ++id) {
        quillet_builders[id] = builder_table[id].get_info();
        quillet_builders[id]->builder_id = id;
    }
}

void quillet_done(void) {}

const char *quillet_version(void) { return QUILLET_VERSION; }

int quillet_get_builder_count(void) { return builder_count; }

quillet_builder_info *quillet_get_builder_info(int builder_id) {
    return is_builder(builder_id) ? quillet_builders[builder_id] : nullptr;
}

int quillet_get_builder_id(const char *name) {
    for (int id = 0; id < builder_count; ++id)
        if (equal_ignoring_case(builder_info_of(id).builder_name, name))
            return id;
    return -1;
}

namespace {

// Renders the tree in root, which goes afterwards.
build_result *render_root(builder *renderer) {
    return renderer ? quillet_call_build_main(renderer, root, nullptr) : nullptr;
}

// The same with a host's builder, which may change the tree and parse others.
build_result *render_root_of_host(const quillet_builder_info &info) {
    const std::unique_ptr<builder, builder_freed> of_host(info.constructor());
    node_main *tree = root;
    build_result *result = render_root(of_host.get());
    quillet_node_main_free(tree);
    return result;
}

// Translates, and returns the code.
int translate(const char *input, char **output, const quillet_builder_info &info) {
    tree_memory &memory = classic_tree_memory;
    const own_builders::own_builder *ours = classic_builders.find(info);
    const rendering_under_way classic(nullptr, ours ? &ours->slots : nullptr);
    const tree_under_way tree(memory, ours ? tree_owner::library : tree_owner::host);
    if (parse_query(input, memory) == QUILLET_PARSE_SYNTAX_ERROR)
        return QUILLET_INVALID_QUERY;
    const bool is_there = root && (ours || memory.keep()); // not too deep or too large
    const std::unique_ptr<build_result, freed> result(!is_there ? nullptr
                                                      : ours    ? render_root(ours->self)
                                                                : render_root_of_host(info));
    root = nullptr;
    if (!result)
        return QUILLET_CAN_NOT_TRANSLATE;
    std::unique_ptr<char, freed> text(result->query);
    if (result->build_result == QUILLET_SUCCESS && text)
        *output = text.release();
    return result->build_result;
}

} // namespace

int quillet_translate_query(const char *input, char **output, int builder_id) {
    error_code = QUILLET_SUCCESS;
    last_builder_id = builder_id;
    if (!is_builder(builder_id))
        return error_code = QUILLET_NO_SUCH_BUILDER;
    try {
        return error_code = translate(input, output, builder_info_of(builder_id));
    } catch (const std::bad_alloc &) {
        return error_code = QUILLET_CAN_NOT_TRANSLATE;
    }
}

void quillet_release_memory(void) {
    classic_tree_memory.release();
    kept_rendering_memory.release();
    _quillet_scanner_release();
    _quillet_date_format_scanner_reset();
    classic_builders.release();
    release_idle_contexts();
}

const char *quillet_get_error_description(void) {
    const bool known =
        error_code <= 0 && -static_cast<long>(error_code) < long{std::size(error_descriptions)};
    return known ? error_descriptions[-error_code] : "";
}

int quillet_get_detailed_error_code(void) {
    if (!is_builder(last_builder_id))
        return 0;
    const quillet_builder_info &info = builder_info_of(last_builder_id);
    return info.get_error_code ? info.get_error_code() : 0;
}

const char *quillet_get_detailed_error_description(void) {
    if (!is_builder(last_builder_id))
        return nullptr;
    const quillet_builder_info &info = builder_info_of(last_builder_id);
    return info.get_error_description ? info.get_error_description() : nullptr;
}
