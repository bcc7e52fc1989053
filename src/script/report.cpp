#include "report.h"

namespace script {

class report::content {
public:
    explicit content(const options &asked) : to_(asked.report) {}
    output to_;
};

report::report(const options &asked) : content_(std::make_unique<content>(asked)) {}
report::~report() = default;
void report::add(const std::string &, const piece &, const translation &) {}
void report::finish() { content_->to_.finish(); }

} // namespace script
