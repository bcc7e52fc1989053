// A page about all statements of a run.

#ifndef QUILLET_SCRIPT_REPORT_H
#define QUILLET_SCRIPT_REPORT_H

#include <memory>
#include <string>

#include "finding.h"
#include "options.h"
#include "splitter.h"
#include "translator.h"

namespace script {

// Keeps what the statements have to say in a temporary file until the page is written, so that the
// memory it takes does not grow with the script.
class report {
public:
    explicit report(const options &asked);
    ~report();
    report(const report &) = delete;
    report &operator=(const report &) = delete;

    // id: JSON, "" for none.
    void add(const std::string &file, const piece &statement, const translation &made,
             const std::string &id = "");

    // What there is to say about something between statements.
    void add(const std::string &file, const piece &other, const finding &found);

    // Writes the page and ends the writing.
    void finish();

private:
    class content;
    std::unique_ptr<content> content_;
};

} // namespace script

#endif
