#include <cstdlib>
#include <iostream>
#include <memory>

#include <quillet.h>

int main() {
    quillet_init();
    char *text = nullptr;
    const int code = quillet_translate_query("delete from item where price>9.99", &text, 0);
    const std::unique_ptr<char, decltype(&std::free)> owner(text, &std::free);
    std::cout << (code == QUILLET_SUCCESS ? text : quillet_get_error_description()) << '\n';
    quillet_done();
}
