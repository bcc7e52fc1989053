// What a run writes: the script again, or an object a statement.

#ifndef QUILLET_SCRIPT_WRITER_H
#define QUILLET_SCRIPT_WRITER_H

#include <memory>
#include <string>

#include "options.h"
#include "output.h"
#include "splitter.h"
#include "translator.h"

namespace script {

class writer {
public:
    writer() = default;
    virtual ~writer() = default;
    writer(const writer &) = delete;
    writer &operator=(const writer &) = delete;

    virtual void begin_file(const std::string &name) = 0;
    virtual void write_statement(const piece &statement, const translation &made) = 0;
    virtual void write_between(const piece &other) = 0;
    virtual void end_file() = 0;
};

std::unique_ptr<writer> make_sql_writer(output &to, const options &asked);
std::unique_ptr<writer> make_json_writer(output &to, const options &asked);

// An object of a statement in one line. id: JSON, "" for none.
std::string json_line(const std::string &file, const std::string &builder, const piece &statement,
                      const translation &made, const std::string &id = "");

} // namespace script

#endif
