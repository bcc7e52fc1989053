/*
 * Marks the names that the shared library exports; everything else stays hidden.
 */
#ifndef QUILLET_EXPORT_H
#define QUILLET_EXPORT_H

#if defined(__GNUC__)
/* Stands before each declaration of such a name. */
#define QUILLET_API __attribute__((visibility("default")))
#else
#define QUILLET_API
#endif

#endif
