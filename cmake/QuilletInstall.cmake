# What cmake --install puts where: the libraries with their headers, what finds them (CMake and
# pkg-config), the pages.
include(CMakePackageConfigHelpers)

set(package ${CMAKE_INSTALL_LIBDIR}/cmake/quillet)
set(made ${PROJECT_BINARY_DIR}/package)

install(TARGETS quillet_static quillet_shared EXPORT quillet)
install(DIRECTORY include/quillet DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY docs/ DESTINATION ${CMAKE_INSTALL_DOCDIR}
    PATTERN man EXCLUDE PATTERN site EXCLUDE)

install(EXPORT quillet FILE quilletTargets.cmake NAMESPACE quillet:: DESTINATION ${package})
write_basic_package_version_file(${made}/quilletConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES cmake/quilletConfig.cmake ${made}/quilletConfigVersion.cmake DESTINATION ${package})

# Its own place tells the prefix.
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX
    BASE_DIRECTORY ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig OUTPUT_VARIABLE up_to_prefix)
foreach(kind LIBDIR INCLUDEDIR)
    set(${kind} "\${prefix}")
    cmake_path(APPEND ${kind} ${CMAKE_INSTALL_${kind}}) # which may be an absolute path
endforeach()
get_property(cxx_runtime GLOBAL PROPERTY quillet_cxx_runtime)
list(TRANSFORM cxx_runtime PREPEND -l)
list(JOIN cxx_runtime " " cxx_runtime)
configure_file(cmake/quillet.pc.in ${made}/quillet.pc @ONLY)
install(FILES ${made}/quillet.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
