// What became of all statements of a run.

#ifndef QUILLET_SCRIPT_SUMMARY_H
#define QUILLET_SCRIPT_SUMMARY_H

#include <cstddef>
#include <string>

#include "translator.h"

namespace script {

class summary {
public:
    void add(const translation &made);

    std::size_t statements() const { return statements_; }
    bool has_failure() const { return refused_ + not_understood_ > 0; }

    // One line: "3 statements: 2 translated (1 with warnings), ..."
    std::string line() const;

private:
    std::size_t statements_ = 0;
    std::size_t translated_ = 0;
    std::size_t with_warnings_ = 0; // of those
    std::size_t refused_ = 0;
    std::size_t not_understood_ = 0;
    std::size_t copied_ = 0;
};

} // namespace script

#endif
