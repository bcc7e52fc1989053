// TO_CHAR in the builder mysql.

#include <memory>
#include <string>

#include "quillet_function_rules.h"
#include "quillet_mysql_rendering.h"
#include "quillet_operands.h"
#include "quillet_text_buffer.h"

namespace quillet::mysql {

namespace {

struct specifier {
    int format;
    std::string_view plain;
    std::string_view with_fm; // empty if the format has none with FM
};

// The words of a pattern that DATE_FORMAT knows.
constexpr specifier specifiers[] = {
    {DATE_FORMAT_HH, "%I", "%l"},
    {DATE_FORMAT_HH24, "%H", "%k"},
    {DATE_FORMAT_MI, "%i", ""},
    {DATE_FORMAT_SS, "%s", ""},
    {DATE_FORMAT_US, "%f", ""},
    {DATE_FORMAT_AM_UPPER, "%p", "%p"},
    {DATE_FORMAT_YYYY, "%Y", "%Y"},
    {DATE_FORMAT_YY, "%Y", "%Y"}, // four digits all the same
    {DATE_FORMAT_IYYY, "%Y", "%Y"},
    {DATE_FORMAT_IY, "%Y", "%Y"},
    {DATE_FORMAT_MONTH_CAPITAL, "%M", "%M"},
    {DATE_FORMAT_MON_CAPITAL, "%b", "%b"},
    {DATE_FORMAT_MM, "%M", "%c"}, // the month's name without FM
    {DATE_FORMAT_DAY_CAPITAL, "", "%W"},
    {DATE_FORMAT_DY_CAPITAL, "%a", "%a"},
    {DATE_FORMAT_DDD, "%j", ""},
    {DATE_FORMAT_DD, "%d", "%e"},
};

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
    for (const specifier &known : specifiers) {
        if (known.format != node.format)
            continue;
        const std::string_view text =
            node.prefix == DATE_FORMAT_PREFIX_FM ? known.with_fm : known.plain;
        out.append(text);
        return !text.empty();
    }
    if (node.format > DATE_FORMAT_STRING && node.format <= DATE_FORMAT_TZ_LOWER)
        return false;
    if (node.format != 0) {
        const char character = static_cast<char>(node.format);
        append_escaped(out, {&character, 1});
    }
    return true;
}

struct format_freed {
    void operator()(date_format_node *list) const { quillet_date_format_node_free(list); }
};

// Appends the mask for a pattern. Returns false at the first word that has no equal; the mask then
// ends before it.
bool append_mask(text_buffer &out, std::string_view pattern) {
    const std::unique_ptr<date_format_node, format_freed> words(
        quillet_date_format_parse(std::string(pattern).c_str()));
    for (const date_format_node *word = words.get(); word; word = word->next)
        if (!append_specifier(out, *word))
            return false;
    return true;
}

} // namespace

rendered render_to_char(rendering &r, node_function_call *call, void *) {
    static constexpr text_template text("DATE_FORMAT($1, '$2')");
    node_expression *value = previous_argument(*call);
    const node_expression *pattern = last_argument(*call);
    const node_const_generic *literal = pattern ? pattern->const_generic : nullptr;
    if (!value || !literal || !literal->const_string)
        return missing_part;
    operands all(r);
    const rendered rendered_value = all.add(value);
    std::string quoted_pattern;
    all.fail_with(r.taken_child(literal->const_string, quoted_pattern));
    if (!rendered_value.record || !quillet_is_datetime_not_interval(value->sql_type)) {
        all.drop();
        return refuse(reason::TO_CHAR);
    }
    text_buffer mask;
    const bool is_known = append_mask(mask, without_quotes(quoted_pattern));
    all.add_text(mask.from(0));
    rendered result = all.write(text);
    if (!is_known)
        result.fail_with(refuse(reason::DEFAULT_VALUE));
    return result;
}

} // namespace quillet::mysql

char *_quillet_mysql_date_format(const date_format_node *node) {
    quillet::text_buffer out;
    return quillet::mysql::append_specifier(out, *node) ? out.release() : nullptr;
}
