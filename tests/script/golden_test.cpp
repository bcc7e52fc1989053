// Scripts and what becomes of them: the cases of golden/*.test, which golden/README.md explains.

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <map>
#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "process.h"

namespace {

struct golden_case {
    std::string name;
    std::vector<std::string> arguments;
    int status = 0;
    std::map<std::string, std::string> sections;
};

void PrintTo(const golden_case &tested, std::ostream *out) { *out << tested.name; }

// "\r", "\t", "\e", "\0" and "\xhh" in a section that is called escaped.
std::string without_escapes(std::string_view text) {
    const std::map<char, char> characters{
        {'r', '\r'}, {'t', '\t'}, {'e', '\033'}, {'0', '\0'}, {'\\', '\\'}};
    std::string made;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '\\') {
            made.push_back(text[at]);
        } else if (text[++at] == 'x') {
            made.push_back(
                static_cast<char>(std::stoi(std::string(text.substr(at + 1, 2)), nullptr, 16)));
            at += 2;
        } else {
            made.push_back(characters.at(text[at]));
        }
    }
    return made;
}

std::vector<std::string> words_of(std::string_view text) {
    std::vector<std::string> words;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        if (end > 0)
            words.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return words;
}

class case_reader {
public:
    explicit case_reader(const std::filesystem::path &file) : topic_(file.stem().string()) {
        std::ifstream lines(file);
        for (std::string line; std::getline(lines, line);)
            take(line);
        end_section();
        end_case();
    }

    std::vector<golden_case> take_cases() { return std::move(cases_); }

private:
    void take(const std::string &line) {
        if (line.starts_with("=== ")) {
            if (text_.ends_with("\n\n") || text_ == "\n")
                text_.pop_back(); // the blank line before a case belongs to no section
            end_section();
            end_case();
            begin_case(line.substr(4));
        } else if (line.starts_with("--- ")) {
            end_section();
            begin_section(words_of(line.substr(4)));
        } else if (!section_.empty()) {
            text_ += line + "\n";
        } else if (!line.empty() && line[0] != '#') {
            throw std::runtime_error("a line outside of the sections: " + line);
        }
    }

    void begin_case(const std::string &title) {
        case_.name = topic_ + "_";
        for (const char c : title)
            case_.name.push_back(std::isalnum(static_cast<unsigned char>(c)) != 0 ? c : '_');
    }

    void begin_section(const std::vector<std::string> &words) {
        section_ = words[0];
        is_escaped_ = words.back() == "escaped";
        if (section_ == "run") {
            case_.arguments.assign(words.begin() + 1, words.end());
            section_.clear();
        } else if (section_ == "status") {
            case_.status = std::stoi(words.at(1));
            section_.clear();
        }
    }

    void end_section() {
        if (!section_.empty())
            case_.sections[section_] = is_escaped_ ? without_escapes(text_) : text_;
        section_.clear();
        text_.clear();
    }

    void end_case() {
        if (case_.name.empty())
            return;
        cases_.push_back(std::move(case_));
        case_ = {};
    }

    std::string topic_;
    std::vector<golden_case> cases_;
    golden_case case_;
    std::string section_;
    std::string text_;
    bool is_escaped_ = false;
};

std::vector<golden_case> all_cases() {
    std::vector<golden_case> cases;
    for (const auto &entry : std::filesystem::directory_iterator(GOLDEN_DIRECTORY)) {
        if (entry.path().extension() != ".test")
            continue;
        for (golden_case &each : case_reader(entry.path()).take_cases())
            cases.push_back(std::move(each));
    }
    return cases;
}

class ScriptGolden : public testing::TestWithParam<golden_case> {};

TEST_P(ScriptGolden, BecomesWhatIsSaid) {
    const golden_case &tested = GetParam();
    const scratch_directory scratch;
    process asked{.arguments = tested.arguments, .directory = scratch.path()};
    for (const auto &[name, text] : tested.sections)
        if (name.find('.') != std::string::npos)
            scratch.write(name, text);
    if (const auto input = tested.sections.find("input"); input != tested.sections.end())
        asked.input = input->second;

    const process_result made = run(asked);

    const auto section = [&tested](const std::string &name) {
        const auto found = tested.sections.find(name);
        return found == tested.sections.end() ? std::string() : found->second;
    };
    EXPECT_EQ(made.output, section("output"));
    EXPECT_EQ(made.errors, section("messages"));
    EXPECT_EQ(made.status, tested.status);
}

INSTANTIATE_TEST_SUITE_P(Golden, ScriptGolden, testing::ValuesIn(all_cases()),
                         [](const auto &tested) { return tested.param.name; });

} // namespace
