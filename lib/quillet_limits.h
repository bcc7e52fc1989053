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

/* The arena for a translation's tree: the size of its first chunk, which holds a usual statement;
   how often the chunks can double, which is beyond any machine; and how many are kept for the next
   statement, 4 MiB in all, enough for thousands of columns. */
#define QUILLET_ARENA_CHUNK_SIZE (64UL * 1024)
#define QUILLET_ARENA_CHUNKS_MAXIMUM 32
#define QUILLET_ARENA_KEPT_CHUNKS 6

/* The steps down a chain or list for which a rendering keeps its memory for the next one, some
   hundred bytes each. */
#define QUILLET_KEPT_STEPS_MAXIMUM 65536

#endif
