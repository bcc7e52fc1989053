#include "quillet_builder_rendering.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include <sys/resource.h>

namespace quillet {

const void *rendering::stack_floor = nullptr;
std::vector<rendering::link> rendering::kept_links;
std::vector<rendering::expression_step> rendering::kept_steps;
std::vector<rendering::insertion> rendering::kept_insertions;

namespace {

// The address below which the stack must not grow, seen from a frame near its top.
const void *floor_below(const void *frame) {
    static const std::size_t usable = [] {
        rlimit limit{};
        const bool limited = getrlimit(RLIMIT_STACK, &limit) == 0;
        return std::min<rlim_t>(limited ? limit.rlim_cur : QUILLET_STACK_SIZE_ASSUMED,
                                QUILLET_STACK_SIZE_ASSUMED) /
               QUILLET_STACK_SHARE;
    }();
    return static_cast<const char *>(frame) - usable;
}

} // namespace

rendering::rendering(builder *renderer) : self(renderer), outermost_(!stack_floor) {
    if (!outermost_)
        return;
    stack_floor = floor_below(__builtin_frame_address(0));
    exchange_scratch();
}

rendering::~rendering() {
    if (!outermost_)
        return;
    stack_floor = nullptr;
    links.clear();
    insertions_.clear();
    if (steps.capacity() <= QUILLET_KEPT_STEPS_MAXIMUM &&
        insertions_.capacity() <= QUILLET_KEPT_STEPS_MAXIMUM &&
        links.capacity() <= QUILLET_KEPT_STEPS_MAXIMUM)
        exchange_scratch();
}

void rendering::exchange_scratch() {
    links.swap(kept_links);
    steps.swap(kept_steps);
    insertions_.swap(kept_insertions);
}

void rendering::know(dialect &own) {
    for (const dialect *known = &first_dialect; known; known = known->next)
        if (known == &own)
            return;
    own.next = first_dialect.next;
    first_dialect.next = &own;
}

rendered rendering::take(build_result *result) {
    if (!result)
        return absent;
    const std::unique_ptr<build_result, freed> record(result);
    const std::unique_ptr<char, freed> text(record->query);
    if (text)
        out.append(text.get());
    return {true, text != nullptr, record->build_result};
}

void rendering::drop_between(place begin, place end) {
    const auto first = insertions_.begin();
    insertions_.erase(first + static_cast<std::ptrdiff_t>(begin.insertions),
                      first + static_cast<std::ptrdiff_t>(end.insertions));
    for (std::size_t i = begin.insertions; i < insertions_.size(); ++i)
        insertions_[i].position -= end.size - begin.size;
    out.erase(begin.size, end.size);
}

// Moves the text from its end to where it belongs, so that each part is moved once.
void rendering::settle(place begin) {
    std::size_t added = 0;
    for (std::size_t i = begin.insertions; i < insertions_.size(); ++i)
        added += insertions_[i].text.size();
    std::size_t source = out.size();
    if (added) {
        out.grow(added);
        std::size_t target = out.size();
        for (std::size_t i = insertions_.size(); i-- > begin.insertions;) {
            const insertion &next = insertions_[i];
            const std::size_t moved = source - next.position;
            target -= moved;
            source = next.position;
            std::memmove(out.at(target), out.at(source), moved);
            target -= next.text.size();
            next.text.copy(out.at(target), next.text.size());
        }
    }
    insertions_.resize(begin.insertions);
}

build_result *finished(rendering &r, rendered result) {
    if (!result.record)
        return nullptr;
    if (result.text) {
        r.settle({0, 0});
        if (!r.has_room_for(0))
            result = refused;
    }
    if (r.is_exhausted())
        result = refused;
    build_result *record = quillet_build_result_create();
    record->build_result = result.status;
    if (result.text)
        record->query = r.out.release();
    return record;
}

build_result *render_operator_alone(const operator_rule &rule, builder *self,
                                    node_expression *node) {
    rendering alone(self);
    return finished(alone, render_by_rule(alone, rule, node));
}

} // namespace quillet
