#include <nlohmann/json.hpp>

#include "writer.h"

namespace script {

namespace {

using json = nlohmann::ordered_json;

json parameter_of(const placeholder &taken) {
    if (taken.name.empty())
        return taken.number;
    return taken.name;
}

json object_of(const finding &found) {
    return {{"severity", name_of(found.severity)},
            {"id", found.id},
            {"code", found.code},
            {"message", found.message},
            {"hint", found.hint ? json(*found.hint) : json()},
            {"line", found.at.line},
            {"column", found.at.column},
            {"offset", found.offset},
            {"length", found.length}};
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
    json object;
    if (!id.empty())
        object["id"] = json::parse(id);
    object["file"] = file;
    object["line"] = statement.begin.line;
    object["column"] = statement.begin.column;
    object["statement"] = statement.text;
    object["builder"] = builder;
    object["code"] = made.code;
    object["text"] = made.text ? json(*made.text) : json();
    object["parameters"] = json::array();
    for (const placeholder &each : made.parameters)
        object["parameters"].push_back(parameter_of(each));
    object["diagnostics"] = json::array();
    for (const finding &each : made.findings)
        object["diagnostics"].push_back(object_of(each));
    return object.dump(-1, ' ', false, json::error_handler_t::replace) + "\n";
}

std::unique_ptr<writer> make_json_writer(output &to, const options &asked) {
    return std::make_unique<json_writer>(to, asked);
}

} // namespace script
