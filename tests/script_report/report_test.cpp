// The file that quillet-script --report writes.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using testing::AllOf;
using testing::Each;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr std::string_view data_begin = "<script type=\"application/json\" id=\"data\">";
constexpr std::string_view data_end = "</script>";

// A run has a folder of its own.
class Report : public testing::Test {
protected:
    void SetUp() override {
        std::string made = (fs::temp_directory_path() / "quillet-report-XXXXXX").string();
        ASSERT_NE(mkdtemp(made.data()), nullptr);
        folder_ = made;
    }
    void TearDown() override { fs::remove_all(folder_); }

    void write(const std::string &name, const std::string &text) const {
        std::ofstream(folder_ / name, std::ios::binary) << text;
    }

    std::string read(const std::string &name) const {
        std::ifstream file(folder_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    // The exit status of quillet-script, from a shell that does something else first.
    int run(const std::string &arguments, const std::string &before = "") {
        const std::string line = "cd '" + folder_.string() + "' && " + before +
                                 "exec '" QUILLET_SCRIPT "' " + arguments +
                                 " 2>messages </dev/null >out";
        const pid_t child = fork();
        if (child == 0) {
            execl("/bin/sh", "sh", "-c", line.c_str(), nullptr);
            _exit(127);
        }
        int status = 0;
        struct rusage used {};
        wait4(child, &status, 0, &used);
        most_memory_ = used.ru_maxrss;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    std::set<std::string> files() const {
        std::set<std::string> made;
        for (const auto &each : fs::directory_iterator(folder_))
            made.insert(each.path().filename());
        return made;
    }

    // What stands between the data's tags, up to the first thing that ends them.
    std::string data(const std::string &name) const {
        const std::string page = read(name);
        const std::size_t begin = page.find(data_begin) + data_begin.size();
        return page.substr(begin, page.find(data_end, begin) - begin);
    }

    fs::path folder_;
    long most_memory_ = 0; // of the last run, in KiB
};

std::string source_of(const json &statement) {
    std::string made;
    for (const std::string part : statement["source"])
        made += part;
    return made;
}

TEST_F(Report, IsOnePage) {
    write("a.sql", "select 1;\nselect 7 / 2;\nselect initcap(a) from t;\n");
    EXPECT_EQ(run("--report r.html a.sql"), 1);
    const std::string page = read("r.html");
    EXPECT_THAT(page, AllOf(StartsWith("<!DOCTYPE html>"), EndsWith("</html>\n")));
    EXPECT_THAT(page, AllOf(Not(HasSubstr("src=")), Not(HasSubstr("<link"))));
    EXPECT_THAT(page, Not(HasSubstr("url(")));
    EXPECT_THAT(page, HasSubstr("default-src 'none'"));
}

TEST_F(Report, OutcomesAreCounted) {
    write("a.sql", "select 1; select 7 / 2; select 'a' is true;");
    write("b.sql", "select initcap(a) from t; select 1;");
    write("c.sql", "select from; create table t (a int); \\d t\nselect 1;");
    EXPECT_EQ(run("--report r.html a.sql b.sql c.sql a.sql"), 1);
    const json page = json::parse(data("r.html"));
    std::map<std::string, int> outcomes;
    for (const json &each : page["outcomes"])
        outcomes[each["key"]] = each["count"];
    const std::string summary = read("messages");
    EXPECT_THAT(summary,
                HasSubstr("11 statements: " +
                          std::to_string(outcomes["translated"] + outcomes["with-warnings"]) +
                          " translated (" + std::to_string(outcomes["with-warnings"]) +
                          " with warnings), 1 refused, 1 not understood, 1 copied"));
    EXPECT_EQ(outcomes["refused"], 1);
    EXPECT_EQ(outcomes["not-understood"], 1);
    EXPECT_EQ(outcomes["copied"], 1);
    EXPECT_EQ(outcomes["between"], 1);
    EXPECT_EQ(page["files"], json::parse(R"([{"name": "a.sql", "count": 6},
        {"name": "b.sql", "count": 2}, {"name": "c.sql", "count": 4}])"));
}

TEST_F(Report, NothingInAScriptEndsTheData) {
    const std::string hostile = "</script><script>broken()</script><!-- <!--<script> \xe2\x80\xa8 "
                                "\xe2\x80\xa9 & ]]> \x01\x1f\x7f \\u003c \" ";
    write("a.sql", "select '" + hostile + "', \"" + "<b>\" as \"</script>\";");
    write("<img src=x>.sql", "select '\xff\xfe</script>', initcap('\xc3');");
    write("c.json", "{\"id\": \"</script>\", \"statement\": \"select '</script>'\"}\n");
    run("--report r.html --docs '</script>' a.sql '<img src=x>.sql'");
    const std::string text = data("r.html");
    EXPECT_THAT(text, Not(HasSubstr("<")));
    EXPECT_THAT(text, Each(testing::Le('\x7e')));
    EXPECT_THAT(text, Each(testing::AnyOf(testing::Ge(' '), '\n')));
    const json page = json::parse(text);
    EXPECT_EQ(source_of(page["statements"][0]),
              "select '" + hostile + "', \"<b>\" as \"</script>\"");
    EXPECT_THAT(source_of(page["statements"][1]),
                StartsWith("select '\xef\xbf\xbd\xef\xbf\xbd</script>'"));
    EXPECT_EQ(page["files"][1]["name"], "<img src=x>.sql");

    run("--report r.html --input json c.json");
    EXPECT_THAT(data("r.html"), Not(HasSubstr("<")));
    EXPECT_EQ(json::parse(data("r.html"))["statements"][0]["name"], "\"</script>\"");
}

TEST_F(Report, FindingsAreAboutWholeParts) {
    const std::string statement = "select '\xf0\x9f\x98\x80', initcap('\xc3\xa9') || to_hex(b)";
    write("a.sql", statement + ";");
    EXPECT_EQ(run("--report r.html a.sql"), 1);
    const json page = json::parse(data("r.html"));
    const json &said = page["statements"][0];
    EXPECT_EQ(source_of(said), statement);
    std::set<std::string> marked;
    for (const json &each : said["findings"]) {
        std::string text;
        for (std::size_t part = each["from"]; part < each["to"]; ++part)
            text += said["source"][part];
        marked.insert(text);
    }
    EXPECT_THAT(marked, testing::IsSupersetOf({"initcap('\xc3\xa9')", "to_hex(b)"}));
}

TEST_F(Report, SettingsAreThoseOfTheCommandLine) {
    write("a.sql", "select %s;");
    run("--report r.html --strict --placeholders format --placeholders-out named "
        "--backslash-escapes --warn warnings --no-warn clock a.sql");
    EXPECT_EQ(json::parse(data("r.html"))["settings"],
              json::parse(R"(["--placeholders=format", "--placeholders-out=named",
                  "--backslash-escapes", "--warn=warnings", "--no-warn=clock", "--strict"])"));
}

TEST_F(Report, WithoutStatementsIsAPage) {
    write("a.sql", "-- nothing\n");
    EXPECT_EQ(run("--report r.html a.sql"), 0);
    EXPECT_EQ(json::parse(data("r.html"))["statements"], json::array());
}

TEST_F(Report, AppearsAsAWholeOrNotAtAll) {
    write("a.sql", "select 1;");
    EXPECT_EQ(run("--report r.html a.sql missing.sql"), 2);
    EXPECT_EQ(files(), (std::set<std::string>{"a.sql", "messages", "out"}));
    write("r.html", "an older one");
    EXPECT_EQ(run("--report r.html a.sql missing.sql"), 2);
    EXPECT_EQ(read("r.html"), "an older one");
    EXPECT_EQ(run("--report r.html a.sql"), 0);
    EXPECT_THAT(read("r.html"), EndsWith("</html>\n"));
    EXPECT_EQ(files(), (std::set<std::string>{"a.sql", "messages", "out", "r.html"}));
}

TEST_F(Report, AFullDeviceIsAnError) {
    write("a.sql", "select 1;");
    EXPECT_EQ(run("--report /dev/full a.sql"), 2);
    EXPECT_EQ(read("messages"), "quillet-script: /dev/full: No space left on device\n");
}

TEST_F(Report, AFolderThatIsMissingIsAnError) {
    write("a.sql", "select 1;");
    EXPECT_EQ(run("--report missing/r.html a.sql"), 2);
    EXPECT_EQ(read("messages"), "quillet-script: missing/r.html: No such file or directory\n");
}

std::string script_of(int statements) {
    std::string made;
    for (int each = 0; each < statements; ++each)
        made += "select a / " + std::to_string(each) + ", b from t where name like '%x%';\n";
    return made;
}

TEST_F(Report, ATemporaryFileThatCannotGrowIsAnError) {
    write("a.sql", script_of(3000));
    const std::string few_blocks = "trap '' XFSZ; ulimit -f 200; ";
    EXPECT_EQ(run("--report r.html -o /dev/null --warn none a.sql", few_blocks), 2);
    EXPECT_EQ(read("messages"), "quillet-script: a temporary file: File too large\n");
    EXPECT_EQ(files(), (std::set<std::string>{"a.sql", "messages", "out"}));
}

TEST_F(Report, TakesNoMoreMemoryForALongerScript) {
    const std::string frees_at_once = "export ASAN_OPTIONS=quarantine_size_mb=1; ";
    write("short.sql", script_of(1000));
    write("long.sql", script_of(30000));
    EXPECT_EQ(run("--report r.html short.sql", frees_at_once), 0);
    const long with_short = most_memory_;
    EXPECT_EQ(run("--report r.html long.sql", frees_at_once), 0);
    EXPECT_GT(fs::file_size(folder_ / "r.html"), 5'000'000U);
    EXPECT_LT(most_memory_, with_short + 2048);
}

} // namespace
