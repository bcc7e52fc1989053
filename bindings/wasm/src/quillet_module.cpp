// What quillet.mjs calls of the library. All of it runs in one thread.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>

#include <emscripten/stack.h>

#include "inspection.h"
#include "quillet.h"
#include "quillet_findings.h"
#include "quillet_own_builders.h"

using namespace quillet;

#define EXPORT(name) extern "C" __attribute__((export_name(#name)))

// What quillet.mjs knows of the records.
static_assert(offsetof(quillet_translation, code) == 0);
static_assert(offsetof(quillet_translation, text) == 4);
static_assert(offsetof(quillet_translation, text_length) == 8);
static_assert(offsetof(quillet_translation, diagnostic_count) == 12);
static_assert(offsetof(quillet_translation, diagnostics) == 16);
static_assert(offsetof(quillet_diagnostic, severity) == 0);
static_assert(offsetof(quillet_diagnostic, code) == 4);
static_assert(offsetof(quillet_diagnostic, id) == 8);
static_assert(offsetof(quillet_diagnostic, message) == 12);
static_assert(offsetof(quillet_diagnostic, hint) == 16);
static_assert(offsetof(quillet_diagnostic, offset) == 20);
static_assert(offsetof(quillet_diagnostic, length) == 24);
static_assert(offsetof(quillet_diagnostic, line) == 28);
static_assert(offsetof(quillet_diagnostic, column) == 32);
static_assert(sizeof(quillet_diagnostic) == 36);
static_assert(offsetof(inspected_node, kind) == 0);
static_assert(offsetof(inspected_node, label) == 4);
static_assert(offsetof(inspected_node, type) == 8);
static_assert(offsetof(inspected_node, begin) == 12);
static_assert(offsetof(inspected_node, end) == 16);
static_assert(offsetof(inspected_node, parent) == 20);
static_assert(sizeof(inspected_node) == 24);

// Lets the library know how far its stack goes.
[[gnu::constructor]] static void begin() { emscripten_stack_init(); }

// Returns room for a statement of so many bytes, NULL without memory. Its contents are lost.
EXPORT(room_for) char *room_for(std::size_t size) {
    static char *room = nullptr;
    static std::size_t capacity = 0;
    if (size > capacity) {
        std::free(room);
        room = static_cast<char *>(std::malloc(size));
        capacity = room ? size : 0;
    }
    return room;
}

EXPORT(translate)
const quillet_translation *translate(const char *statement, std::size_t length, int builder_id,
                                     std::int32_t least_severity, std::size_t text_limit,
                                     std::size_t tree_limit) {
    const quillet_options options = {sizeof options, text_limit, tree_limit, least_severity};
    return quillet_translate(statement, length, builder_id, &options);
}

EXPORT(translation_free) void translation_free(quillet_translation *translation) {
    quillet_translation_free(translation);
}

// Returns a new inspection, which inspection_free frees; NULL without memory.
EXPORT(inspect)
const inspection *inspect(const char *statement, std::size_t length, int builder_id) {
    try {
        return new inspection({statement, length}, builder_id);
    } catch (const std::bad_alloc &) {
        return nullptr;
    }
}

EXPORT(inspection_translation)
const quillet_translation *inspection_translation(const inspection *made) {
    return made->translation();
}
EXPORT(inspection_nodes) const inspected_node *inspection_nodes(const inspection *made) {
    return made->nodes().data();
}
EXPORT(inspection_count) std::size_t inspection_count(const inspection *made) {
    return made->nodes().size();
}
EXPORT(inspection_free) void inspection_free(const inspection *made) { delete made; }

// The translations of statements that WebAssembly itself ends.

static const quillet_translation *failed(const notice &why) {
    static quillet_diagnostic diagnostic;
    static quillet_translation translation;
    diagnostic = {why.severity, why.code, why.id, why.message, why.hint, 0, 0, 1, 1};
    translation = {QUILLET_CAN_NOT_TRANSLATE, nullptr, 0, 1, &diagnostic};
    return &translation;
}

EXPORT(too_deep) const quillet_translation *too_deep() { return failed(notices::too_deep); }
EXPORT(out_of_memory) const quillet_translation *out_of_memory() {
    return failed(notices::out_of_memory);
}

EXPORT(version) const char *version() { return QUILLET_VERSION; }

// The names of the builders by their ids; NULL after the last one.
EXPORT(builder_name) const char *builder_name(int id) {
    return is_builder(id) ? builder_info_of(id).builder_name : nullptr;
}

// Where the constants end.
extern "C" const char __heap_base;
EXPORT(static_end) const char *static_end() { return &__heap_base; }
