/*
 * The operators' names, as an expression stores them. Internal.
 *
 * An expression of the library's own trees stores one of the texts here, by which its operator is
 * known at once. A host's tree has copies, and may have any text.
 */
#ifndef QUILLET_OPERATOR_NAMES_H
#define QUILLET_OPERATOR_NAMES_H

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quillet {

enum operator_id {
#define OPERATOR(name, ...) operator_id_##name,
#include "quillet_operators.def"
    operator_count
};

inline constexpr std::size_t operator_name_size = 32;
inline constexpr char operator_names[operator_count][operator_name_size] = {
#define OPERATOR(name, ...) "operator_" #name,
#include "quillet_operators.def"
};

// The index of a name that is one of these texts; operator_count for any other text.
inline std::size_t operator_of_own_name(const char *name) {
    const auto offset =
        reinterpret_cast<std::uintptr_t>(name) - reinterpret_cast<std::uintptr_t>(operator_names);
    return offset < sizeof operator_names ? offset / operator_name_size
                                          : std::size_t{operator_count};
}

// The name of an operator that there is, or else it does not compile.
class operator_name {
public:
    consteval operator_name(const char *name) : text_(operator_names[0]) {
        int index = 0;
        while (std::string_view(operator_names[index]) != name)
            ++index;
        text_ = operator_names[index];
    }

    const char *text() const { return text_; }

private:
    const char *text_;
};

} // namespace quillet

#endif
