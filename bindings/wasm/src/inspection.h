/*
 * A statement's parse tree as a list of nodes, for programs that show it.
 */
#ifndef INSPECTION_H
#define INSPECTION_H

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "quillet.h"
#include "quillet_tree_memory.h"
#include "quillet_tree_node.h"

namespace quillet {

// A node. The texts are static ones, or the inspection's.
struct inspected_node {
    const char *kind;    // "select_item"
    const char *label;   // what tells it from others of its kind: a name, an operator; or NULL
    const char *type;    // "INT8" if one has been inferred, else NULL
    std::uint32_t begin; // its place in the statement, in bytes
    std::uint32_t end;
    std::uint32_t parent; // its index in the list; the root has its own one
};

// The nodes of a statement, each before those below it, which stand in the order of their places. A
// chain of list nodes is one node with all items of the list.
class inspection {
public:
    // The types are inferred by a builder of the library, by its id. Throws without memory.
    inspection(std::string_view statement, int builder_id);

    // What that builder makes of the statement: why there is no tree, or not all types.
    const quillet_translation *translation() const { return translation_.get(); }
    const std::vector<inspected_node> &nodes() const { return nodes_; }

private:
    struct translation_freed {
        void operator()(quillet_translation *made) const { quillet_translation_free(made); }
    };

    void infer_types(node_main *root, int builder_id);
    void list_nodes(const node_main *root);

    tree_memory memory_;
    tree_under_way tree_{memory_, tree_owner::library}; // which the labels are in
    std::unique_ptr<quillet_translation, translation_freed> translation_;
    std::vector<inspected_node> nodes_;
};

} // namespace quillet

#endif
