#include "comments.h"

#include "words.h"

namespace script {

namespace {

// Calls take for each part of a comment: its text, and by how much deeper it leads.
template <class Take> std::size_t walk_block_comment(std::string_view comment, Take take) {
    std::size_t depth = 0;
    std::size_t passed = 0;
    for (std::size_t at = 0; at + 1 < comment.size();) {
        const std::string_view two = comment.substr(at, 2);
        if (two != "/*" && two != "*/") {
            ++at;
            continue;
        }
        take(comment.substr(passed, at - passed), two, depth);
        depth = two == "/*" ? depth + 1 : depth - 1;
        at += 2;
        passed = at;
    }
    take(comment.substr(passed), std::string_view(), depth);
    return depth;
}

} // namespace

std::string line_comment_for(quillet::target target, std::string_view comment) {
    std::string made(comment);
    if (target == quillet::target::mysql && comment.size() > 2 && !is_blank(comment[2]))
        made.insert(2, 1, ' ');
    return made;
}

std::string block_comment_for(quillet::target target, std::string_view comment) {
    std::string made;
    const bool nests = target != quillet::target::mysql;
    const std::size_t open = walk_block_comment(
        comment, [&](std::string_view text, std::string_view mark, std::size_t depth) {
            if (!nests && depth == 1 && made == "/*" && text.starts_with("!"))
                made.push_back(' ');
            made.append(text);
            const bool is_outer = depth == (mark == "/*" ? 0U : 1U);
            if (nests || is_outer)
                made.append(mark);
            else if (!mark.empty())
                made.append({mark[0], ' ', mark[1]});
        });
    for (std::size_t i = 0; i < (nests ? open : open > 0 ? 1 : 0); ++i)
        made.append(" */");
    return made;
}

bool has_end(std::string_view block_comment) {
    return walk_block_comment(block_comment, [](auto...) {}) == 0;
}

} // namespace script
