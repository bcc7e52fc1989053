# Compiles every header in HEADERS alone, and twice over, with COMPILER as STANDARD, found in its
# folder and in the one above. SOURCE is the file to do it in.
set(kinds h)
if(STANDARD MATCHES "c\\+\\+")
    list(APPEND kinds hpp)
endif()
foreach(kind ${kinds})
    file(GLOB found RELATIVE ${HEADERS} ${HEADERS}/*.${kind})
    if(NOT found)
        message(FATAL_ERROR "no *.${kind} in ${HEADERS}")
    endif()
    list(APPEND headers ${found})
endforeach()
get_filename_component(above ${HEADERS} DIRECTORY)
get_filename_component(folder ${HEADERS} NAME)

function(compile_alone name include_folder)
    file(WRITE ${SOURCE} "#include <${name}>\n#include <${name}>\n\nint main(void) { return 0; }\n")
    execute_process(
        COMMAND ${COMPILER} -std=${STANDARD} -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror
            -fsyntax-only -I${include_folder} ${SOURCE}
        RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(SEND_ERROR "${name} does not compile alone as ${STANDARD}")
    endif()
endfunction()

foreach(header ${headers})
    compile_alone(${header} ${HEADERS})
    compile_alone(${folder}/${header} ${above})
endforeach()
