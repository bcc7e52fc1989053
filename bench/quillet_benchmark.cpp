// What a statement costs: scanned alone, parsed alone, rendered alone by each builder, and as a
// whole translation by either way in; what one costs that is refused, or has a token too many; and
// what a member of a growing list, chain or nest costs.

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "corpus.h"
#include "quillet.h"
#include "quillet_builder.h"
#include "quillet_globals.h"
#include "quillet_parser.h"
#include "quillet_parser_tools.h"
#include "quillet_tree_memory.h"
#include "quillet_tree_node.h"

#include "quillet_bison_parser.h"

extern "C" {

int yy_quillet_lex_destroy(void);

// Every allocation of the program is counted on its way to glibc.
// NOLINTBEGIN(bugprone-reserved-identifier)
void *__libc_malloc(std::size_t size);
void *__libc_realloc(void *block, std::size_t size);
// NOLINTEND(bugprone-reserved-identifier)
}

namespace {

std::size_t allocations = 0;

}

void *malloc(std::size_t size) {
    ++allocations;
    return __libc_malloc(size);
}

void *realloc(void *ptr, std::size_t size) {
    ++allocations;
    return __libc_realloc(ptr, size);
}

namespace {

using namespace quillet_bench;

struct freed {
    void operator()(char *text) const { std::free(text); }
};

void scan(const std::string &statement) {
    quillet_query = _quillet_parse_data_create(statement.c_str());
    while (const int token = yy_quillet_lex())
        switch (token) {
        case TOKEN_IDENTIFIER:
        case TOKEN_STRING:
        case TOKEN_INTEGER:
        case TOKEN_FLOAT:
        case TOKEN_CURRENT_DATETIME: std::free(yy_quillet_lval.v_string); break;
        default: break;
        }
    _quillet_parse_data_free(quillet_query);
}

void parse(const std::string &statement) {
    if (quillet_parse(statement.c_str()) != QUILLET_PARSE_ACCEPTED)
        std::abort();
    quillet_node_main_free(std::exchange(root, nullptr));
}

void render(builder *self, node_main *tree) {
    build_result *result = quillet_call_build_main(self, tree, nullptr);
    if (!result || result->build_result)
        std::abort();
    std::free(result->query);
    std::free(result);
}

void translate(const std::string &statement, int builder_id, int code = QUILLET_SUCCESS) {
    char *output = nullptr;
    if (quillet_translate_query(statement.c_str(), &output, builder_id) != code)
        std::abort();
    const std::unique_ptr<char, freed> owned(output);
}

void translate_freely(const std::string &statement, int builder_id, int code = QUILLET_SUCCESS,
                      int least_severity = QUILLET_REFUSAL) {
    quillet_options options{};
    options.size = sizeof options;
    options.least_severity = least_severity;
    quillet_translation *made =
        quillet_translate(statement.data(), statement.size(), builder_id, &options);
    if (made->code != code)
        std::abort();
    quillet_translation_free(made);
}

// Runs work on all statements again and again.
template <class Work>
void measure(benchmark::State &state, const std::vector<std::string> &statements, Work work) {
    for (const std::string &statement : statements)
        work(statement); // the first time is another matter
    const std::size_t before = allocations;
    for ([[maybe_unused]] auto round : state)
        for (const std::string &statement : statements)
            work(statement);
    const auto rounds = static_cast<double>(state.iterations());
    const double count = rounds * static_cast<double>(statements.size());
    state.counters["statements"] = benchmark::Counter(count, benchmark::Counter::kIsRate);
    state.counters["time/statement"] =
        benchmark::Counter(count, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    state.counters["allocations"] = static_cast<double>(allocations - before) / count;
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(size_of(statements)));
}

void measure_rendering(benchmark::State &state, const std::vector<std::string> &statements,
                       const quillet_builder_info &info) {
    std::vector<node_main *> trees;
    for (const std::string &statement : statements) {
        if (quillet_parse(statement.c_str()) != QUILLET_PARSE_ACCEPTED)
            std::abort();
        trees.push_back(std::exchange(root, nullptr));
    }
    std::size_t next = 0;
    measure(state, statements, [&](const std::string &) {
        builder *self = info.constructor();
        render(self, trees[next++ % trees.size()]);
        quillet_builder_free(self);
    });
    for (node_main *tree : trees)
        quillet_node_main_free(tree);
}

template <class Shape> void register_growth(const Shape &grown, const std::vector<int> &sizes) {
    for (const char *builder : {"postgresql", "mysql"})
        for (const int size : sizes) {
            const std::vector<std::string> statement = {statement_of(grown, size)};
            const int id = quillet_get_builder_id(builder);
            benchmark::RegisterBenchmark(
                (std::string("growth/") + builder + '/' + grown.name + '/' + std::to_string(size))
                    .c_str(),
                [=](benchmark::State &state) {
                    measure(state, statement,
                            [&](const std::string &text) { translate(text, id); });
                    state.counters["time/member"] = benchmark::Counter(
                        static_cast<double>(state.iterations()) * size,
                        benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
                });
        }
}

// The classic call reports an error of the syntax where the figures go, so it is left out there.
void register_failures(const std::vector<std::string> &statements) {
    const int mysql = quillet_get_builder_id("mysql");
    const std::vector<std::string> refused = read_statements(REFUSED);
    benchmark::RegisterBenchmark("translate/refused", [=](benchmark::State &state) {
        measure(state, refused, [=](const std::string &text) {
            translate(text, mysql, QUILLET_CAN_NOT_TRANSLATE);
        });
    });
    benchmark::RegisterBenchmark("quillet_translate/refused", [=](benchmark::State &state) {
        measure(state, refused, [=](const std::string &text) {
            translate_freely(text, mysql, QUILLET_CAN_NOT_TRANSLATE);
        });
    });
    std::vector<std::string> misspelt = statements;
    for (std::string &statement : misspelt)
        statement += " )";
    benchmark::RegisterBenchmark("quillet_translate/misspelt", [=](benchmark::State &state) {
        measure(state, misspelt, [=](const std::string &text) {
            translate_freely(text, mysql, QUILLET_INVALID_QUERY);
        });
    });
}

void register_benchmarks() {
    static const std::vector<std::string> statements = read_statements(STATEMENTS);
    benchmark::RegisterBenchmark("scan", [](benchmark::State &state) {
        measure(state, statements, scan);
        yy_quillet_lex_destroy();
    });
    benchmark::RegisterBenchmark(
        "parse", [](benchmark::State &state) { measure(state, statements, parse); });
    for (int id = 0; id < quillet_get_builder_count(); ++id) {
        const quillet_builder_info &info = *quillet_get_builder_info(id);
        const std::string name = info.builder_name;
        benchmark::RegisterBenchmark(("render/" + name).c_str(), [&](benchmark::State &state) {
            measure_rendering(state, statements, info);
        });
        benchmark::RegisterBenchmark(("translate/" + name).c_str(), [=](benchmark::State &state) {
            measure(state, statements, [&](const std::string &text) { translate(text, id); });
        });
        benchmark::RegisterBenchmark(
            ("quillet_translate/remarks/" + name).c_str(), [=](benchmark::State &state) {
                measure(state, statements, [&](const std::string &text) {
                    translate_freely(text, id, QUILLET_SUCCESS, QUILLET_NOTE);
                });
            });
        benchmark::RegisterBenchmark(
            ("quillet_translate/" + name).c_str(), [=](benchmark::State &state) {
                measure(state, statements,
                        [&](const std::string &text) { translate_freely(text, id); });
            });
    }
    register_failures(statements);
    for (const shape &grown : lists_and_chains)
        register_growth(grown, {100, 1000, 10000, 100000});
    for (const nest &nested : nests)
        register_growth(nested, {20, 200, 2000});
}

} // namespace

int main(int argc, char **argv) {
    quillet_init();
    register_benchmarks();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return EXIT_FAILURE;
    benchmark::RunSpecifiedBenchmarks();
}
