# Compiles every header in HEADERS alone, and twice over, with COMPILER as STANDARD. SOURCE is the
# file to do it in.
file(GLOB headers ${HEADERS}/*.h)
if(NOT headers)
    message(FATAL_ERROR "no headers in ${HEADERS}")
endif()

foreach(header ${headers})
    get_filename_component(name ${header} NAME)
    file(WRITE ${SOURCE} "#include <${name}>\n#include <${name}>\n\nint main(void) { return 0; }\n")
    execute_process(
        COMMAND ${COMPILER} -std=${STANDARD} -Wall -Wextra -Wpedantic -Werror -fsyntax-only
            -I${HEADERS} ${SOURCE}
        RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(SEND_ERROR "${name} does not compile alone as ${STANDARD}")
    endif()
endforeach()
