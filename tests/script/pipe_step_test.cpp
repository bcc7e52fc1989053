// quillet-script as the step of a cluster that docs/scale.md shows: lines in, as many lines out,
// status 0.

#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "process.h"

namespace {

std::string page() {
    std::ostringstream text;
    text << std::ifstream(DOCS_DIRECTORY "/scale.md").rdbuf();
    return text.str();
}

// What the page gives to sh -c.
std::string step() {
    const std::string text = page();
    std::smatch found;
    EXPECT_TRUE(std::regex_search(text, found, std::regex("\"sh -c '([^'\n]*)'\"")));
    return found[1];
}

struct answer {
    std::vector<std::string> lines;
    int status;
};

// Pipes a partition through a command of sh, in an environment of nothing but the path.
answer pipe(const std::string &partition, const std::string &command) {
    const scratch_directory scratch;
    const auto input = scratch.write("input", partition);
    const std::string path =
        std::filesystem::path(PROGRAM).parent_path().string() + ":/usr/bin:/bin";
    const std::string words = "cd '" + scratch.path().string() + "' && env -i PATH='" + path +
                              "' sh -c '" + command + "' <input >output 2>errors";
    const int ended = std::system(words.c_str());
    answer made{{}, WIFEXITED(ended) ? WEXITSTATUS(ended) : -1};
    std::istringstream lines(scratch.read("output"));
    for (std::string line; std::getline(lines, line);)
        made.lines.push_back(line);
    return made;
}

const std::string good = "{\"id\":1,\"statement\":\"select 'a\\nb'\"}\n";
const std::string refused = "{\"id\":2,\"statement\":\"select initcap('żółw')\"}\n";
const std::string not_understood = "{\"id\":3,\"statement\":\"select from\"}\n";
const std::string two_statements = "{\"id\":4,\"statement\":\"select 1; select 2\"}\n";
const std::string no_object = "select 1\n";

bool has_id(const std::string &line, const std::string &id) {
    return line.rfind("{\"id\":" + id + ",", 0) == 0;
}

TEST(PipeStep, GivesALineForEachInOrder) {
    const answer made = pipe(good + refused + not_understood + two_statements + no_object, step());
    ASSERT_EQ(made.lines.size(), 5);
    EXPECT_EQ(made.status, 0);
    for (const std::size_t at : {0U, 1U, 2U, 3U})
        EXPECT_TRUE(has_id(made.lines[at], std::to_string(at + 1))) << made.lines[at];
    EXPECT_TRUE(has_id(made.lines[4], "null")) << made.lines[4];
}

TEST(PipeStep, GivesNothingForNothing) {
    const answer made = pipe("", step());
    EXPECT_EQ(made.lines.size(), 0);
    EXPECT_EQ(made.status, 0);
}

TEST(PipeStep, FailsWithoutTheTestForOne) {
    const std::string command = step();
    const std::string alone = command.substr(0, command.find(" ||"));
    EXPECT_NE(alone, command);
    EXPECT_EQ(pipe(good, alone).status, 0);
    EXPECT_EQ(pipe(good + refused, alone).status, 1);
}

TEST(PipeStep, FailsIfTheProgramCannotRun) {
    const std::string command = step();
    EXPECT_NE(pipe(good, std::regex_replace(command, std::regex("json"), "no-such")).status, 0);
    EXPECT_NE(pipe(good, std::regex_replace(command, std::regex("quillet-"), "no-such-")).status,
              0);
}

// The same command in both languages.
TEST(PipeStep, IsShownOnce) {
    EXPECT_NE(page().find("Seq(\"sh\", \"-c\", \"" + step() + "\")"), std::string::npos);
}

} // namespace
