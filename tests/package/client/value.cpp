// Uses the installed quillet.hpp as a C++17 program would, and every other header beside it: no
// name of one is in the way of another's.
#include <quillet.hpp>
#include <quillet_build_result.h>
#include <quillet_builder.h>
#include <quillet_date_format_parser.h>
#include <quillet_mysql_builder.h>
#include <quillet_parse_data.h>
#include <quillet_parser.h>
#include <quillet_postgresql_builder.h>
#include <quillet_strings_tools.h>
#include <quillet_tree_node.h>
#include <quillet_tree_view_builder.h>
#include <quillet_type_view_builder.h>
#include <quillet_types.h>

#include <quillet/quillet.hpp> // as well

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

using namespace quillet;

static_assert(__cplusplus == 201703L);

namespace {

int failures = 0;

template <class Found, class Wanted>
void expect(const char *what, const Found &found, const Wanted &wanted) {
    if (found == wanted)
        return;
    std::cout << what << ": \"" << found << "\" instead of \"" << wanted << "\"\n";
    failures += 1;
}

void translate_for_all() {
    expect("PostgreSQL", translate("select a||b", target::postgresql).text(), "SELECT a || b");
    expect("MySQL", translate("select a||b", target::mysql).text(), "SELECT CONCAT(a, b)");
    expect("an id", translate("select a||b", quillet_get_builder_id("mysql")).text(),
           "SELECT CONCAT(a, b)");
    expect("no builder", translate("select a", 4).code(), QUILLET_NO_SUCH_BUILDER);
    expect("a limit", translate("select a", target::mysql, {5, 0}).code(),
           QUILLET_CAN_NOT_TRANSLATE);
}

void look_at_diagnostics() {
    const std::string statement = "select initcap(a),\n       btrim(b)";
    const translation made = translate(statement, target::mysql);
    expect("a refusal", made ? "a text" : "none", std::string_view("none"));
    std::string ids;
    for (const diagnostic &each : made.diagnostics())
        ids.append(each.id) += ' ';
    expect("all", ids, "refused-initcap refused-btrim ");
    const auto all = made.diagnostics();
    const auto second =
        std::find_if(all.begin(), all.end(), [](const diagnostic &each) { return each.line == 2; });
    expect("the second", second != all.end(), true);
    expect("its place", statement.substr(second->offset, second->length), "btrim(b)");
    expect("its column", second->column, 8);
    expect("its hint", second->hint.has_value(), true);
    expect("its severity", second->severity == severity::refusal, true);
}

void move_between_threads() {
    std::vector<translation> made(4);
    std::vector<std::thread> threads;
    for (translation &each : made)
        threads.emplace_back([&each] { each = translate("select 1 + 2", target::type_view); });
    for (std::thread &each : threads)
        each.join();
    for (const translation &each : made)
        expect("from a thread", each.text(), "SELECT INT8 ( INT8 ( 1 )  + INT8 ( 2 )  ) ");
    const std::string_view text = made[0].text();
    const translation moved = std::move(made[0]);
    expect("moved", moved.text().data() == text.data(), true);
}

// The record of the C headers, not a name of the namespace.
void render_by_hand() {
    builder *plain = quillet_default_builder_create();
    expect("a builder", quillet_implements_main(plain), 1);
    quillet_builder_free(plain);
}

} // namespace

int main() {
    translate_for_all();
    look_at_diagnostics();
    move_between_threads();
    render_by_hand();
    return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
