// Comments of PostgreSQL as the target reads them.

#ifndef QUILLET_SCRIPT_COMMENTS_H
#define QUILLET_SCRIPT_COMMENTS_H

#include <string>
#include <string_view>

#include <quillet.hpp>

namespace script {

// MySQL wants a blank behind the dashes.
std::string line_comment_for(quillet::target target, std::string_view comment);

// In MySQL comments do not nest, and what begins with "/*!" is no comment. One without an end gets
// it.
std::string block_comment_for(quillet::target target, std::string_view comment);

// Whether a block comment ends, and all within it.
bool has_end(std::string_view block_comment);

} // namespace script

#endif
