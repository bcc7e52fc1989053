/*
 * The version, in semantic versioning. These three numbers are its one source: the build reads them
 * too.
 */
#ifndef QUILLET_VERSION_H
#define QUILLET_VERSION_H

#include "quillet_export.h"

/* The version as a number for each of its parts. */
#define QUILLET_VERSION_MAJOR 1
#define QUILLET_VERSION_MINOR 0
#define QUILLET_VERSION_PATCH 0

/* As text: "1.2.3" */
#define QUILLET_VERSION                                                                            \
    QUILLET_VERSION_TEXT(QUILLET_VERSION_MAJOR, QUILLET_VERSION_MINOR, QUILLET_VERSION_PATCH)
/* Makes a text of three numbers, and of macros that are numbers. */
#define QUILLET_VERSION_TEXT(major, minor, patch) QUILLET_VERSION_JOIN(major, minor, patch)
#define QUILLET_VERSION_JOIN(major, minor, patch) #major "." #minor "." #patch

#ifdef __cplusplus
extern "C" {
#endif

/* Returns the version of the library that the program runs with, a static text. A shared library
   may be a later one than QUILLET_VERSION, which the program was compiled with. */
QUILLET_API const char *quillet_version(void);

#ifdef __cplusplus
}
#endif

#endif
