# The optimised build: what quillet_train() is told of is compiled twice, first with counters in it. The
# programs of training/ run that, and what they counted, the profile, tells the compiler how to arrange what is
# installed. All of it are steps of one build: a source that changes is counted again.

if(NOT QUILLET_TRAINING)
    function(quillet_train)
    endfunction()
    return()
endif()

set(QUILLET_PROFILE_DIRECTORY ${PROJECT_BINARY_DIR}/profile)
set(profile_merged ${QUILLET_PROFILE_DIRECTORY}/quillet.profdata)

# Compiled sources depend on the profile by a header that they include, as an object can by nothing else.
set(profile_header ${QUILLET_PROFILE_DIRECTORY}/profile.h)

include(CheckCXXSourceCompiles)
include(CMakePushCheckState)

get_property(is_multi_config GLOBAL PROPERTY GENERATOR_IS_MULTI_CONFIG)
if(is_multi_config OR CMAKE_CROSSCOMPILING)
    message(FATAL_ERROR "QUILLET_TRAINING runs what it builds: it takes one configuration, for this machine.")
endif()

if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    if(CMAKE_CXX_COMPILER_VERSION VERSION_LESS 11)
        message(FATAL_ERROR "QUILLET_TRAINING needs gcc 11, whose -dumpdir says where counts lie.")
    endif()
    # The training has one thread. Without the functions that are inlined everywhere their counts would go, too.
    set(profile_generate -fprofile-generate -fprofile-update=single -fkeep-static-functions)
    set(profile_use -fprofile-use -Wno-missing-profile)
elseif(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    set(profile_generate -fprofile-generate)
    set(profile_use -fprofile-use=${profile_merged})
    # Each version has a format of its own.
    file(REAL_PATH ${CMAKE_CXX_COMPILER} compiler)
    cmake_path(GET compiler PARENT_PATH beside_compiler)
    string(REGEX MATCH "^[0-9]+" major ${CMAKE_CXX_COMPILER_VERSION})
    find_program(QUILLET_LLVM_PROFDATA NAMES llvm-profdata llvm-profdata-${major} HINTS ${beside_compiler})
    if(NOT QUILLET_LLVM_PROFDATA)
        message(FATAL_ERROR "QUILLET_TRAINING needs llvm-profdata beside clang (on Debian: llvm-${major}).")
    endif()
else()
    message(FATAL_ERROR "QUILLET_TRAINING needs gcc or clang.")
endif()
cmake_push_check_state(RESET)
set(CMAKE_REQUIRED_FLAGS -fprofile-generate)
check_cxx_source_compiles("int main() {}" QUILLET_COMPILER_COUNTS)
cmake_pop_check_state()
if(NOT QUILLET_COMPILER_COUNTS)
    message(FATAL_ERROR
        "${CMAKE_CXX_COMPILER} links no program with -fprofile-generate (on Debian clang needs libclang-rt-*-dev).")
endif()

# Has a target's sources compiled with the profile. To be called in its directory when it has its properties.
function(quillet_train target)
    get_target_property(sources ${target} SOURCES)
    add_library(${target}_counted OBJECT EXCLUDE_FROM_ALL ${sources})
    target_include_directories(${target}_counted PRIVATE $<TARGET_PROPERTY:${target},INCLUDE_DIRECTORIES>)
    target_compile_definitions(${target}_counted PRIVATE $<TARGET_PROPERTY:${target},COMPILE_DEFINITIONS>)
    # gcc knows functions by the path of their object's counts, which is to be the same both times.
    set(counts "$<$<CXX_COMPILER_ID:GNU>:SHELL:-dumpdir \"${QUILLET_PROFILE_DIRECTORY}/${target}-\">")
    target_compile_options(${target}_counted PRIVATE ${profile_generate} ${counts})
    target_link_libraries(${target}_counted PRIVATE quillet_options)
    foreach(property POSITION_INDEPENDENT_CODE C_VISIBILITY_PRESET CXX_VISIBILITY_PRESET VISIBILITY_INLINES_HIDDEN)
        get_target_property(value ${target} ${property})
        if(NOT value MATCHES "-NOTFOUND$")
            set_target_properties(${target}_counted PROPERTIES ${property} ${value})
        endif()
    endforeach()

    target_compile_options(${target} PRIVATE ${profile_use} ${counts} "SHELL:-include \"${profile_header}\"")
    add_dependencies(${target} quillet_profile)
    set_property(GLOBAL APPEND PROPERTY quillet_trained ${target})
endfunction()
