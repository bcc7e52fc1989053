# Installs the build in BUILD for PREFIX below the DESTDIR named STAGE, which begins empty. All of it is
# there, and nothing of it knows the way: what finds the library is good wherever it is moved. INSTALLED
# is a usual installation.
file(REMOVE_RECURSE ${STAGE})
execute_process(
    COMMAND ${CMAKE_COMMAND} -E env DESTDIR=${STAGE} ${CMAKE_COMMAND} --install ${BUILD} --prefix ${PREFIX}
    RESULT_VARIABLE result OUTPUT_QUIET)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "the installation failed")
endif()

file(GLOB_RECURSE staged RELATIVE ${STAGE}${PREFIX} ${STAGE}/*)
file(GLOB_RECURSE installed RELATIVE ${INSTALLED} ${INSTALLED}/*)
if(NOT staged STREQUAL installed OR NOT staged)
    message(SEND_ERROR "below ${STAGE}:\n${staged}\nbelow ${INSTALLED}:\n${installed}")
endif()

file(GLOB_RECURSE finders ${STAGE}/*.cmake ${STAGE}/*.pc)
list(LENGTH finders count)
if(count LESS 5)
    message(SEND_ERROR "only ${finders}")
endif()
foreach(finder ${finders})
    file(READ ${finder} text)
    foreach(path ${STAGE} ${PREFIX} ${BUILD})
        string(FIND "${text}" "${path}" place)
        if(NOT place EQUAL -1)
            message(SEND_ERROR "${finder} knows ${path}")
        endif()
    endforeach()
endforeach()
