// Which warnings and notes are wanted.

#ifndef QUILLET_SCRIPT_WANTED_REMARKS_H
#define QUILLET_SCRIPT_WANTED_REMARKS_H

#include <string>
#include <string_view>
#include <vector>

#include <quillet.hpp>

namespace script {

// The last word on an id, or on all, holds.
class wanted_remarks {
public:
    void set_all(bool warnings, bool notes);
    void set(const std::string &id, bool is_wanted);

    bool has(quillet::severity severity, std::string_view id) const;

    // As the command line has them: "--warn=warnings", "--no-warn=clock".
    std::vector<std::string> as_options() const;

    // The least severity that anything wanted may have.
    quillet::severity least() const;

private:
    struct choice {
        std::string id;
        bool is_wanted;
    };

    bool warnings_ = true;
    bool notes_ = true;
    std::vector<choice> choices_;
};

} // namespace script

#endif
