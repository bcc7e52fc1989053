/*
 * The composer: operands, and the text that they are written into. Internal.
 *
 * Operands are rendered once each, one after the other. If the text is known before and takes them
 * in that order, its literal pieces are written between them. If it is known only afterwards,
 * because it depends on them, gaps are left for the pieces. A text that takes them in another
 * order, or one twice, costs one copy.
 */
#ifndef QUILLET_OPERANDS_H
#define QUILLET_OPERANDS_H

#include <string_view>

#include "quillet_rendering.h"

namespace quillet {

class operands {
public:
    // Begins at the end of the rendering's text, or goes on after begin, where before() was called.
    explicit operands(rendering &r, const text_template *known = nullptr)
        : operands(r, known, r.out.here()) {}
    operands(rendering &r, const text_template *known, output::place begin)
        : r_(r), begin_(begin), streamed_(known && known->in_order ? known : nullptr) {}

    // Renders the next operand. NULL gives an empty text.
    template <class Node> outcome add(Node *node) {
        before();
        const outcome result = r_.child(node);
        after(result);
        return result;
    }

    // Renders the next operand with a blank before it, unless it is empty or so is the text since
    // the operand before it began.
    template <class Node> outcome add_spaced(Node *node) {
        const output::place since = last_;
        before();
        const outcome result = r_.spaced_child(since, node);
        after(result);
        return result;
    }

    // The next operand is a text that is there already.
    void add_text(std::string_view text) {
        before();
        r_.out.append(text);
        after(a_text);
    }

    // The two halves of add, for who renders the operand himself.
    void before() {
        if (streamed_)
            r_.out.append(streamed_->literal(count_));
        else
            gaps_[count_] = r_.out.leave_gap();
        last_ = r_.out.here();
    }
    void after(const outcome &operand) {
        ++count_;
        status_.fail_with(operand);
    }

    // Goes on after the first operand, before which another one of these began.
    void resume(const outcome &first);

    // Takes over a status of what is no operand.
    void fail_with(const outcome &other) { status_.fail_with(other); }

    std::int32_t status() const { return status_.status; }

    // Writes the text, in which the first characters of $1 may be left out.
    outcome write(const text_template &text, std::size_t skipped = 0);

    // Drops all that was rendered.
    void drop() { r_.out.cut(begin_); }

private:
    outcome rearrange(const text_template &text, std::size_t skipped);

    rendering &r_;
    const output::place begin_;
    const text_template *const streamed_;
    output::gap gaps_[text_template::operands_maximum] = {}; // before each; unless it is streamed
    output::place last_{};                                   // where the last operand begins
    int count_ = 0;
    outcome status_{};
};

} // namespace quillet

#endif
