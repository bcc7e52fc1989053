// The front-end as a program: arguments and standard input in, standard output and exit status out.
// A new case is a row of one of the tables below.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ostream>
#include <string>
#include <vector>

namespace {

using testing::AllOf;
using testing::EndsWith;
using testing::Matcher;
using testing::ResultOf;
using testing::StartsWith;

struct front_end_case {
    std::string name;
    std::vector<std::string> arguments;
    Matcher<std::string> output = testing::_;
    int status = EXIT_SUCCESS;
    std::string input{};
    bool input_stays_open = false; // the end of the input never comes
};

void PrintTo(const front_end_case &tested, std::ostream *out) {
    *out << "quillet";
    constexpr std::size_t most_shown = 60;
    for (const std::string &argument : tested.arguments)
        *out << " '" << argument.substr(0, most_shown) << "'";
}

// Where standard output goes.
enum class sink { text, full_device, closed };

struct outcome {
    std::string output;
    std::string errors;
    int status = -1; // -1: ended by a signal
};

std::string read_from_start(std::FILE *file) {
    std::string text;
    std::rewind(file);
    for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file))
        text.push_back(static_cast<char>(c));
    std::fclose(file);
    return text;
}

[[noreturn]] void become_front_end(const front_end_case &tested, int input, int output, int errors,
                                   sink where) {
    constexpr unsigned longest_run = 60; // seconds, after which SIGALRM ends the program
    std::string program = FRONT_END;
    std::vector<std::string> texts = tested.arguments;
    std::vector<char *> arguments{program.data()};
    for (std::string &text : texts)
        arguments.push_back(text.data());
    arguments.push_back(nullptr);
    dup2(input, STDIN_FILENO);
    dup2(where == sink::full_device ? open("/dev/full", O_WRONLY) : output, STDOUT_FILENO);
    if (where == sink::closed)
        close(STDOUT_FILENO);
    dup2(errors, STDERR_FILENO);
    alarm(longest_run);
    execv(program.c_str(), arguments.data());
    _exit(127);
}

outcome run_front_end(const front_end_case &tested, sink where = sink::text) {
    // A pipe holds more than any input here, so that it can be written in advance.
    int input[2];
    EXPECT_EQ(pipe2(input, O_CLOEXEC), 0);
    const auto written = write(input[1], tested.input.data(), tested.input.size());
    EXPECT_EQ(written, static_cast<ssize_t>(tested.input.size()));
    if (!tested.input_stays_open)
        close(input[1]);
    std::FILE *output = std::tmpfile();
    std::FILE *errors = std::tmpfile();

    const pid_t child = fork();
    if (child == 0)
        become_front_end(tested, input[0], fileno(output), fileno(errors), where);
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);

    if (tested.input_stays_open)
        close(input[1]);
    close(input[0]);
    outcome result;
    result.output = read_from_start(output);
    result.errors = read_from_start(errors);
    if (WIFEXITED(status))
        result.status = WEXITSTATUS(status);
    return result;
}

std::string name_of(const testing::TestParamInfo<front_end_case> &info) { return info.param.name; }

// Output.

std::ptrdiff_t count_lines(const std::string &text) {
    return std::count(text.begin(), text.end(), '\n');
}

// Seven lines: the second and the third are notices, the seventh is empty.
Matcher<std::string> is_usage() {
    return AllOf(StartsWith("QUILLET - simple front-end for quillet\n"),
                 EndsWith("\n\nUsage:\nquillet [--postgresql|--mysql|--type_view] [<query>|-]\n\n"),
                 ResultOf(count_lines, 7));
}

constexpr const char *no_such_builder = "Error: no such builder\n";
constexpr const char *syntax_error = "Error: syntax error\nError: invalid query\n";
constexpr const char *thanks = "Thank you for using quillet!\n";

// Queries.

const std::string refused_by_mysql = "select a similar to 'b'";

std::string in_parentheses(int depth, const std::string &expression) {
    const auto count = static_cast<std::size_t>(depth);
    return std::string(count, '(') + expression + std::string(count, ')');
}

// "select 1" in a line of length characters; the newline is one more.
std::string select_1_in_line(std::size_t length) {
    std::string line = "select 1";
    line.resize(length, ' ');
    return line + "\n";
}

// "select 1" and lines of blanks, newlines included length characters in total.
std::string select_1_in_lines(std::size_t length) {
    constexpr std::size_t longest_line = 254;
    std::string query = "select 1\n";
    while (query.size() < length) {
        query += std::string(std::min(length - query.size() - 1, longest_line), ' ') + "\n";
    }
    return query;
}

// One query on the command line.
std::vector<front_end_case> argument_cases() {
    return {
        // The option and the query.
        {"NoArgument", {}, is_usage(), EXIT_FAILURE},
        {"OnlyAnOption", {"--mysql"}, is_usage(), EXIT_FAILURE},
        {"DefaultIsPostgresql", {"select 1"}, "SELECT 1\n"},
        {"Postgresql", {"--postgresql", "select 1"}, "SELECT 1\n"},
        {"MysqlInOtherLetterCase", {"--MYSQL", "select 1"}, "SELECT 1\n"},
        {"TypeView", {"--type_view", "select 1"}, "SELECT INT8 ( 1 ) \n"},
        {"TypeViewInOtherLetterCase", {"--Type_VIEW", "select 1"}, "SELECT INT8 ( 1 ) \n"},
        {"NoSuchBuilder", {"--nosuch", "select 1"}, no_such_builder, EXIT_FAILURE},
        {"NoSuchBuilderWithoutQuery", {"--nosuch"}, no_such_builder, EXIT_FAILURE},
        {"NoSuchBuilderBeforeStandardInput", {"--nosuch", "-"}, no_such_builder, EXIT_FAILURE},
        {"BuilderNameIsNotCutShort", {"--mysq", "select 1"}, no_such_builder, EXIT_FAILURE},
        {"ThreeDashesNameABuilder", {"---", "select 1"}, no_such_builder, EXIT_FAILURE},
        {"OneDashIsNoOption", {"-mysql", "select 1"}, syntax_error, EXIT_FAILURE},
        {"TwoDashesAreAQuery", {"--", "select 1"}, syntax_error, EXIT_FAILURE},
        {"TwoDashesBehindAnOptionAreAQuery", {"--tree", "--"}, syntax_error, EXIT_FAILURE},
        {"OnlyTheFirstArgumentIsAnOption", {"select 1", "--nosuch"}, "SELECT 1\n"},
        {"OptionBehindAnOptionIsAQuery", {"--tree", "--mysql"}, syntax_error, EXIT_FAILURE},
        {"ExtraArgumentsAreIgnored", {"--type_view", "select 1", "x"}, "SELECT INT8 ( 1 ) \n"},

        // The text ends in a newline of its own and gets another one.
        {"Tree",
         {"--tree", "select a from t"},
         "main [0]\n"
         "  select [0]\n"
         "    distinct_select_list [0]\n"
         "      select_list [0]\n"
         "        select_item [0]\n"
         "          expression [0]\n"
         "            column_reference [0]\n"
         "              identifier [0]\n"
         "    tables [0]\n"
         "      tables_list [0]\n"
         "        table [0]\n"
         "          identifier [0]\n"
         "\n"},

        // Failures.
        {"EmptyQuery", {""}, syntax_error, EXIT_FAILURE},
        {"EmptyQueryBehindAnOption", {"--type_view", ""}, syntax_error, EXIT_FAILURE},
        {"BlankQuery", {" \t\n"}, syntax_error, EXIT_FAILURE},
        {"SyntaxError", {"select from"}, syntax_error, EXIT_FAILURE},
        {"UnknownCharacter", {"select ?"}, "Unknow character\n"},
        {"UnfinishedString", {"select 'abc"}, "Unknow character\n"},
        {"SyntaxErrorBeforeUnknownCharacter", {"select from ?"}, syntax_error, EXIT_FAILURE},
        {"NestedTooDeeply",
         {"select " + in_parentheses(9996, "1")},
         "Error: parser stack overflow\nError: can not translate\n",
         EXIT_FAILURE},
        {"RefusalGivesTheReason",
         {"--MYSQL", refused_by_mysql},
         "Error: can not translate\nSIMILAR TO operator not implemented in MySQL backend\n",
         EXIT_FAILURE},

        {"NewlineInACommentIsEchoed", {"/*\n*/ select 1"}, "\nSELECT 1\n"},

        // Any bytes, and as many as the system lets an argument have.
        {"BytesInAString", {"select '\x01\x80\xfe\xff'"}, "SELECT '\x01\x80\xfe\xff'\n"},
        {"ByteOutsideAString", {"select \xff"}, "Unknow character\n"},
        {"ControlCharacter", {"select \x01"}, "Unknow character\n"},
        {"LongestArgument",
         {"select '" + std::string(131062, 'x') + "'"},
         "SELECT '" + std::string(131062, 'x') + "'\n"},
    };
}

// Queries on standard input.
std::vector<front_end_case> input_cases() {
    const auto reads = [](const char *name, const std::string &input,
                          const Matcher<std::string> &output, int status = EXIT_SUCCESS) {
        return front_end_case{name, {"-"}, output, status, input};
    };
    const auto ends_by_itself = [](const char *name, const std::string &input,
                                   const Matcher<std::string> &output, int status = EXIT_SUCCESS) {
        return front_end_case{name, {"-"}, output, status, input, true};
    };
    const std::string select_1 = "SELECT 1\n";
    return {
        // Blank lines.
        ends_by_itself("EmptyQuery", "\n", thanks),
        ends_by_itself("OneQuery", "select 1\n\n\n", select_1 + thanks),
        ends_by_itself("TwoQueries", "select 1\n\nselect 2\n\n\n",
                       select_1 + "SELECT 2\n" + thanks),
        reads("NothingIsReadBehindTheEmptyQuery", "\nselect 1\n\n\n", thanks),
        reads("ALineOfABlankIsNotBlank", "select 1\n \n, 2\n\n\n",
              "SELECT 1, 2\n" + std::string(thanks)),
        reads("LinesKeepTheirNewlines", "select 1 -- one\n, 'a\nb'\n\n\n",
              "SELECT 1, 'a\nb'\n" + std::string(thanks)),

        // The end of the input counts as a blank line.
        reads("EndAtOnce", "", thanks),
        reads("EndInALine", "select 1", select_1 + thanks),
        reads("EndBehindALine", "select 1\n", select_1 + thanks),
        reads("EndBehindAQuery", "select 1\n\n", select_1 + thanks),
        reads("EndInTheSecondQuery", "select 1\n\nselect 2", select_1 + "SELECT 2\n" + thanks),
        reads("EndInAFailingQuery", "select", syntax_error, EXIT_FAILURE),

        // A line is read in pieces of up to 255 characters, and a newline alone is a blank line.
        reads("LineOf254Characters", select_1_in_line(254) + ", 2\n\n\n",
              "SELECT 1, 2\n" + std::string(thanks)),
        reads("LineOf255Characters", select_1_in_line(255) + "select 2\n\n\n",
              select_1 + "SELECT 2\n" + thanks),
        reads("LineOf256Characters", select_1_in_line(256) + ", 2\n\n\n",
              "SELECT 1, 2\n" + std::string(thanks)),
        reads("PiecesAreJoinedAsTheyAre", "select " + std::string(1000, 'a') + "\n\n\n",
              "SELECT " + std::string(1000, 'a') + "\n" + thanks),

        // The size of a query.
        reads("QueryOf4095Characters", select_1_in_lines(4095) + "\n\n", select_1 + thanks),
        reads("QueryOf4095CharactersAndTheEnd", select_1_in_lines(4095), select_1 + thanks),
        reads("EveryQueryHasItsOwnSize",
              select_1_in_lines(4095) + "\n" + select_1_in_lines(4095) + "\n\n",
              select_1 + select_1 + thanks),
        ends_by_itself("QueryOf4096Characters", select_1_in_lines(4096), "Query too long\n",
                       EXIT_FAILURE),
        ends_by_itself("SecondQueryTooLong", "select 1\n\n" + select_1_in_lines(4096),
                       select_1 + "Query too long\n", EXIT_FAILURE),
        reads("OneLineTooLong", "select " + std::string(5000, 'a') + "\n\n\n", "Query too long\n",
              EXIT_FAILURE),

        // Any bytes; a NUL hides the rest of its line.
        reads("BytesInAString", "select '\x80\xff'\n\n\n",
              "SELECT '\x80\xff'\n" + std::string(thanks)),
        reads("Nul", std::string("select 1\0?\n, 2\n\n\n", 17),
              "SELECT 1, 2\n" + std::string(thanks)),
        reads("NulAlone", std::string("\0\n\n", 3), thanks),

        // A failure ends the run.
        ends_by_itself("SyntaxError", "nosuch\n\n", syntax_error, EXIT_FAILURE),
        reads("NothingIsReadBehindAFailure", "select 1\n\nnosuch\n\nselect 2\n\n\n",
              select_1 + syntax_error, EXIT_FAILURE),
        ends_by_itself("UnknownCharacter", "select 1\n\nselect ?\n\n",
                       select_1 + "Unknow character\n"),

        // The builder.
        {"Builder",
         {"--type_view", "-"},
         "SELECT INT8 ( 1 ) \n" + std::string(thanks),
         EXIT_SUCCESS,
         "select 1\n\n\n"},
        {"ExtraArgumentsAreIgnored", {"-", "--nosuch"}, thanks, EXIT_SUCCESS, "\n"},
        {"RefusalGivesNoReason",
         {"--mysql", "-"},
         "Error: can not translate\n",
         EXIT_FAILURE,
         refused_by_mysql + "\n\n"},
    };
}

// What succeeds but for the output that cannot be written.
std::vector<front_end_case> writing_cases() {
    std::string many;
    for (int i = 0; i < 2000; ++i)
        many += "select 1\n\n";
    return {
        {"Translation", {"select 1"}},
        {"Tree", {"--tree", "select a from t"}},
        {"LongTranslation", {"--tree", "select " + in_parentheses(500, "1")}},
        {"EmptyInput", {"-"}},
        {.name = "Queries", .arguments = {"-"}, .input = many + "\n"},
    };
}

class FrontEnd : public testing::TestWithParam<front_end_case> {};
class FrontEndWriting : public testing::TestWithParam<front_end_case> {};

TEST_P(FrontEnd, Translates) {
    const outcome result = run_front_end(GetParam());
    EXPECT_THAT(result.output, GetParam().output);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.status, GetParam().status);
}

TEST(FrontEndInput, MayEndAnywhere) {
    const std::string input =
        "select 1 -- one\n, 'a\nb'\n\nselect /* x\n*/ \"c\" !~~* 1.5e-5\n\n\n";
    for (std::size_t size = 0; size <= input.size(); ++size) {
        const outcome result =
            run_front_end({.name = "Input", .arguments = {"-"}, .input = input.substr(0, size)});
        EXPECT_THAT(result.status, testing::AnyOf(EXIT_SUCCESS, EXIT_FAILURE)) << size;
        EXPECT_EQ(result.errors, "") << size;
    }
}

TEST_P(FrontEndWriting, SucceedsWithAWorkingOutput) {
    EXPECT_EQ(run_front_end(GetParam()).status, EXIT_SUCCESS);
}

TEST_P(FrontEndWriting, FailsOnAFullDevice) {
    EXPECT_EQ(run_front_end(GetParam(), sink::full_device).status, EXIT_FAILURE);
}

TEST_P(FrontEndWriting, FailsOnAClosedOutput) {
    EXPECT_EQ(run_front_end(GetParam(), sink::closed).status, EXIT_FAILURE);
}

INSTANTIATE_TEST_SUITE_P(Argument, FrontEnd, testing::ValuesIn(argument_cases()), name_of);
INSTANTIATE_TEST_SUITE_P(Input, FrontEnd, testing::ValuesIn(input_cases()), name_of);
INSTANTIATE_TEST_SUITE_P(Output, FrontEndWriting, testing::ValuesIn(writing_cases()), name_of);

} // namespace
