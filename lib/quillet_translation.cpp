// quillet_translate: a translation from any thread, with everything that there is to say about it.

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <vector>

#include "quillet.h"
#include "quillet_build_result.h"
#include "quillet_diagnostics.h"
#include "quillet_limits.h"
#include "quillet_mysql_builder.h"
#include "quillet_own_builders.h"
#include "quillet_statement_parser.h"
#include "quillet_text_buffer.h"
#include "quillet_translation_context.h"

using namespace quillet;

namespace {

// A translation with the memory of its diagnostics. The text is on its own.
struct owned_translation : quillet_translation {
    owned_translation() : quillet_translation{} {}
    ~owned_translation() { std::free(text); }
    owned_translation(const owned_translation &) = delete;
    owned_translation &operator=(const owned_translation &) = delete;

    void finish(std::string_view statement, std::int32_t least_severity) {
        list.finish(statement, least_severity);
        diagnostic_count = list.all().size();
        diagnostics = diagnostic_count ? list.all().data() : nullptr;
    }

    diagnostic_list list;
};

// What is returned where there is no memory for a record.
constexpr quillet_diagnostic no_memory_diagnostic = {
    .severity = notices::out_of_memory.severity,
    .code = 0,
    .id = notices::out_of_memory.id,
    .message = notices::out_of_memory.message,
    .hint = nullptr,
    .offset = 0,
    .length = 0,
    .line = 1,
    .column = 1,
};

constexpr quillet_translation no_memory = {
    .code = QUILLET_CAN_NOT_TRANSLATE,
    .text = nullptr,
    .text_length = 0,
    .diagnostic_count = 1,
    .diagnostics = const_cast<quillet_diagnostic *>(&no_memory_diagnostic),
};

// The limits that options set, of which an older host knows the first alone.
struct limits {
    explicit limits(const quillet_options *options) {
        if (!options)
            return;
        quillet_options known{};
        std::memcpy(&known, options, std::min(options->size, sizeof known));
        if (known.text_limit)
            text = std::min(text, known.text_limit);
        if (known.tree_limit)
            tree = std::min(tree, known.tree_limit);
        least_severity = known.least_severity;
    }

    std::size_t text = QUILLET_TEXT_SIZE_MAXIMUM;
    std::size_t tree = QUILLET_TREE_SIZE_MAXIMUM;
    std::int32_t least_severity = QUILLET_NOTE;
};

struct tree_freed {
    void operator()(node_main *tree) const { quillet_node_main_free(tree); }
};

// The notice for a parse that has failed.
const notice &notice_of(parse_fault fault) {
    switch (fault) {
    case parse_fault::unknown_character: return notices::unknown_character;
    case parse_fault::unended_string: return notices::unended_string;
    case parse_fault::unended_name: return notices::unended_name;
    case parse_fault::empty_name: return notices::empty_name;
    case parse_fault::too_deep: return notices::too_deep;
    case parse_fault::none:
    case parse_fault::syntax_error: break;
    }
    return notices::syntax_error;
}

// What stands at a place, as a message shows it: not more than so many characters.
std::string shown(std::string_view text) {
    constexpr std::size_t shown_maximum = 60;
    if (text.size() <= shown_maximum)
        return std::string(text);
    std::size_t end = shown_maximum;
    while (end > 0 && !begins_character(text[end]))
        --end;
    return std::string(text.substr(0, end)) + "...";
}

std::string syntax_error_at(std::string_view token) {
    return token.empty() ? "syntax error at end of input"
                         : "syntax error at or near \"" + shown(token) + '"';
}

// What stands before a token may tell what was meant.
const char *hint_for_syntax_error(std::string_view statement, place where) {
    const std::string_view before = statement.substr(0, where.begin);
    const std::string_view token = statement.substr(where.begin, where.end - where.begin);
    if (before.ends_with('\'') && token.starts_with('\''))
        return "write a backslash before a quote within a string";
    const std::size_t last = before.find_last_not_of(" \t\r\n");
    if (last != std::string_view::npos && before[last] == ';')
        return "translate one statement at a time";
    return nullptr;
}

// A character that cannot be printed is shown by its code.
std::string unknown_character_of(std::string_view character) {
    const auto code = static_cast<unsigned char>(character.front());
    const bool is_printed = character.size() > 1 || (code >= ' ' && code < 0x7f);
    if (is_printed)
        return "unknown character \"" + std::string(character) + '"';
    constexpr std::string_view digits = "0123456789abcdef";
    return std::string("unknown character \"\\x") + digits[code / 16] + digits[code % 16] + '"';
}

const char *hint_for_unknown(std::string_view character) {
    if (character == "\xef\xbb\xbf")
        return "leave the byte order mark out";
    switch (character.front()) {
    case '?':
    case '$':
    case ':': return "write a literal in the place of a parameter";
    case '`': return "write double quotes round a name";
    case '[':
    case ']': return "arrays are not read";
    default: return nullptr;
    }
}

// A translation while it is made.
class translating {
public:
    translating(std::string_view statement, owned_translation &made)
        : statement_(statement), made_(made) {}

    void run(int builder_id, const limits &allowed) {
        if (!is_builder(builder_id))
            return fail(QUILLET_NO_SUCH_BUILDER, notices::no_such_builder);
        if (statement_.size() > QUILLET_QUERY_SIZE_MAXIMUM)
            return fail(QUILLET_CAN_NOT_TRANSLATE, notices::statement_too_large);
        try {
            translate(builder_id, allowed);
        } catch (const tree_is_too_large &) {
            fail(QUILLET_CAN_NOT_TRANSLATE, notices::tree_too_large);
        }
    }

private:
    void fail(int code, const notice &why) {
        made_.code = code;
        made_.list.add(why, whole(statement_));
    }

    void translate(int builder_id, const limits &allowed) {
        const borrowed_context context;
        const own_builders::own_builder *ours = context->builders.find(builder_info_of(builder_id));
        const tree_under_way tree(context->tree, ours ? tree_owner::library : tree_owner::host,
                                  allowed.tree);
        const dialect *own_dialect = builder_table[builder_id].own;
        const bool remarks_are_wanted = own_dialect && allowed.least_severity < QUILLET_REFUSAL;
        const remark_table *remarks = remarks_are_wanted ? own_dialect->remarks : nullptr;
        const bool with_places = ours && remarks && remarks->is_frequent;
        const parse_result parsed = parse(context->tree, with_places);
        if (parsed.has_open_comment)
            made_.list.add(notices::unended_comment, parsed.open_comment);
        if (parsed.fault != parse_fault::none)
            return fail_to_parse(parsed);

        if (!ours && !context->tree.keep())
            throw std::bad_alloc();
        const std::unique_ptr<node_main, tree_freed> of_host(ours ? nullptr : parsed.root);
        context->rendering.text_limit = allowed.text;
        context->rendering.remarks = remarks;
        render(builder_info_of(builder_id), ours, parsed, context->rendering);
    }

    // Places take memory as well, which the limit of the tree is not for.
    parse_result parse(tree_memory &memory, bool with_places) {
        if (with_places) {
            try {
                return parse_statement_with_places(statement_, memory);
            } catch (const tree_is_too_large &) {
                memory.begin_again();
            }
        }
        return parse_statement(statement_, memory);
    }

    void fail_to_parse(const parse_result &parsed) {
        notice why = notice_of(parsed.fault);
        const std::string_view token =
            statement_.substr(parsed.where.begin, parsed.where.end - parsed.where.begin);
        made_.code = parsed.fault == parse_fault::too_deep ? QUILLET_CAN_NOT_TRANSLATE
                                                           : QUILLET_INVALID_QUERY;
        if (parsed.fault == parse_fault::syntax_error) {
            why.hint = hint_for_syntax_error(statement_, parsed.where);
            made_.list.add(why, parsed.where, syntax_error_at(token));
        } else if (parsed.fault == parse_fault::unknown_character) {
            fail_at_character(parsed.where.begin);
        } else {
            made_.list.add(why, parsed.where);
        }
    }

    // The scanner knows bytes; a character may have more of them.
    void fail_at_character(std::uint32_t begin) {
        const std::string_view character = character_at(statement_, begin);
        notice why = notices::unknown_character;
        why.hint = hint_for_unknown(character);
        made_.list.add(why, {begin, begin + static_cast<std::uint32_t>(character.size())},
                       unknown_character_of(character));
    }

    void render(const quillet_builder_info &info, const own_builders::own_builder *ours,
                const parse_result &parsed, rendering_memory &memory) {
        findings found;
        if (info.get_error_code != quillet_mysql_get_error_code) {
            found.host_code = info.get_error_code;
            found.host_description = info.get_error_description;
        }
        memory.heard = &found;
        memory.groups.clear();
        {
            const rendering_under_way under_way(&memory, ours ? &ours->slots : nullptr);
            const std::unique_ptr<builder, builder_freed> of_host(ours ? nullptr
                                                                       : info.constructor());
            take(ours ? ours->self : of_host.get(), parsed.root);
        }
        if (memory.is_lacking)
            throw std::bad_alloc();
        if (made_.text)
            finish_remarks(found, memory);
        else
            drop_remarks(found);
        const bool says_lost_type = parsed.has_lost_type && made_.text && memory.remarks;
        made_.list.add(found, statement_, parsed,
                       says_lost_type ? memory.remarks->lost_type : nullptr);
        if (made_.code != QUILLET_SUCCESS && !made_.list.explains_failure())
            fail(made_.code,
                 made_.code == QUILLET_INVALID_QUERY ? notices::missing_part : notices::refused);
    }

    static void finish_remarks(findings &found, rendering_memory &memory) {
        if (!memory.remarks || !memory.remarks->forms)
            return;
        memory.groups.finish(*memory.remarks->forms, [&](const node_expression *top) {
            found.add(*memory.remarks->grouped_otherwise, top, kind_expression);
        });
    }

    // A remark is about a text.
    static void drop_remarks(findings &found) {
        std::erase_if(found.list,
                      [](const finding &each) { return each.what.severity < QUILLET_REFUSAL; });
    }

    // Takes over what a builder makes of the tree.
    void take(builder *renderer, node_main *tree) {
        const std::unique_ptr<build_result, freed> result(
            renderer ? quillet_call_build_main(renderer, tree, nullptr) : nullptr);
        std::unique_ptr<char, freed> text(result ? result->query : nullptr);
        made_.code = result ? result->build_result : QUILLET_CAN_NOT_TRANSLATE;
        if (made_.code != QUILLET_SUCCESS || !text)
            return;
        made_.text = text.release();
        made_.text_length = std::strlen(made_.text);
    }

    const std::string_view statement_;
    owned_translation &made_;
};

} // namespace

quillet_translation *quillet_translate(const char *statement, size_t length, int builder_id,
                                       const quillet_options *options) {
    try {
        const std::string_view text(statement ? statement : "", statement ? length : 0);
        auto made = std::make_unique<owned_translation>();
        const limits allowed(options);
        translating(text, *made).run(builder_id, allowed);
        made->finish(text, allowed.least_severity);
        return made.release();
    } catch (const std::bad_alloc &) {
        return const_cast<quillet_translation *>(&no_memory);
    }
}

void quillet_translation_free(quillet_translation *translation) {
    if (translation != &no_memory)
        delete static_cast<owned_translation *>(translation);
}
