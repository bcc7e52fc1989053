#include "quillet.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

#include "quillet_globals.h"
#include "quillet_mysql_builder.h"
#include "quillet_postgresql_builder.h"
#include "quillet_tree_view_builder.h"
#include "quillet_type_view_builder.h"
#include "support.h"

using namespace quillet_tests;

namespace {

struct builder_case {
    quillet_builder_info *info;
    quillet_builder_info *(*get_info)();
    const char *name;
    const char *description;
    builder *(*constructor)();
    std::int32_t (*get_error_code)();
    const char *(*get_error_description)();
};

// By id.
const builder_case builders[] = {
    {&quillet_postgresql_builder_info, quillet_postgresql_builder_get_info, "postgresql",
     "outputs prosgresql statement", quillet_postgresql_builder_create, nullptr, nullptr},
    {&quillet_mysql_builder_info, quillet_mysql_builder_get_info, "mysql",
     "outputs mysql statement", quillet_mysql_builder_create, quillet_mysql_get_error_code,
     quillet_mysql_get_error_description},
    {&quillet_tree_view_builder_info, quillet_tree_view_builder_get_info, "tree",
     "outputs tree view of parse tree", quillet_tree_view_builder_create, nullptr, nullptr},
    {&quillet_type_view_builder_info, quillet_type_view_builder_get_info, "type_view",
     "outputs postgresql statement with debug information about types",
     quillet_type_view_builder_create, nullptr, nullptr},
};

enum { postgresql, mysql, tree, type_view };

// A translation, with what was printed.
struct translation {
    int code = 0;
    std::string text; // "(untouched)" if there is none
    std::string printed;
};

translation translate(const std::string &statement, int builder_id) {
    const going_on guard;
    reset_scanner();
    char untouched[] = "(untouched)";
    char *output = untouched;
    translation result;
    testing::internal::CaptureStdout();
    result.code = quillet_translate_query(statement.c_str(), &output, builder_id);
    result.printed = testing::internal::GetCapturedStdout();
    result.text = output;
    if (output != untouched)
        std::free(output);
    return result;
}

class Quillet : public testing::Test {
protected:
    void SetUp() override { quillet_init(); }
    void TearDown() override { quillet_done(); }
};

TEST_F(Quillet, Registry) {
    EXPECT_EQ(quillet_get_builder_count(), 4);
    for (int id = 0; id < 4; ++id) {
        const builder_case &expected = builders[id];
        quillet_builder_info *info = quillet_get_builder_info(id);
        EXPECT_EQ(info, expected.info);
        EXPECT_EQ(expected.get_info(), expected.info);
        EXPECT_EQ(quillet_builders[id], expected.info);
        EXPECT_STREQ(info->builder_name, expected.name);
        EXPECT_STREQ(info->builder_description, expected.description);
        EXPECT_EQ(info->builder_id, id);
        EXPECT_EQ(info->constructor, expected.constructor);
        EXPECT_EQ(info->get_error_code, expected.get_error_code);
        EXPECT_EQ(info->get_error_description, expected.get_error_description);
    }
}

TEST_F(Quillet, ConstructorsMakeBuildersOfTheirOwn) {
    for (const builder_case &expected : builders) {
        const owned<builder> one(expected.constructor());
        const owned<builder> other(expected.constructor());
        EXPECT_NE(one.get(), other.get()) << expected.name;
        EXPECT_NE(one->build_main, nullptr) << expected.name;
    }
}

TEST_F(Quillet, InitWritesTheIds) {
    for (int id = 0; id < 4; ++id)
        builders[id].info->builder_id = -7;
    quillet_init();
    quillet_init();
    for (int id = 0; id < 4; ++id) {
        EXPECT_EQ(builders[id].info->builder_id, id);
        EXPECT_EQ(quillet_get_builder_info(id), builders[id].info);
    }
}

TEST_F(Quillet, NoBuilderHasAnotherId) {
    for (const int id : {-2147483647 - 1, -2, -1, 4, 5, 7, 2147483647})
        EXPECT_EQ(quillet_get_builder_info(id), nullptr) << id;
}

struct name_case {
    const char *name;
    int id;
};

TEST_F(Quillet, IdsByName) {
    constexpr name_case cases[] = {
        {"postgresql", 0},
        {"mysql", 1},
        {"tree", 2},
        {"type_view", 3},
        {"POSTGRESQL", 0},
        {"MySQL", 1},
        {"Tree", 2},
        {"TYPE_VIEW", 3},
        {"PostgreSql", 0},
        {"mYsQl", 1},
        {"tREE", 2},
        {"Type_View", 3},
        {"", -1},
        {"postgres", -1},
        {"mysql ", -1},
        {" mysql", -1},
        {"mysq", -1},
        {"mysqll", -1},
        {"typeview", -1},
        {"type-view", -1},
        {"0", -1},
        {"trees", -1},
        {"--mysql", -1},
        {"my\0sql", -1},
        {"TYPE\x7fVIEW", -1},
    };
    for (const auto &[name, id] : cases)
        EXPECT_EQ(quillet_get_builder_id(name), id) << name;
}

TEST_F(Quillet, Globals) {
    static_assert(std::is_same_v<decltype(error_code), std::int32_t>);
    static_assert(std::is_same_v<decltype(last_builder_id), std::int32_t>);
    static_assert(std::is_same_v<decltype(root), node_main *>);
    EXPECT_STREQ(error_descriptions[0], "");
    EXPECT_STREQ(error_descriptions[1], "no such builder");
    EXPECT_STREQ(error_descriptions[2], "invalid query");
    EXPECT_STREQ(error_descriptions[3], "can not translate");
}

TEST_F(Quillet, Descriptions) {
    constexpr struct {
        int code;
        const char *description;
    } cases[] = {
        {0, ""},
        {-1, "no such builder"},
        {-2, "invalid query"},
        {-3, "can not translate"},
        {-4, ""},
        {-5, ""},
        {-100, ""},
        {1, ""},
        {2, ""},
        {2147483647, ""},
        {-2147483647 - 1, ""},
    };
    for (const auto &[code, description] : cases) {
        error_code = code;
        EXPECT_STREQ(quillet_get_error_description(), description) << code;
    }
}

struct translation_case {
    const char *statement;
    int builder_id;
    const char *text;
};

TEST_F(Quillet, Translations) {
    constexpr translation_case cases[] = {
        {"select 1", postgresql, "SELECT 1"},
        {"select 1", mysql, "SELECT 1"},
        {"select 1", type_view, "SELECT INT8 ( 1 ) "},
        {"select 1", tree,
         "main [0]\n  select [0]\n    distinct_select_list [0]\n      select_list [0]\n"
         "        select_item [0]\n          expression [0]\n            const_generic [0]\n"
         "              const_integer [0]\n0\n"},
        {"delete from t;", postgresql, "DELETE FROM t"},
        {"update t set a = 1 where b", postgresql, "UPDATE t SET a = 1 WHERE b"},
        {"insert into t (a, b) values (1, default)", postgresql,
         "INSERT INTO t (a, b) VALUES (1, DEFAULT)"},
        {"insert into t values default values", tree,
         "main [0]\n  insert [0]\n    table [0]\n      identifier [0]\n    values_list [0]\n"},
    };
    for (const auto &[statement, builder_id, text] : cases) {
        error_code = -3;
        const translation result = translate(statement, builder_id);
        EXPECT_EQ(result.code, 0) << statement;
        EXPECT_EQ(result.text, text) << statement;
        EXPECT_EQ(result.printed, "") << statement;
        EXPECT_EQ(error_code, 0);
        EXPECT_EQ(last_builder_id, builder_id);
        EXPECT_EQ(root, nullptr);
        EXPECT_STREQ(quillet_get_error_description(), "");
    }
}

struct failure_case {
    const char *statement;
    int builder_id;
    int code;
    const char *printed;
};

TEST_F(Quillet, Failures) {
    constexpr failure_case cases[] = {
        {"select 1", 4, -1, ""},
        {"select 1", 7, -1, ""},
        {"select 1", -1, -1, ""},
        {"not parsed at all ?", 7, -1, ""},
        {"select", postgresql, -2, "Error: syntax error\n"},
        {"", mysql, -2, "Error: syntax error\n"},
        {"select 1 from", tree, -2, "Error: syntax error\n"},
        {"nothing", type_view, -2, "Error: syntax error\n"},
        // the builder's own
        {"insert into t values default values", postgresql, -2, ""},
        {"insert into t (a, b) values (1)", postgresql, -2, ""},
        {"insert into t (a) values (1, 2)", type_view, -2, ""},
        {"select time '1' at local zone 'UTC'", postgresql, -2, ""},
        {"select f(1 + (time '1' at local zone 'UTC')) from t where a", type_view, -2, ""},
    };
    const char *const descriptions[] = {"", "no such builder", "invalid query",
                                        "can not translate"};
    for (const auto &[statement, builder_id, code, printed] : cases) {
        const translation result = translate(statement, builder_id);
        EXPECT_EQ(result.code, code) << statement;
        EXPECT_EQ(result.text, "(untouched)") << statement;
        EXPECT_EQ(result.printed, printed) << statement;
        EXPECT_EQ(error_code, code);
        EXPECT_EQ(last_builder_id, builder_id);
        EXPECT_EQ(root, nullptr);
        EXPECT_STREQ(quillet_get_error_description(), descriptions[-code]);
    }
}

std::string nested(std::size_t parentheses) {
    return "select " + std::string(parentheses, '(') + '1' + std::string(parentheses, ')');
}

TEST_F(Quillet, AStatementMayBeTooDeep) {
    EXPECT_EQ(translate(nested(9995), tree).code, 0);
    const translation result = translate(nested(9996), tree);
    EXPECT_EQ(result.code, -3);
    EXPECT_EQ(result.text, "(untouched)");
    EXPECT_EQ(result.printed, "Error: parser stack overflow\n");
    EXPECT_STREQ(quillet_get_error_description(), "can not translate");
    EXPECT_EQ(translate("select 1", postgresql).text, "SELECT 1");
}

TEST_F(Quillet, DetailsComeFromTheBuilderOfTheLastTranslation) {
    translate("select 1", 7);
    EXPECT_EQ(quillet_get_detailed_error_code(), 0);
    EXPECT_EQ(quillet_get_detailed_error_description(), nullptr);
    translate("select 1", -1);
    EXPECT_EQ(quillet_get_detailed_error_code(), 0);
    EXPECT_EQ(quillet_get_detailed_error_description(), nullptr);
    for (const int id : {postgresql, tree, type_view}) {
        translate("select", id);
        EXPECT_EQ(quillet_get_detailed_error_code(), 0) << id;
        EXPECT_EQ(quillet_get_detailed_error_description(), nullptr) << id;
    }
    translate("select 1", mysql);
    EXPECT_EQ(quillet_get_detailed_error_code(), quillet_mysql_get_error_code());
    EXPECT_STREQ(quillet_get_detailed_error_description(), quillet_mysql_get_error_description());
}

// A builder's reason stays for the rest of the process.
TEST_F(Quillet, DetailsOutliveASuccess) {
    const char *const reason = "LIMIT structure with only OFFSET is not supported in MySQL 4.1.13";
    const translation refused = translate("select * from t offset 5", mysql);
    EXPECT_EQ(refused.code, -3);
    EXPECT_EQ(refused.text, "(untouched)");
    EXPECT_STREQ(quillet_get_error_description(), "can not translate");
    EXPECT_EQ(quillet_get_detailed_error_code(), -27);
    EXPECT_STREQ(quillet_get_detailed_error_description(), reason);

    EXPECT_EQ(translate("select 1", mysql).code, 0);
    EXPECT_STREQ(quillet_get_error_description(), "");
    EXPECT_EQ(quillet_get_detailed_error_code(), -27);
    EXPECT_STREQ(quillet_get_detailed_error_description(), reason);

    EXPECT_EQ(translate("select 1", postgresql).code, 0);
    EXPECT_EQ(quillet_get_detailed_error_code(), 0);
    EXPECT_EQ(quillet_get_detailed_error_description(), nullptr);

    EXPECT_EQ(translate("select", mysql).code, -2);
    EXPECT_EQ(quillet_get_detailed_error_code(), -27);
}

// What no builder has seen leaves its reason as it was, whatever the code.
TEST_F(Quillet, DetailsOutliveAFailureOfTheParser) {
    const char *const reason = "LIMIT structure with only OFFSET is not supported in MySQL 4.1.13";
    const auto keep_the_reason = [reason] {
        EXPECT_EQ(quillet_get_detailed_error_code(), -27);
        EXPECT_STREQ(quillet_get_detailed_error_description(), reason);
    };
    EXPECT_EQ(translate("select * from t offset 5", mysql).code, -3);
    keep_the_reason();

    EXPECT_EQ(translate("select from", mysql).code, -2);
    EXPECT_STREQ(quillet_get_error_description(), "invalid query");
    keep_the_reason();

    EXPECT_EQ(translate(nested(9996), mysql).code, -3);
    keep_the_reason();

    EXPECT_EQ(translate("select a !", mysql).code, -3);
    EXPECT_EQ(quillet_get_detailed_error_code(), -2);
}

// Builders of a test's own, in the place of one of the library's.

build_result *main_of_success(builder *, node_main *, void *) {
    return quillet_build_result_create();
}

build_result *main_of_failure(builder *, node_main *, void *) {
    build_result *result = quillet_build_result_create();
    result->query = copy("dropped");
    result->build_result = -42;
    return result;
}

node_main *rendered_tree = nullptr;
void *rendered_data = nullptr;

build_result *main_that_looks(builder *self, node_main *node, void *data) {
    rendered_tree = node == root ? node : nullptr;
    rendered_data = data;
    return quillet_main_default_builder(self, node, data);
}

int constructed = 0;
build_result *(*installed_main)(builder *, node_main *, void *) = nullptr;

builder *with_installed_main() {
    ++constructed;
    builder *self = quillet_default_builder_create();
    self->parent = quillet_default_builder_create();
    self->build_main = installed_main;
    return self;
}

// Puts a builder with this operation into the registry's first place for a while.
class installed {
public:
    explicit installed(build_result *(*operation)(builder *, node_main *, void *)) {
        installed_main = operation;
        constructed = 0;
        quillet_postgresql_builder_info.constructor = with_installed_main;
    }
    ~installed() {
        quillet_postgresql_builder_info.constructor = quillet_postgresql_builder_create;
    }
    installed(const installed &) = delete;
    installed &operator=(const installed &) = delete;
};

TEST_F(Quillet, RendersRootWithoutData) {
    const installed place(main_that_looks);
    rendered_data = &rendered_tree;
    EXPECT_EQ(translate("select 1", postgresql).text, "SELECT 1");
    EXPECT_NE(rendered_tree, nullptr);
    EXPECT_EQ(rendered_data, nullptr);
    EXPECT_EQ(constructed, 1);
    EXPECT_EQ(root, nullptr);
}

TEST_F(Quillet, ABuilderWithoutARecordCanNotTranslate) {
    const installed place(nullptr);
    const translation result = translate("select 1", postgresql);
    EXPECT_EQ(result.code, -3);
    EXPECT_EQ(result.text, "(untouched)");
    EXPECT_EQ(error_code, -3);
    EXPECT_EQ(root, nullptr);
}

TEST_F(Quillet, ABuilderMaySucceedWithoutAText) {
    const installed place(main_of_success);
    const translation result = translate("select 1", postgresql);
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.text, "(untouched)");
    EXPECT_EQ(error_code, 0);
    EXPECT_EQ(root, nullptr);
}

TEST_F(Quillet, ABuildersCodePassesThrough) {
    const installed place(main_of_failure);
    const translation result = translate("select 1", postgresql);
    EXPECT_EQ(result.code, -42);
    EXPECT_EQ(result.text, "(untouched)");
    EXPECT_EQ(error_code, -42);
    EXPECT_STREQ(quillet_get_error_description(), "");
    EXPECT_EQ(root, nullptr);
}

TEST_F(Quillet, NoBuilderIsMadeForAnInvalidQuery) {
    const installed place(main_that_looks);
    EXPECT_EQ(translate("select", postgresql).code, -2);
    EXPECT_EQ(translate("select 1", 9).code, -1);
    EXPECT_EQ(constructed, 0);
}

TEST_F(Quillet, OneTranslationAfterTheOther) {
    for (int round = 0; round < 50; ++round) {
        EXPECT_EQ(translate("select a || b from t", postgresql).text, "SELECT a || b FROM t");
        EXPECT_EQ(translate("select", tree).code, -2);
        EXPECT_EQ(translate("select 1 + 2.5", type_view).text,
                  "SELECT FLOAT8 ( INT8 ( 1 )  + FLOAT8 ( 2.5 )  ) ");
        EXPECT_EQ(translate("select 1", 4).code, -1);
    }
    EXPECT_STREQ(quillet_get_error_description(), "no such builder");
}

TEST_F(Quillet, AnOutputIsNewEachTime) {
    reset_scanner();
    char *first = nullptr;
    char *second = nullptr;
    ASSERT_EQ(quillet_translate_query("select 1", &first, postgresql), 0);
    ASSERT_EQ(quillet_translate_query("select 2", &second, postgresql), 0);
    EXPECT_EQ(taken(first), "SELECT 1");
    EXPECT_EQ(taken(second), "SELECT 2");
}

TEST_F(Quillet, DoneIsNoEnd) {
    quillet_done();
    quillet_done();
    EXPECT_EQ(translate("select 1", postgresql).code, 0);
}

} // namespace
