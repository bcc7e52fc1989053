# Runs the programs with counters, whose counts make the profile.
#
#   cmake -DTRAIN=... [-DTRAIN_SCRIPT=...] -DSTATEMENTS=directory -DPROFILE=directory
#         [-DLLVM_PROFDATA=...] -P Train.cmake
cmake_minimum_required(VERSION 3.21)

# Runs a command, whose status and output are to match.
function(run status last_words)
    execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output ERROR_VARIABLE messages RESULT_VARIABLE result)
    if(NOT result STREQUAL status OR NOT "${output}${messages}" MATCHES "${last_words}\n?$")
        message(FATAL_ERROR "Training: ${ARGN} ended with ${result}:\n${messages}")
    endif()
endfunction()

# Old counts would be added to.
file(GLOB old ${PROFILE}/*.gcda ${PROFILE}/*.profraw)
file(REMOVE ${old} ${PROFILE}/quillet.profdata)

set(ENV{LLVM_PROFILE_FILE} ${PROFILE}/%p.profraw)
run(0 Trained ${TRAIN} ${STATEMENTS})
if(TRAIN_SCRIPT)
    file(READ ${STATEMENTS}/script.sql script)
    string(REPEAT "${script}" 20 script)
    file(WRITE ${PROFILE}/script.sql "${script}")
    foreach(options "--to=mysql" "--to=mysql;--warn=none" "--to=postgresql" "--to=postgresql;--warn=none"
            "--placeholders=auto" "--format=json")
        # Some of our script is refused.
        run(1 " copied[^\n]*" ${TRAIN_SCRIPT} ${PROFILE}/script.sql ${options})
    endforeach()
endif()

# gcc reads a file for each object, clang one for all.
if(LLVM_PROFDATA)
    file(GLOB counts ${PROFILE}/*.profraw)
    run(0 "" ${LLVM_PROFDATA} merge -o ${PROFILE}/quillet.profdata ${counts})
    set(profiles ${PROFILE}/quillet.profdata)
else()
    file(GLOB profiles ${PROFILE}/*.gcda)
endif()
if(NOT profiles)
    message(FATAL_ERROR "Training: no profile in ${PROFILE}")
endif()

set(hashes)
foreach(profile ${profiles})
    file(SHA256 ${profile} hash)
    string(APPEND hashes ${hash})
endforeach()
string(SHA256 hash "${hashes}")
file(CONFIGURE OUTPUT ${PROFILE}/profile.h CONTENT "/* @hash@ */\n" @ONLY)
