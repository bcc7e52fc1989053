// psql's own commands, as far as the statements around them depend on them.

#ifndef QUILLET_SCRIPT_PSQL_COMMANDS_H
#define QUILLET_SCRIPT_PSQL_COMMANDS_H

#include <string_view>

namespace script {

// Whether all of the line belongs to a command, which is given up to its name's end: what follows
// is one argument, or psql does not know the command and skips the line.
bool takes_line(std::string_view command);

// Whether it sends what has been read of a statement.
bool sends(std::string_view command);

// Whether it forgets that.
bool forgets(std::string_view command);

// Whether it is a \copy whose data is in the lines after it.
bool copies_from_input(std::string_view command);

} // namespace script

#endif
