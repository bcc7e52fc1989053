/*
 * The way from text to tree.
 */
#ifndef QUILLET_PARSER_H
#define QUILLET_PARSER_H

#ifdef __cplusplus
extern "C" {
#endif

/* The results of a parse. */
enum {
    QUILLET_PARSE_ACCEPTED = 0,
    QUILLET_PARSE_SYNTAX_ERROR = 1,
    QUILLET_PARSE_STACK_OVERFLOW = 2
};

/*
 * Parses one statement. Returns 0 with the tree in the global root, which the caller then owns; 1
 * for a syntax error and 2 for a statement nested too deeply, with root NULL and "Error: ..." on
 * standard output; 2 without that if the statement or its tree is too large. An unknown character
 * prints "Unknow character" and ends the process with status 0.
 *
 * The scanner is one for the process: an unfinished comment, and what a syntax error left unread,
 * belong to the next query.
 */
int quillet_parse(const char *query);

#ifdef __cplusplus
}
#endif

#endif
