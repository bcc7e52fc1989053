# Installs the build in BUILD into PREFIX, which begins empty.
file(REMOVE_RECURSE ${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${PREFIX} RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "the installation failed")
endif()
