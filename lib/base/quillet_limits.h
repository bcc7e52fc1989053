/*
 * Every limit of the library. What exceeds one of them is refused with a code. Internal.
 */
#ifndef QUILLET_LIMITS_H
#define QUILLET_LIMITS_H

/* The entries of the parser's stacks: their number at first, so that a usual statement needs no
   growth, and at most, which bounds how deeply a statement can be nested. */
#define QUILLET_PARSER_STACK_INITIAL 200
#define QUILLET_PARSER_STACK_MAXIMUM 10000

/* The size of a rendered text. Texts that stand twice in their own rendering double with every
   level, and the indentation of a deep tree grows with its square: without a limit, a short
   statement could take all memory there is. */
#define QUILLET_TEXT_SIZE_MAXIMUM (256UL * 1024 * 1024)

/* What rendering takes of the machine's stack without asking the system for its bounds, which takes
   as long as translating twenty statements. */
#define QUILLET_STACK_UNASKED (16UL * 1024)

/* What rendering leaves of the running thread's stack for the calls of a single step, for the
   system and for a host's operations: a share of its size, as a divisor, and at least so much. */
#define QUILLET_STACK_RESERVE_SHARE 16
#define QUILLET_STACK_RESERVE_MINIMUM (16UL * 1024)

/* The most of a stack that is relied upon; the one that is assumed if the system does not tell; and
   what is assumed below the first rendering if that runs on another stack than its thread's, as a
   coroutine does. */
#define QUILLET_STACK_SIZE_MAXIMUM (64UL * 1024 * 1024)
#define QUILLET_STACK_SIZE_USUAL (8UL * 1024 * 1024)
#define QUILLET_STACK_SIZE_FOREIGN (48UL * 1024)

/* The size of a query, which the scanner counts in an int and holds several times over. */
#define QUILLET_QUERY_SIZE_MAXIMUM (256UL * 1024 * 1024)

/* The size of a translation's tree, which takes up to 200 times the memory of the statement:
   without a limit, one of some megabytes could take all there is. Millions of columns fit in. */
#define QUILLET_TREE_SIZE_MAXIMUM (2048UL * 1024 * 1024)

/* The arena for that tree: the size of its first chunk, which holds a usual statement; the size up
   to which the chunks double; how many there can be; how many are kept, 4 MiB in all, enough for
   thousands of columns; and how many are kept for the next statement alone, 128 MiB in all. */
#define QUILLET_ARENA_CHUNK_SIZE (64UL * 1024)
#define QUILLET_ARENA_CHUNK_SIZE_MAXIMUM (64UL * 1024 * 1024)
#define QUILLET_ARENA_CHUNKS_MAXIMUM 64
#define QUILLET_ARENA_KEPT_CHUNKS 6
#define QUILLET_ARENA_KEPT_CHUNKS_MAXIMUM 11

/* The size from which on a token that is not yet at its end makes the scanner read on by as much
   again, as reading on has a cost that grows with what there is of the token. */
#define QUILLET_LONG_TOKEN (64L * 1024)

/* The steps down a chain or list, and the gaps in a text, for which a rendering keeps its memory
   for the next one, some hundred bytes each. */
#define QUILLET_KEPT_STEPS_MAXIMUM 65536

#endif
