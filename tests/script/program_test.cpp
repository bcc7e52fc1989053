// quillet-script as a program: its options, files, terminals and what goes wrong with them.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "process.h"

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsSupersetOf;
using testing::MatchesRegex;
using testing::Not;
using testing::StartsWith;

const std::string summary_of_one =
    "1 statement: 1 translated (0 with warnings), 0 refused, 0 not understood, 0 copied\n";

TEST(Options, HelpNamesEachOption) {
    const process_result made = run({{"--help"}});
    EXPECT_EQ(made.status, 0);
    EXPECT_EQ(made.errors, "");
    for (const char *option :
         {"--to", "-o,--output", "--format", "--input", "--placeholders", "--placeholders-out",
          "--backslash-escapes", "--warn", "--no-warn", "--notes", "--strict", "--color",
          "--report", "--docs", "--list-ids", "--version", "--help"})
        EXPECT_THAT(made.output, HasSubstr(option));
}

TEST(Options, VersionIsOneLine) {
    const process_result made = run({{"--version"}});
    EXPECT_EQ(made.output, "quillet-script " VERSION "\n");
    EXPECT_EQ(made.status, 0);
}

std::vector<std::string> lines_of(const std::string &text) {
    std::vector<std::string> lines;
    std::istringstream from(text);
    for (std::string line; std::getline(from, line);)
        lines.push_back(line);
    return lines;
}

TEST(Options, ListIdsHasALineForEach) {
    const process_result made = run({{"--list-ids"}});
    EXPECT_EQ(made.status, 0);
    EXPECT_EQ(made.errors, "");
    EXPECT_THAT(
        lines_of(made.output),
        IsSupersetOf(
            {"copied\tnote\tcopied as it is: what is translated are SELECT, INSERT, UPDATE and "
             "DELETE",
             "not-utf8\twarning\tbytes that are no character of UTF-8",
             "syntax-error\terror\tdepends on the statement",
             "string-backslash\twarning\tMySQL takes a backslash in a string for an escape, "
             "PostgreSQL for itself",
             "text-form\tnote\ta truth value, a float or a time has another form as a text in "
             "MySQL",
             "misspelt-char\twarning\tthe type is written as CAHR, which PostgreSQL does not know",
             "refused-initcap\trefusal\tINITCAP function not implemented in MySQL backend"}));
}

TEST(Options, ListIdsHasWhatMayBeChosen) {
    const std::vector<std::string> lines = lines_of(run({{"--list-ids"}}).output);
    EXPECT_GT(lines.size(), 100);
    EXPECT_TRUE(std::is_sorted(lines.begin(), lines.end()));
    EXPECT_EQ(std::adjacent_find(lines.begin(), lines.end()), lines.end()) << "twice the same";
    for (const std::string &line : lines) {
        EXPECT_THAT(line, MatchesRegex("[a-z0-9-]+\t(note|warning|refusal|error)\t[^\t]+"));
        const std::string id = line.substr(0, line.find('\t'));
        EXPECT_EQ(run({{"--warn", id, "--no-warn", id}, "select 1"}).status, 0) << id;
    }
}

TEST(Options, ListIdsLooksAtNoFile) {
    const process_result made = run({{"--list-ids", "none.sql"}});
    EXPECT_EQ(made.status, 0);
    EXPECT_EQ(made.errors, "");
}

TEST(Options, ListIdsThatCannotBeWrittenIsSaid) {
    const process_result made = run({.arguments = {"--list-ids"}, .output = sink::full_device});
    EXPECT_EQ(made.status, 2);
    EXPECT_EQ(made.errors, "quillet-script: standard output: No space left on device\n");
}

TEST(Options, WrongOnesAreUsageErrors) {
    const std::vector<std::vector<std::string>> wrong{{"--no-such"},
                                                      {"--to", "oracle"},
                                                      {"--to"},
                                                      {"--format", "xml"},
                                                      {"--placeholders", "at"},
                                                      {"--placeholders-out", "auto"},
                                                      {"--color", "red"},
                                                      {"--input", "json", "--format", "sql"}};
    for (const auto &arguments : wrong) {
        const process_result made = run({arguments});
        EXPECT_EQ(made.status, 2) << arguments[0];
        EXPECT_EQ(made.output, "") << arguments[0];
        EXPECT_NE(made.errors, "") << arguments[0];
    }
}

TEST(Options, AnUnknownIdIsSaid) {
    const process_result made = run({{"--no-warn=text-from"}, "select 1"});
    EXPECT_EQ(made.status, 2);
    EXPECT_THAT(made.errors, HasSubstr("text-from"));
}

TEST(Files, StandardInputIsTheDefaultAndADash) {
    EXPECT_EQ(run({{}, "select 1"}).output, "SELECT 1;\n");
    EXPECT_EQ(run({{"-"}, "select 1"}).output, "SELECT 1;\n");
}

TEST(Files, AMissingOneIsSaid) {
    const scratch_directory scratch;
    scratch.write("a.sql", "select 1;\n");
    const process_result made =
        run({.arguments = {"a.sql", "none.sql"}, .directory = scratch.path()});
    EXPECT_EQ(made.status, 2);
    EXPECT_EQ(made.errors, "quillet-script: none.sql: No such file or directory\n");
}

TEST(Files, ADirectoryIsNone) {
    const process_result made = run({{"/"}});
    EXPECT_EQ(made.status, 2);
    EXPECT_EQ(made.errors, "quillet-script: /: Is a directory\n");
}

TEST(Files, Utf16IsSaid) {
    const process_result made = run({{}, std::string("\xff\xfes\0e\0", 6)});
    EXPECT_EQ(made.status, 2);
    EXPECT_EQ(made.errors, "quillet-script: <stdin>: is UTF-16; a script is UTF-8\n");
}

TEST(Output, IsWrittenToAFile) {
    const scratch_directory scratch;
    const process_result made =
        run({.arguments = {"-o", "out.sql"}, .input = "select 1;\n", .directory = scratch.path()});
    EXPECT_EQ(made.output, "");
    EXPECT_EQ(made.errors, summary_of_one);
    EXPECT_EQ(scratch.read("out.sql"), "SELECT 1;\n");
    EXPECT_THAT(scratch.names(), ElementsAre("out.sql"));
}

TEST(Output, MayBeTheInput) {
    const scratch_directory scratch;
    scratch.write("a.sql", "select 1;\n");
    run({.arguments = {"a.sql", "-o", "a.sql"}, .directory = scratch.path()});
    EXPECT_EQ(scratch.read("a.sql"), "SELECT 1;\n");
}

TEST(Output, KeepsTheModeOfAFile) {
    const scratch_directory scratch;
    const auto file = scratch.write("out.sql", "old");
    ::chmod(file.c_str(), 0640);
    run({.arguments = {"-o", "out.sql"}, .input = "select 1;\n", .directory = scratch.path()});
    struct stat about {};
    ::stat(file.c_str(), &about);
    EXPECT_EQ(about.st_mode & 07777U, 0640U);
}

TEST(Output, GoesThroughALink) {
    const scratch_directory scratch;
    scratch.write("real.sql", "old");
    std::filesystem::create_symlink("real.sql", scratch.path() / "link.sql");
    run({.arguments = {"-o", "link.sql"}, .input = "select 1;\n", .directory = scratch.path()});
    EXPECT_EQ(scratch.read("real.sql"), "SELECT 1;\n");
    EXPECT_TRUE(std::filesystem::is_symlink(scratch.path() / "link.sql"));
}

TEST(Output, StaysAsItWasIfTheRunFails) {
    const scratch_directory scratch;
    scratch.write("out.sql", "old");
    scratch.write("a.sql", "select 1;\n");
    const process_result made =
        run({.arguments = {"a.sql", "none.sql", "-o", "out.sql"}, .directory = scratch.path()});
    EXPECT_EQ(made.status, 2);
    EXPECT_EQ(scratch.read("out.sql"), "old");
    EXPECT_THAT(scratch.names(), ElementsAre("a.sql", "out.sql"));
}

TEST(Output, NeedsADirectory) {
    const process_result made = run({{"-o", "/no/such/out.sql"}, "select 1;\n"});
    EXPECT_EQ(made.status, 2);
    EXPECT_EQ(made.errors, "quillet-script: /no/such/out.sql: No such file or directory\n");
}

TEST(Output, AFullDiskIsSaid) {
    const process_result made =
        run({.arguments = {}, .input = "select 1;\n", .output = sink::full_device});
    EXPECT_EQ(made.status, 2);
    EXPECT_EQ(made.errors, "quillet-script: standard output: No space left on device\n");
    const process_result file = run({{"-o", "/dev/full"}, "select 1;\n"});
    EXPECT_EQ(file.status, 2);
    EXPECT_EQ(file.errors, "quillet-script: /dev/full: No space left on device\n");
}

TEST(Output, AClosedPipeIsSaid) {
    const process_result made =
        run({.arguments = {}, .input = "select 1;\n", .output = sink::closed_pipe});
    EXPECT_EQ(made.status, 2);
    EXPECT_EQ(made.errors, "quillet-script: standard output: Broken pipe\n");
}

TEST(Messages, HaveColoursOnATerminal) {
    const process asked{.arguments = {"--to", "mysql"},
                        .input = "select initcap(a)",
                        .environment = {"TERM=xterm", "NO_COLOR="},
                        .errors = sink::terminal};
    EXPECT_THAT(run(asked).errors, HasSubstr("\033[1;31mrefusal:\033[0m"));

    process without = asked;
    without.environment = {"TERM=xterm", "NO_COLOR=1"};
    EXPECT_THAT(run(without).errors, AllOf(HasSubstr("refusal: "), Not(HasSubstr("\033"))));
    without.environment = {"TERM=dumb", "NO_COLOR="};
    EXPECT_THAT(run(without).errors, Not(HasSubstr("\033")));
    without.environment = asked.environment;
    without.arguments = {"--color", "never"};
    EXPECT_THAT(run(without).errors, Not(HasSubstr("\033")));
}

// Progress is shown of what takes half a second: how much that is, the machine tells.
TEST(Messages, ComeWithProgressOnATerminal) {
    process asked{.arguments = {}, .input = {}, .errors = sink::terminal};
    process_result made;
    std::size_t count = 0;
    do {
        for (const std::size_t more = std::max<std::size_t>(count, 500'000), end = count + more;
             count < end; ++count)
            asked.input += "select a, b from t where c = 1;\n";
        made = run(asked);
    } while (made.errors.find(" statements, ") == std::string::npos && count < 16'000'000);
    EXPECT_THAT(made.errors, HasSubstr(" statements, "));
    EXPECT_THAT(made.errors, HasSubstr(" a second"));
    const std::string number = std::to_string(count);
    EXPECT_THAT(made.errors, EndsWith("\r\033[K" + number + " statements: " + number +
                                      " translated (0 with warnings), 0 refused, 0 not understood, "
                                      "0 copied\r\n"));

    process piped = asked;
    piped.errors = sink::text;
    EXPECT_THAT(run(piped).errors, StartsWith(number + " statements: "));
}

TEST(Messages, HaveNoProgressWhereTheOutputGoesToTheTerminalToo) {
    std::string script;
    for (int i = 0; i < 200'000; ++i)
        script += "select a;\n";
    const process_result made =
        run({.arguments = {}, .input = script, .output = sink::terminal, .errors = sink::terminal});
    EXPECT_THAT(made.errors, Not(HasSubstr(" a second")));
}

} // namespace
