// The training statements are what their files say: else the optimised build would learn the wrong
// thing.

#include <gtest/gtest.h>

#include <string>

#include "../bench/corpus.h"
#include "quillet.hpp"

namespace {

constexpr quillet::target targets[] = {quillet::target::postgresql, quillet::target::mysql,
                                       quillet::target::tree, quillet::target::type_view};

std::vector<std::string> statements_of(const char *file) {
    return quillet_bench::read_statements((std::string(TRAINING_DIRECTORY "/") + file).c_str());
}

TEST(Training, StatementsAreTranslatedByEachBuilder) {
    const auto statements = statements_of("statements.sql");
    EXPECT_GE(statements.size(), 150U);
    for (const std::string &statement : statements)
        for (const quillet::target target : targets)
            EXPECT_TRUE(quillet::translate(statement, target)) << statement;
}

TEST(Training, RefusedOnesAreRefusedByMysqlAlone) {
    for (const std::string &statement : statements_of("refused.sql")) {
        EXPECT_TRUE(quillet::translate(statement, quillet::target::postgresql)) << statement;
        EXPECT_EQ(quillet::translate(statement, quillet::target::mysql).code(),
                  QUILLET_CAN_NOT_TRANSLATE)
            << statement;
    }
}

TEST(Training, MistakenOnesAreNotUnderstood) {
    for (const std::string &statement : statements_of("mistaken.sql"))
        for (const quillet::target target : targets)
            EXPECT_EQ(quillet::translate(statement, target).code(), QUILLET_INVALID_QUERY)
                << statement;
}

} // namespace
