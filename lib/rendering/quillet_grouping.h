/*
 * Whether a database groups the operators of a text as the statement's are grouped. Internal.
 *
 * Three groupings matter: PostgreSQL's of the statement, the tree's, and the target's of the text.
 * An operator's text says how its operands are held together: what stands beside an operand, and
 * how tightly that binds. An operand stays whole if all that is open in it towards a neighbour
 * binds tighter. So each grouping is compared with the tree's, operator by operator. Where both
 * differ from the tree's, they are the same if the two databases rank all operators at hand alike.
 */
#ifndef QUILLET_GROUPING_H
#define QUILLET_GROUPING_H

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "quillet_dialect.h"
#include "quillet_text_template.h"

namespace quillet {

// How tightly an operator binds; the higher, the tighter. Brackets and commas hold all together.
using binding = std::int8_t;
inline constexpr binding held_together = 127;

// A word or sign of a database's expressions that stands between, before or behind operands.
struct operator_token {
    std::string_view text;
    binding infix = 0;  // between or behind; 0 if it never is
    binding prefix = 0; // before
};

// A database's tokens. Where they are layered, what binds loosely cannot stand beside what binds
// tightly even where nothing could be taken from it.
struct operator_grammar {
    std::span<const operator_token> tokens;
    bool is_layered;
};

// How the text of an operator holds its operands.
struct operator_form {
    struct operand_form {
        binding before = 0; // how tightly what stands on this side binds
        binding behind = 0;
        bool is_first = false; // nothing stands on this side
        bool is_last = false;
    };

    operand_form operands[3] = {};
    binding own = held_together; // of the text as a whole
};

constexpr operator_form form_of(const text_template &text, const operator_grammar &grammar);

// The forms of a dialect's texts.
using operator_forms = std::array<operator_form, operator_count>;

// What is open in the text of an expression towards its left and its right.
struct open_sides {
    binding left = held_together;
    binding right = held_together;
};

// The operators that hang together without parentheses, up to one of them.
struct operator_group {
    const node_expression *top = nullptr;
    open_sides in_statement = {};
    open_sides in_text = {};
    bool statement_differs = false; // from the tree
    bool text_differs = false;
    std::uint64_t operators = 0; // which there are
};

// The groups of a statement, while its operators are rendered, each after its operands.
class operator_groups {
public:
    // Adds an operator and what is below it.
    void add(const node_expression *node, int index, const operator_forms &target);

    // Adds an operator that has no text of its own here, so that what it is an operand of finds it.
    void add_held(const node_expression *node) {
        if (groups_.empty() || groups_.back().top != node)
            groups_.push_back({.top = node});
    }

    // Calls report for the top of each group that the target groups otherwise than PostgreSQL.
    template <class Report> void finish(const operator_forms &target, Report report) {
        for (const operator_group &each : groups_)
            if (differs(each, target))
                report(each.top);
        for (const node_expression *top : reported_)
            report(top);
    }

    // Forgets all, and gives back what is too large to be kept.
    void clear();

private:
    static bool differs(const operator_group &group, const operator_forms &target);
    operator_group taken(const node_expression *top, const operator_forms &target);

    std::vector<operator_group> groups_;
    std::vector<const node_expression *> reported_;
};

// The forms of PostgreSQL's own texts.
extern const operator_forms postgresql_forms;

namespace grouping {

constexpr bool is_letter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
constexpr bool is_bracket(char c) { return c == '(' || c == ')' || c == ','; }

// Whether a character goes on a token: of letters, of signs, or one bracket or comma alone.
constexpr bool goes_on(char first, char next) {
    return next != ' ' && !is_bracket(first) && !is_bracket(next) &&
           is_letter(first) == is_letter(next);
}

// The first and the last token of a piece of a text.
constexpr std::string_view first_token(std::string_view piece) {
    while (piece.starts_with(' '))
        piece.remove_prefix(1);
    std::size_t size = piece.empty() ? 0 : 1;
    while (size < piece.size() && goes_on(piece.front(), piece[size]))
        ++size;
    return piece.substr(0, size);
}

constexpr std::string_view last_token(std::string_view piece) {
    while (piece.ends_with(' '))
        piece.remove_suffix(1);
    std::size_t size = piece.empty() ? 0 : 1;
    while (size < piece.size() && goes_on(piece.back(), piece[piece.size() - 1 - size]))
        ++size;
    return piece.substr(piece.size() - size);
}

constexpr binding infix_of(std::string_view token, const operator_grammar &grammar) {
    for (const operator_token &each : grammar.tokens)
        if (each.text == token)
            return each.infix ? each.infix : held_together;
    return held_together;
}

constexpr binding prefix_of(std::string_view token, const operator_grammar &grammar) {
    for (const operator_token &each : grammar.tokens)
        if (each.text == token)
            return each.prefix ? each.prefix : held_together;
    return held_together;
}

} // namespace grouping

constexpr operator_form form_of(const text_template &text, const operator_grammar &grammar) {
    using namespace grouping;
    operator_form form;
    int depth = 0;
    binding between = 0; // of BETWEEN, whose AND is no operator of its own
    for (int i = 0; i < text.count; ++i) {
        const std::string_view literal = text.literal(i);
        // The operators of the text itself are those outside of brackets.
        for (std::size_t at = 0; at < literal.size();) {
            const std::string_view rest = literal.substr(at);
            const std::string_view token = first_token(rest);
            if (token.empty())
                break;
            at += static_cast<std::size_t>(token.data() - rest.data()) + token.size();
            depth += token == "(" ? 1 : token == ")" ? -1 : 0;
            const bool begins_text = i == 0 && token.data() == literal.data();
            const bool is_call = begins_text && at < literal.size() && literal[at] == '(' &&
                                 is_letter(token.front());
            if (token == "BETWEEN")
                between = infix_of(token, grammar);
            if (depth > 0 || token == ")" || is_call || (between && token == "AND"))
                continue;
            const binding own = begins_text ? prefix_of(token, grammar) : infix_of(token, grammar);
            form.own = own < form.own ? own : form.own;
        }
        const operand mark = text.pieces[i].mark;
        if (mark < operand::first || mark > operand::third)
            continue;
        auto &shown = form.operands[static_cast<int>(mark) - 1];
        const std::string_view before = last_token(literal);
        const bool is_held_left = before.empty() || is_bracket(before.front());
        binding left = is_held_left                 ? binding{0}
                       : i == 0                     ? prefix_of(before, grammar)
                       : between && before == "AND" ? between
                                                    : infix_of(before, grammar);
        if (left == held_together)
            left = 0;
        const std::string_view after =
            i + 1 < text.count ? first_token(text.literal(i + 1)) : std::string_view{};
        const bool is_open = after.empty();
        binding right = is_open || is_bracket(after.front()) ? binding{0}
                        : between && after == "AND"          ? between
                                                             : infix_of(after, grammar);
        if (right == held_together)
            right = 0;
        shown.before = left > shown.before ? left : shown.before;
        shown.behind = right > shown.behind ? right : shown.behind;
        shown.is_first = shown.is_first || before.empty();
        shown.is_last = shown.is_last || is_open;
    }
    return form;
}

} // namespace quillet

#endif
