# Builds the project in HOST, which takes Quillet's SOURCE the WAY it is told to, and looks at what it
# tests and installs: what is its own, and nothing else. BINARY is the folder to do it in.
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN}:\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

# The objects of a run before may stay, its options not.
file(REMOVE ${BINARY}/CMakeCache.txt)
run(${CMAKE_COMMAND} -S ${HOST} -B ${BINARY} -G ${GENERATOR} -DSOURCE=${SOURCE} -DWAY=${WAY}
    -DBUILD_SHARED_LIBS=${SHARED} -DCMAKE_BUILD_TYPE= -DCMAKE_C_COMPILER=${C_COMPILER}
    -DCMAKE_CXX_COMPILER=${CXX_COMPILER})
run(${CMAKE_COMMAND} --build ${BINARY})

run(${CMAKE_CTEST_COMMAND} --test-dir ${BINARY})
if(NOT output MATCHES "100% tests passed, 0 tests failed out of 1\n")
    message(FATAL_ERROR "not one test:\n${output}")
endif()

file(REMOVE_RECURSE ${BINARY}/prefix)
run(${CMAKE_COMMAND} --install ${BINARY} --prefix ${BINARY}/prefix)
file(GLOB_RECURSE installed RELATIVE ${BINARY}/prefix ${BINARY}/prefix/*)
if(NOT installed STREQUAL "bin/host")
    message(FATAL_ERROR "installed: ${installed}")
endif()
