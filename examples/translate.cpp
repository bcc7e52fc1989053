#include <iostream>

#include <quillet.hpp>

int main() {
    const auto made = quillet::translate("select a || b from t", quillet::target::mysql);
    std::cout << (made ? made.text() : made.diagnostics()[0].message) << '\n';
}
