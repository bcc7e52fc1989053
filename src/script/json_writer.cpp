#include "json_text.h"
#include "writer.h"

namespace script {

namespace {

long long number(std::size_t count) { return static_cast<long long>(count); }

void write_parameter(json_text &to, const placeholder &taken) {
    if (taken.name.empty())
        to.value(number(taken.number));
    else
        to.value(taken.name);
}

void write_finding(json_text &to, const finding &found) {
    to.open('{');
    to.key("severity").value(name_of(found.severity));
    to.key("id").value(found.id);
    to.key("code").value(found.code);
    to.key("message").value(found.message);
    to.key("hint").value_or_null(found.hint);
    to.key("line").value(number(found.at.line));
    to.key("column").value(number(found.at.column));
    to.key("offset").value(number(found.offset));
    to.key("length").value(number(found.length));
    to.close('}');
}

class json_writer final : public writer {
public:
    json_writer(output &to, const options &asked) : to_(to), builder_(asked.to) {}

    void begin_file(const std::string &name) override { file_ = name; }
    void write_statement(const piece &statement, const translation &made) override {
        to_.write(json_line(file_, builder_, statement, made));
    }
    void write_between(const piece &) override {}
    void end_file() override {}

private:
    output &to_;
    std::string builder_;
    std::string file_;
};

} // namespace

std::string json_line(const std::string &file, const std::string &builder, const piece &statement,
                      const translation &made, const std::string &id) {
    std::string line;
    json_text to(line);
    to.open('{');
    if (!id.empty())
        to.key("id").raw(id);
    to.key("file").value(file);
    to.key("line").value(number(statement.begin.line));
    to.key("column").value(number(statement.begin.column));
    to.key("statement").value(statement.text);
    to.key("builder").value(builder);
    to.key("code").value(made.code);
    to.key("text").value_or_null(made.text);
    to.key("parameters").open('[');
    for (const placeholder &each : made.parameters)
        write_parameter(to, each);
    to.close(']').key("diagnostics").open('[');
    for (const finding &each : made.findings)
        write_finding(to, each);
    to.close(']').close('}');
    line.push_back('\n');
    return line;
}

std::unique_ptr<writer> make_json_writer(output &to, const options &asked) {
    return std::make_unique<json_writer>(to, asked);
}

} // namespace script
