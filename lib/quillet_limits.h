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

/* The share of the machine stack's size that rendering may use, as a divisor: the rest belongs to
   the host, which may be deep in its own calls. */
#define QUILLET_STACK_SHARE 2

/* The stack's size if the system does not limit it, and the most that is relied upon. */
#define QUILLET_STACK_SIZE_ASSUMED (8UL * 1024 * 1024)

/* The memory for the nodes of trees: the size of a chunk, which holds a usual statement's many
   times over, and how many free chunks are kept for the next statement: enough for thousands of
   columns. */
#define QUILLET_NODE_CHUNK_SIZE (256UL * 1024)
#define QUILLET_KEPT_CHUNKS_MAXIMUM 16

/* The blocks for the texts in trees, of some 150 bytes at most, that are kept likewise. */
#define QUILLET_KEPT_BLOCKS_MAXIMUM 65536

#endif
