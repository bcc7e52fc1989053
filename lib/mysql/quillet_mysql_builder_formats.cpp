// TO_CHAR in the builder mysql.

#include <algorithm>
#include <array>
#include <string>

#include "quillet_date_format_scanner.h"
#include "quillet_function_rules.h"
#include "quillet_mysql_rendering.h"
#include "quillet_operands.h"
#include "quillet_text_buffer.h"

namespace quillet::mysql {

namespace {

// DATE_FORMAT's specifier for a word of a pattern, plain and with FM; empty if it has none.
struct specifier {
    char plain[3];
    char with_fm[3];
};

constexpr int last_word = std::max({
#define FORMAT(name, code, ...) code,
#include "quillet_date_formats.def"
});

// By the words' codes, from that of quoted text on.
constexpr auto specifiers = [] {
    std::array<specifier, last_word - DATE_FORMAT_STRING + 1> list{};
#define FORMAT(name, code, plain, with_fm, ...) list[code - DATE_FORMAT_STRING] = {plain, with_fm};
#include "quillet_date_formats.def"
    return list;
}();

void append_escaped(text_buffer &out, std::string_view text) {
    for (const char c : text) {
        out.append(c);
        if (c == '%')
            out.append(c);
    }
}

// Appends what stands for a word in a mask. Returns whether there is anything that does.
bool append_specifier(text_buffer &out, const date_format_node &node) {
    if (node.format == DATE_FORMAT_STRING) {
        append_escaped(out, node.string ? node.string : "");
        return true;
    }
    if (node.format > DATE_FORMAT_STRING && node.format <= last_word) {
        const auto position = static_cast<std::size_t>(node.format - DATE_FORMAT_STRING);
        const auto &[plain, with_fm] = specifiers[position];
        const std::string_view text = node.prefix == DATE_FORMAT_PREFIX_FM ? with_fm : plain;
        out.append(text);
        return !text.empty();
    }
    if (node.format != 0) {
        const char character = static_cast<char>(node.format);
        append_escaped(out, {&character, 1});
    }
    return true;
}

// Appends the mask for a pattern. Returns false at the first word that has no equal; the mask then
// ends before it.
bool append_mask(text_buffer &out, std::string_view pattern) {
    const date_format_list words = own_rendering_memory
                                       ? parse_date_format_in_place(pattern)
                                       : parse_date_format(std::string(pattern).c_str());
    for (const date_format_node *word = words.get(); word; word = word->next)
        if (!append_specifier(out, *word))
            return false;
    return true;
}

// A word that MySQL has no equal for is refused with another one's reason.
outcome refuse_format(rendering &r, node_const_string *pattern) {
    constexpr auto given = static_cast<std::int32_t>(reason::DEFAULT_VALUE);
    notice what = notice_of(static_cast<std::int32_t>(reason::TO_CHAR_FORMAT));
    what.code = given;
    what.message = mysql_error_descriptions[-given];
    return r.refuse(mysql_dialect, pattern, given, what);
}

} // namespace

outcome render_to_char(rendering &r, node_function_call *call, void *) {
    static constexpr text_template text("DATE_FORMAT($1, '$2')");
    node_expression *value = previous_argument(*call);
    const node_expression *pattern = last_argument(*call);
    const node_const_generic *literal = pattern ? pattern->const_generic : nullptr;
    if (!value || !literal || !literal->const_string)
        return r.lacks(call);
    operands all(r);
    const outcome rendered_value = all.add(value);
    std::string quoted_pattern;
    all.fail_with(r.taken_child(literal->const_string, quoted_pattern));
    if (!rendered_value.record || !quillet_is_datetime_not_interval(value->sql_type)) {
        all.drop();
        return refuse(r, call, reason::TO_CHAR, seen::yes);
    }
    text_buffer mask;
    const bool is_known = append_mask(mask, without_quotes(quoted_pattern));
    all.add_text(mask.from(0));
    outcome result = all.write(text);
    if (!is_known)
        result.fail_with(refuse_format(r, literal->const_string));
    return result;
}

} // namespace quillet::mysql

char *_quillet_mysql_date_format(const date_format_node *node) {
    quillet::text_buffer out;
    return quillet::mysql::append_specifier(out, *node) ? out.release() : nullptr;
}
