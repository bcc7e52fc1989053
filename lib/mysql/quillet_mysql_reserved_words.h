/*
 * The words that MySQL or MariaDB reserve. Internal.
 */
#ifndef QUILLET_MYSQL_RESERVED_WORDS_H
#define QUILLET_MYSQL_RESERVED_WORDS_H

#include <string_view>

namespace quillet::mysql {

// Whether a name that is not quoted is one of them.
bool is_reserved(std::string_view name);

} // namespace quillet::mysql

#endif
