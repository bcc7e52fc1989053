#include "quillet_rendering.h"

#include <memory>

namespace quillet {

namespace {

// Gives the memory of a scratch back, unless there is more by now, or it is too large to be kept.
template <class Element> void give_back(std::vector<Element> &mine, std::vector<Element> &kept) {
    if (mine.capacity() <= kept.capacity() || mine.capacity() > QUILLET_KEPT_STEPS_MAXIMUM)
        return;
    mine.clear();
    mine.swap(kept);
}

} // namespace

rendering::rendering(builder *renderer) : self(renderer), out(memory_.gaps) {
    rendering_memory &kept = kept_rendering_memory;
    memory_.lists.swap(kept.lists);
    memory_.expressions.swap(kept.expressions);
    memory_.gaps.swap(kept.gaps);
    is_outermost_ = !kept.stack.is_set();
    if (is_outermost_) {
        kept.stack.set(__builtin_frame_address(0));
        kept.is_lacking = false;
    }
}

rendering::~rendering() {
    rendering_memory &kept = kept_rendering_memory;
    give_back(memory_.lists, kept.lists);
    give_back(memory_.expressions, kept.expressions);
    give_back(memory_.gaps, kept.gaps);
    if (is_outermost_)
        kept.stack.reset();
}

outcome rendering::take(build_result *result) {
    if (!result)
        return absent;
    const std::unique_ptr<build_result, freed> record(result);
    const std::unique_ptr<char, freed> text(record->query);
    if (text)
        out.append(text.get());
    return {true, text != nullptr, record->build_result};
}

bool first_with_text::is_preferred(output::place begin, int rank) {
    if (rank < rank_)
        r_.out.cut(begin_, begin);
    else
        r_.out.cut(begin);
    return rank < rank_;
}

outcome complete_select_item(rendering &r, node_identifier *identifier, const outcome &expression) {
    const outcome name =
        expression.text ? r.prefixed_child(" AS ", identifier) : r.child(identifier);
    if (!expression.text)
        r.out.append(name.text ? ".*" : "*");
    outcome result{true, true, expression.status};
    result.fail_with(name);
    return result;
}

builder *create_derived_builder() {
    builder *created = quillet_default_builder_create();
    if (!created)
        return nullptr;
    created->parent = quillet_default_builder_create();
    if (created->parent)
        return created;
    quillet_builder_free(created);
    return nullptr;
}

std::unique_ptr<build_result, freed> new_result(std::int32_t status) {
    std::unique_ptr<build_result, freed> record(quillet_build_result_create());
    if (!record)
        throw std::bad_alloc();
    record->build_result = status;
    return record;
}

void release_rendering_memory() {
    rendering_memory given_back;
    given_back.lists.swap(kept_rendering_memory.lists);
    given_back.expressions.swap(kept_rendering_memory.expressions);
    given_back.gaps.swap(kept_rendering_memory.gaps);
}

build_result *finished(rendering &r, outcome result) {
    if (!result.record)
        return nullptr;
    if (result.text) {
        r.out.settle({});
        if (!r.has_room_for(0))
            result = refused_part;
    }
    if (r.is_exhausted() || kept_rendering_memory.is_lacking)
        result = refused_part;
    std::unique_ptr<build_result, freed> record = new_result(result.status);
    if (result.text)
        record->query = r.out.release();
    return record.release();
}

} // namespace quillet
