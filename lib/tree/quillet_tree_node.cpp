#include "quillet_tree_node.h"

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <new>
#include <vector>

#include "quillet_walk.h"

namespace {

constexpr std::size_t usual_depth = 128; // for which no memory is needed

// Gives a vector that reserves the usual depth at first its own room for that.
template <class Node> struct usual_room {
    using value_type = Node;

    Node *allocate(std::size_t count) {
        return count == usual_depth ? room : std::allocator<Node>().allocate(count);
    }
    void deallocate(Node *freed, std::size_t count) {
        if (freed != room)
            std::allocator<Node>().deallocate(freed, count);
    }
    bool operator==(const usual_room &) const = default;

    Node *room;
};

struct owned_node;
using nodes = std::vector<owned_node, usual_room<owned_node>>;
using walk = quillet::walk<owned_node, 6, nodes>;

// A node to be freed, and what frees it: its texts and itself; its children go into the walk.
struct owned_node {
    void *node;
    void (*free)(void *node, walk &left);
};

#define NODE(kind) void free_##kind(void *node, walk &left);
#include "quillet_nodes.def"

#define NODE(kind)                                                                                 \
    void free_##kind(void *node, [[maybe_unused]] walk &left) {                                    \
        auto *own = static_cast<node_##kind *>(node);
#define CHILD(kind, type, field)                                                                   \
    if (own->field)                                                                                \
        left.down({own->field, free_##type});
#define TEXT(kind, field) std::free(own->field);
#define END(kind)                                                                                  \
    std::free(own);                                                                                \
    }
#include "quillet_nodes.def"

// Frees a tree. The last child comes first, so that the walk stays shallow in lists and chains,
// which grow at their first field.
void free_tree(owned_node tree) {
    if (!tree.node)
        return;
    alignas(owned_node) std::byte room[usual_depth * sizeof(owned_node)];
    nodes memory(usual_room<owned_node>{reinterpret_cast<owned_node *>(room)});
    try {
        memory.reserve(usual_depth);
        walk left(memory);
        for (left.down(tree); left.is_down();) {
            const owned_node next = left.up();
            next.free(next.node, left);
        }
    } catch (const std::bad_alloc &) { // what is left of a deep tree stays
        memory.clear();
    }
}

} // namespace

// quillet_node_<kind>_create and quillet_node_<kind>_free for every kind.
#define NODE(kind)                                                                                 \
    node_##kind *quillet_node_##kind##_create(void) {                                              \
        return static_cast<node_##kind *>(std::calloc(1, sizeof(node_##kind)));                    \
    }                                                                                              \
    void quillet_node_##kind##_free(node_##kind *node) { free_tree({node, free_##kind}); }
#include "quillet_nodes.def"
