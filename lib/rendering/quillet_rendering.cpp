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
    if (is_outermost_)
        kept.stack.set(__builtin_frame_address(0));
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

build_result *finished(rendering &r, outcome result) {
    if (!result.record)
        return nullptr;
    if (result.text) {
        r.out.settle({});
        if (!r.has_room_for(0))
            result = refused_part;
    }
    if (r.is_exhausted())
        result = refused_part;
    build_result *record = quillet_build_result_create();
    record->build_result = result.status;
    if (result.text)
        record->query = r.out.release();
    return record;
}

} // namespace quillet
