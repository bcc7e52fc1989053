#include "psql_commands.h"

#include <algorithm>

#include "words.h"

namespace script {

namespace {

enum class effect { none, takes_line, sends, forgets };

struct row {
    std::string_view name;
    effect has;
};

// Those of psql 15, and what later ones have added. Each name that begins with "d" is known as
// well.
constexpr row rows[] = {
    {"a", effect::none},
    {"bind", effect::none},
    {"bind_named", effect::none},
    {"C", effect::none},
    {"c", effect::none},
    {"cd", effect::none},
    {"close_prepared", effect::none},
    {"connect", effect::none},
    {"conninfo", effect::none},
    {"copy", effect::takes_line},
    {"copyright", effect::none},
    {"crosstabview", effect::sends},
    {"e", effect::none},
    {"echo", effect::none},
    {"edit", effect::none},
    {"ef", effect::takes_line},
    {"elif", effect::none},
    {"else", effect::none},
    {"encoding", effect::none},
    {"endif", effect::none},
    {"endpipeline", effect::none},
    {"errverbose", effect::none},
    {"ev", effect::takes_line},
    {"f", effect::none},
    {"flush", effect::none},
    {"flushrequest", effect::none},
    {"g", effect::sends},
    {"gdesc", effect::sends},
    {"getenv", effect::none},
    {"getresults", effect::none},
    {"gexec", effect::sends},
    {"gset", effect::sends},
    {"gx", effect::sends},
    {"H", effect::none},
    {"h", effect::takes_line},
    {"help", effect::takes_line},
    {"html", effect::none},
    {"i", effect::none},
    {"if", effect::none},
    {"include", effect::none},
    {"include_relative", effect::none},
    {"ir", effect::none},
    {"l", effect::none},
    {"l+", effect::none},
    {"list", effect::none},
    {"list+", effect::none},
    {"lo_export", effect::none},
    {"lo_import", effect::none},
    {"lo_list", effect::none},
    {"lo_list+", effect::none},
    {"lo_unlink", effect::none},
    {"o", effect::none},
    {"out", effect::none},
    {"p", effect::none},
    {"parse", effect::sends},
    {"password", effect::none},
    {"print", effect::none},
    {"prompt", effect::none},
    {"pset", effect::none},
    {"q", effect::none},
    {"qecho", effect::none},
    {"quit", effect::none},
    {"r", effect::forgets},
    {"reset", effect::forgets},
    {"restrict", effect::none},
    {"s", effect::none},
    {"sendpipeline", effect::sends},
    {"set", effect::none},
    {"setenv", effect::none},
    {"sf", effect::takes_line},
    {"sf+", effect::takes_line},
    {"startpipeline", effect::none},
    {"sv", effect::takes_line},
    {"sv+", effect::takes_line},
    {"syncpipeline", effect::none},
    {"T", effect::none},
    {"t", effect::none},
    {"timing", effect::none},
    {"unrestrict", effect::none},
    {"unset", effect::none},
    {"w", effect::none},
    {"warn", effect::none},
    {"watch", effect::sends},
    {"write", effect::none},
    {"x", effect::none},
    {"z", effect::none},
    {"!", effect::takes_line},
    {"?", effect::none},
};

std::string_view name_of(std::string_view command) {
    return command.substr(1, command.find_first_of(" \t\n\r\f\\", 1) - 1);
}

effect effect_of(std::string_view command) {
    const std::string_view name = name_of(command);
    const auto *const known = std::find_if(std::begin(rows), std::end(rows),
                                           [name](const row &each) { return each.name == name; });
    if (known != std::end(rows))
        return known->has;
    return name.starts_with("d") ? effect::none : effect::takes_line;
}

} // namespace

bool takes_line(std::string_view command) { return effect_of(command) == effect::takes_line; }
bool sends(std::string_view command) { return effect_of(command) == effect::sends; }
bool forgets(std::string_view command) { return effect_of(command) == effect::forgets; }

bool copies_from_input(std::string_view command) {
    if (name_of(command) != "copy")
        return false;
    std::string_view before;
    for (std::string_view left = command.substr(1); !left.empty();) {
        left = without_blanks_before(left);
        const std::string_view word = first_word(left);
        if (is_word(before, "from") && is_word(word, "stdin"))
            return true;
        left.remove_prefix(std::min(left.size(), std::max<std::size_t>(word.size(), 1)));
        before = word;
    }
    return false;
}

} // namespace script
