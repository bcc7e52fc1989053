// What quillet-script does with broken scripts, and with files that cannot be read.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

using namespace std::string_literals;
namespace files = std::filesystem;

enum status { all_translated = 0, some_not_translated = 1, could_not_run = 2 };

struct outcome {
    int status;
    std::string said; // on both of its outputs
};

outcome run(const std::string &arguments, const std::string &from = "</dev/null") {
    const std::string command = "'" QUILLET_SCRIPT "' " + arguments + " 2>&1 " + from;
    FILE *const program = popen(command.c_str(), "r");
    outcome made{-1, {}};
    std::array<char, 4096> part{};
    while (const std::size_t count = fread(part.data(), 1, part.size(), program))
        made.said.append(part.data(), count);
    const int ended = pclose(program);
    made.status = WIFEXITED(ended) ? WEXITSTATUS(ended) : -1;
    return made;
}

class BrokenInput : public testing::Test {
protected:
    BrokenInput() {
        std::string name = (files::temp_directory_path() / "quillet.XXXXXX").string();
        folder_ = mkdtemp(name.data());
    }
    ~BrokenInput() override { files::remove_all(folder_); }

    std::string file(const std::string &name, const std::string &content) const {
        const files::path path = folder_ / name;
        std::ofstream(path, std::ios::binary) << content;
        return "'" + path.string() + "'";
    }

    files::path folder_;
};

struct broken_script {
    const char *name;
    std::string script;
    status wanted;
};

const broken_script broken_scripts[] = {
    {"nothing", "", all_translated},
    {"one newline", "\n", all_translated},
    {"one letter", "a", some_not_translated},
    {"one quote", "'", some_not_translated},
    {"one backslash", "\\", all_translated},
    {"one semicolon", ";", all_translated},
    {"one NUL", "\0"s, some_not_translated},
    {"NULs", std::string(1000, '\0'), some_not_translated},
    {"NUL in a string", "select 'a\0b';"s, some_not_translated},
    {"NUL in a comment", "-- a\0b\nselect 1;"s, all_translated},
    {"half a byte order mark", "\xef\xbb", some_not_translated},
    {"a byte order mark", "\xef\xbb\xbf", all_translated},
    {"a byte order mark before a statement", "\xef\xbb\xbfselect 1;", all_translated},
    {"two byte order marks", "\xef\xbb\xbf\xef\xbb\xbfselect 1;", some_not_translated},
    {"UTF-16, its low byte first", "\xff\xfes\0e\0l\0"s, could_not_run},
    {"UTF-16, its high byte first", "\xfe\xff\0s\0e\0l"s, could_not_run},
    {"UTF-16 without a mark", "s\0e\0l\0e\0c\0t\0 \0001\0;\0"s, some_not_translated},
    {"Latin 1 in a string", "select 'caf\xe9';", all_translated},
    {"Latin 1 in a name", "select caf\xe9 from t;", some_not_translated},
    {"half a character at the end", "select 'a\xe2\x82", some_not_translated},
    {"lone returns", "select 1;\rselect 2;\r", all_translated},
    {"a return ends a comment", "-- a\rselect 1;", all_translated},
    {"a string without an end", "select 1; select 'a;\n select 2;", some_not_translated},
    {"an escape string without an end", "select E'a\\';", some_not_translated},
    {"a name without an end", "select \"a;", some_not_translated},
    {"a dollar string without an end", "select $a$ ; $b$;", some_not_translated},
    {"a comment without an end", "select 1; /* select 2;", all_translated},
    {"a nested comment without an end", "/* /* */ select 1;", all_translated},
    {"a parenthesis without an end", "select (1; select 2;", some_not_translated},
    {"a body without an end", "create function f() begin atomic select 1;", all_translated},
    {"data without an end", "copy t from stdin;\n1;\n2;", all_translated},
    {"data without a COPY", "1;\n\\.\n", some_not_translated},
    {"a statement without an end", "select 1", all_translated},
    {"no statement at all", "\x7f\x45LF\x02\x01\x01\0\0;;\xff\xfe\x80"s, some_not_translated},
};

TEST_F(BrokenInput, HasItsStatus) {
    for (const broken_script &each : broken_scripts)
        for (const char *to : {"mysql", "postgresql", "tree"}) {
            const std::string name = file("script.sql", each.script);
            const outcome made = run("--to " + std::string(to) + " " + name);
            EXPECT_EQ(made.status, each.wanted) << each.name << ": " << made.said;
            const outcome piped = run("--to " + std::string(to), "<" + name);
            EXPECT_EQ(piped.status, each.wanted) << each.name << ": " << piped.said;
        }
}

TEST_F(BrokenInput, IsAsLongAsItMayBe) {
    const std::string million(1000000, '(');
    EXPECT_EQ(run(file("a.sql", "select " + million + ";")).status, some_not_translated);
    EXPECT_EQ(run(file("b.sql", std::string(1000000, ';'))).status, all_translated);
    EXPECT_EQ(run(file("c.sql", std::string(1000000, '\''))).status, some_not_translated);
    EXPECT_EQ(run(file("d.sql", std::string(1000000, '\\'))).status, all_translated);
    std::string comments;
    for (int i = 0; i < 300000; ++i)
        comments += "/*";
    EXPECT_EQ(run(file("e.sql", comments)).status, all_translated);
    EXPECT_EQ(
        run("--placeholders dollar " + file("f.sql", "select $" + std::string(1000000, '1') + ";"))
            .status,
        some_not_translated);
}

TEST_F(BrokenInput, CannotBeRead) {
    const std::string missing = "'" + (folder_ / "missing.sql").string() + "'";
    const outcome none = run(missing);
    EXPECT_EQ(none.status, could_not_run);
    EXPECT_NE(none.said.find("missing.sql: No such file"), std::string::npos) << none.said;

    const outcome directory = run("'" + folder_.string() + "'");
    EXPECT_EQ(directory.status, could_not_run);
    EXPECT_NE(directory.said.find("Is a directory"), std::string::npos) << directory.said;

    EXPECT_EQ(run("", "<&-").status, could_not_run); // there is no standard input

    const std::string locked = file("locked.sql", "select 1;");
    ::chmod((folder_ / "locked.sql").c_str(), 0);
    if (::geteuid() != 0) { // who may read everything
        EXPECT_EQ(run(locked).status, could_not_run);
    }

    const outcome second = run(file("first.sql", "select 1;") + " " + missing);
    EXPECT_EQ(second.status, could_not_run);
}

TEST_F(BrokenInput, LeavesNoOutputFile) {
    const std::string to = (folder_ / "out.sql").string();
    EXPECT_EQ(run("-o '" + to + "' '" + folder_.string() + "'").status, could_not_run);
    EXPECT_FALSE(files::exists(to));
    EXPECT_EQ(run("-o '" + to + "' " + file("bad.sql", "select 'a")).status, some_not_translated);
    EXPECT_TRUE(files::exists(to));
    std::size_t count = 0;
    for ([[maybe_unused]] const auto &each : files::directory_iterator(folder_))
        ++count;
    EXPECT_EQ(count, 2U); // no temporary one
}

TEST_F(BrokenInput, MayGetShorterWhileItIsRead) {
    const std::string name = (folder_ / "shrinking.sql").string();
    const std::string statement = "select 'some text';\n";
    {
        std::ofstream large(name);
        for (int i = 0; i < 400000; ++i)
            large << statement;
    }
    const std::string command = "'" QUILLET_SCRIPT "' --no-warn all '" + name + "' 2>/dev/null";
    FILE *const program = popen(command.c_str(), "r");
    std::array<char, 4096> part{};
    ASSERT_GT(fread(part.data(), 1, part.size(), program), 0U); // it waits for the pipe now
    files::resize_file(name, statement.size() * 1000 + 10);
    while (fread(part.data(), 1, part.size(), program) > 0)
        continue;
    const int ended = pclose(program);
    ASSERT_TRUE(WIFEXITED(ended));
    EXPECT_LT(WEXITSTATUS(ended), 2);
}

TEST_F(BrokenInput, MayHaveNobodyToReadItsOutput) {
    const std::string large = file("large.sql", [] {
        std::string made;
        for (int i = 0; i < 100000; ++i)
            made += "select 1;\n";
        return made;
    }());
    EXPECT_EQ(std::system(("bash -c \"'" QUILLET_SCRIPT "' " + large +
                           " 2>/dev/null | head -1 >/dev/null; exit \\${PIPESTATUS[0]}\"")
                              .c_str()) >>
                  8,
              could_not_run);
    EXPECT_EQ(run(large + " >/dev/full").status, could_not_run);
}

} // namespace
