/*
 * The way from text to tree, for hosts that parse without translating.
 *
 *     if (quillet_parse("select 1") == QUILLET_PARSE_ACCEPTED) {
 *         node_main *tree = quillet_take_root();
 *         ...
 *         quillet_node_main_free(tree);
 *     }
 *
 * The parser and its scanner are one for the process: one parse at a time. The scanner goes on
 * where the last parse left it: an unfinished comment, and what a syntax error left unread, belong
 * to the next query.
 *
 * The parser leaves its tree in a variable named root. That name lacks the library's prefix, so no
 * installed header declares it and only the static library has it: take the tree with
 * quillet_take_root, and give no global of a program linked with the static library that name.
 */
#ifndef QUILLET_PARSER_H
#define QUILLET_PARSER_H

#include "quillet_export.h"
#include "quillet_parse_data.h"
#include "quillet_tree_node.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The results of a parse. */
enum {
    QUILLET_PARSE_ACCEPTED = 0,      /* there is a tree */
    QUILLET_PARSE_SYNTAX_ERROR = 1,  /* no statement of the dialect */
    QUILLET_PARSE_STACK_OVERFLOW = 2 /* nested too deeply, the statement or its tree too large, or
                                        no memory */
};

/*
 * Parses one statement, of which it makes a copy. The argument must not be NULL. Returns
 * QUILLET_PARSE_ACCEPTED and leaves the tree for quillet_take_root, or another result without a
 * tree. A tree that was left before is forgotten, not freed: take it first. Without memory,
 * what the scanner had left unread is lost.
 *
 * On standard output it prints
 *
 *   - "Error: syntax error" for a syntax error and "Error: parser stack overflow" for what is
 *     nested too deeply, each a line; nothing for what is too large
 *   - every newline inside a block comment
 *   - the line "Unknow character" for a character that no token can hold, which ends the process
 *     with status 0
 */
QUILLET_API int quillet_parse(const char *query);

/* Returns the tree of the last successful parse and leaves none there: the caller owns it and frees
   it with quillet_node_main_free. Returns NULL if there is none. */
QUILLET_API node_main *quillet_take_root(void);

/* The query being parsed; NULL except during quillet_parse, which owns it. */
extern QUILLET_API parse_data *quillet_query;

/* How many block comments the scanner is in: not 0 after a parse means that the query ended in an
   unfinished one. */
extern QUILLET_API int quillet_comment_count;

#ifdef __cplusplus
}
#endif

#endif
