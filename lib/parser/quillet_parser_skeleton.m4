# Bison's tables and the grammar's actions as quillet_parser_driver.h wants them: what bison writes of the
# grammar for the parsers of a statement where it stands.

m4_include(b4_skeletonsdir/[c.m4])

# $$ and $n in an action.
m4_define([b4_lhs_value], [b4_symbol_value([made], [$1], [$2])])
m4_define([b4_rhs_value], [b4_symbol_value([last@{b4_subtract([$2], [$1])@}.value], [$3], [$4])])

m4_define([b4_integral_parser_table_define], [[    static constexpr std::int16_t $1[] = {
]$2[
    };
]])

m4_define([b4_case], [[        case ]$1[: { ]m4_ifval([$3], [b4_comment([$3])])[
            construct<grammar, Symbol, ]$1[> it(last);
            quillet_value &made = it.made;
            [[maybe_unused]] const place where = it.where;
]$2[
]b4_syncline([@oline@], [@ofile@])[
            return it.end(state);
        }]])

# There is no state but the parse's own, as api.pure says.
m4_ifval(b4_percent_define_get([[api.pure]]), [])

b4_output_begin([b4_parser_file_name])[
#include <cstdint>

]b4_percent_code_get([[requires]])[
]b4_percent_code_get[

#include "quillet_parser_driver.h"

namespace {

struct grammar {
    static constexpr int token_count = ]b4_tokens_number[;
    static constexpr int final_state = ]b4_final_state_number[;
    static constexpr int no_action = ]b4_pact_ninf[; // of a state: its default reduction, whatever follows
    static constexpr int error = ]b4_table_ninf[;

    static constexpr std::uint8_t translate[] = {
]b4_translate[
    };

]b4_parser_tables_define[
    // Puts what a rule makes of the last symbols in their place. Returns where, and the state after it.
    template <class Symbol>
    [[gnu::always_inline]] static Symbol *reduce(std::size_t rule, Symbol *last, std::size_t &state,
                                                 quillet_parsing *parse, quillet_tree_memory *memory) {
        switch (rule) {
]b4_user_actions[
        default: return put_first_part<grammar>(rule, last, state);
        }
    }
};

} // namespace

int ]b4_prefix[parse(quillet_parsing *parse, quillet_tree_memory *memory) {
    return parser_driver<grammar, symbol>(parse, memory).run();
}
]b4_output_end
