# Runs bison and fails unless the grammar has exactly the conflicts that it explains: a change of the
# counts is a change of the language.
#
#   cmake -DBISON=... -DGRAMMAR=... -DOUTPUT=... -DPREFIX=... -DSHIFT_REDUCE=n -DREDUCE_REDUCE=n
#         [-DHEADER=...] [-DSKELETON=...] -P RunBison.cmake

# Its messages are read below, whatever language the user's are in.
set(ENV{LC_ALL} C)
set(ENV{LANGUAGE} "")

set(options --output=${OUTPUT} -Dapi.prefix={${PREFIX}})
if(HEADER)
    list(APPEND options --defines=${HEADER})
endif()
if(SKELETON)
    list(APPEND options --skeleton=${SKELETON})
endif()

execute_process(
    COMMAND ${BISON} -Wall -Wno-counterexamples ${options} ${GRAMMAR}
    RESULT_VARIABLE result
    ERROR_VARIABLE messages)

foreach(expected "${SHIFT_REDUCE} shift/reduce" "${REDUCE_REDUCE} reduce/reduce")
    string(REGEX REPLACE "[^\n]*: warning: ${expected} conflicts [^\n]*\n" "" rest "${messages}")
    if(rest STREQUAL messages)
        file(REMOVE ${OUTPUT})
        message(FATAL_ERROR "${GRAMMAR}: not ${expected} conflicts:\n${messages}")
    endif()
    set(messages "${rest}")
endforeach()

string(REGEX REPLACE "[^\n]*: note: rerun with option [^\n]*\n" "" messages "${messages}")
if(NOT result EQUAL 0 OR NOT messages STREQUAL "")
    file(REMOVE ${OUTPUT})
    message(FATAL_ERROR "${GRAMMAR}: bison has complaints:\n${messages}")
endif()
