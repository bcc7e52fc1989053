# Looks at the names that LIBRARY exports: there are some, and all begin with quillet_.
cmake_policy(VERSION 3.20)

execute_process(
    COMMAND ${NM} -D --defined-only --format=just-symbols ${LIBRARY}
    OUTPUT_VARIABLE names RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "the names of ${LIBRARY} cannot be read")
endif()

string(REGEX MATCHALL "[^\n]+" names "${names}")
set(foreign ${names})
list(FILTER foreign EXCLUDE REGEX "^quillet_")
if(foreign)
    message(FATAL_ERROR "exported, but not quillet's: ${foreign}")
endif()
foreach(name quillet_init quillet_translate_query quillet_default_builder_create)
    if(NOT name IN_LIST names)
        message(FATAL_ERROR "not exported: ${name}")
    endif()
endforeach()
