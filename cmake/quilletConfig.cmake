# Gives quillet::static, quillet::shared, and quillet::quillet: the one that BUILD_SHARED_LIBS asks
# for.
include(${CMAKE_CURRENT_LIST_DIR}/quilletTargets.cmake)

if(NOT TARGET quillet::quillet)
    if(BUILD_SHARED_LIBS)
        add_library(quillet::quillet ALIAS quillet::shared)
    else()
        add_library(quillet::quillet ALIAS quillet::static)
    endif()
endif()
