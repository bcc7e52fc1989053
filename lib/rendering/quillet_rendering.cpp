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

rendering::rendering(builder *renderer)
    : kept_(rendering_memory_in_use()),
      own_(kept_.own && kept_.own->are_of(renderer) ? kept_.own : nullptr), remarks_(kept_.remarks),
      self(renderer), out(memory_.gaps) {
    memory_.lists.swap(kept_.lists);
    memory_.expressions.swap(kept_.expressions);
    memory_.gaps.swap(kept_.gaps);
    is_outermost_ = !kept_.stack.is_set();
    if (is_outermost_) {
        kept_.stack.set(__builtin_frame_address(0));
        kept_.is_lacking = false;
    }
}

rendering::~rendering() {
    give_back(memory_.lists, kept_.lists);
    give_back(memory_.expressions, kept_.expressions);
    give_back(memory_.gaps, kept_.gaps);
    if (is_outermost_)
        kept_.stack.reset();
}

void rendering::look_for_remark_on_operator(int index, node_expression *node) {
    if (exhausted_ != exhaustion::none) // its operands may not have been rendered
        return;
    if (remarks_->forms)
        kept_.groups.add(node, index, *remarks_->forms);
    if (const auto known = remarks_->operators[static_cast<std::size_t>(index)])
        known(*this, node);
}

void rendering::look_for_remark_on_function(int index, node_function_call *node) {
    const auto known = index >= 0 ? remarks_->functions[static_cast<std::size_t>(index)]
                                  : remarks_->other_functions;
    if (known)
        known(*this, node);
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

void rendering_memory::release() {
    std::vector<list_step>().swap(lists);
    std::vector<expression_step>().swap(expressions);
    output::memory().swap(gaps);
    groups = {};
}

build_result *render_alone(builder *self, void *given,
                           outcome (*render)(rendering &alone, void *given)) {
    return if_there_is_memory([=] {
        rendering alone(self);
        if (alone.is_exhausted())
            return alone.finish(refused_part);
        return alone.finish(render(alone, given));
    });
}

build_result *rendering::finish(outcome result) {
    if (!result.record)
        return nullptr;
    if (result.text) {
        out.settle({});
        if (!has_room_for(0))
            result = refused_part;
    }
    if (is_exhausted() || kept_.is_lacking) {
        result = refused_part;
        if (kept_.heard)
            kept_.heard->add(kept_.is_lacking                     ? notices::out_of_memory
                             : exhausted_ == exhaustion::of_stack ? notices::too_deep
                                                                  : notices::text_too_large);
    }
    std::unique_ptr<build_result, freed> record = new_result(result.status);
    if (result.text)
        record->query = out.release();
    return record.release();
}

} // namespace quillet
