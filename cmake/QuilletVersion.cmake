# Reads the version from the public header that tells it, into QUILLET_VERSION.
set(header ${CMAKE_CURRENT_LIST_DIR}/../include/quillet/quillet_version.h)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${header})

file(STRINGS ${header} lines REGEX "^#define QUILLET_VERSION_(MAJOR|MINOR|PATCH) [0-9]+$")
list(TRANSFORM lines REPLACE ".* " "")
list(JOIN lines . QUILLET_VERSION)
if(NOT QUILLET_VERSION MATCHES "^[0-9]+\\.[0-9]+\\.[0-9]+$")
    message(FATAL_ERROR "${header} has no version")
endif()
