// Prints a statement of the corpus, grown: quillet_statement SHAPE MEMBERS

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "corpus.h"

using namespace quillet_bench;

namespace {

template <class Shape>
bool print(const std::vector<Shape> &shapes, const std::string &name, int members) {
    for (const Shape &shape : shapes)
        if (shape.name == name) {
            std::fputs(statement_of(shape, members).c_str(), stdout);
            return true;
        }
    return false;
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 3)
        return EXIT_FAILURE;
    const std::string name = argv[1];
    const int members = std::atoi(argv[2]);
    const bool printed =
        members > 0 && (print(lists_and_chains, name, members) || print(nests, name, members));
    return printed ? EXIT_SUCCESS : EXIT_FAILURE;
}
