# The installed tree: the runtime component is the shared library, the development component the
# header, the static library, the CMake package and the pkg-config file; documentation is the third.

include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/planegeo)

install(FILES include/planegeo.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
install(TARGETS planegeo planegeo_static EXPORT planegeo_targets
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime
                NAMELINK_COMPONENT development
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
if(WIN32)
  install(FILES ${PROJECT_BINARY_DIR}/src/planegeo.def # for the linkers of other compilers
          DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
endif()
install(EXPORT planegeo_targets FILE planegeo-targets.cmake NAMESPACE planegeo::
        DESTINATION ${package_dir} COMPONENT development)

configure_package_config_file(cmake/planegeo-config.cmake.in planegeo-config.cmake
                              INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(planegeo-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/planegeo-config.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/planegeo-config-version.cmake
        DESTINATION ${package_dir} COMPONENT development)

# The file finds the tree from its own place, so that the tree may be moved.
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX
           BASE_DIRECTORY ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig OUTPUT_VARIABLE pc_to_prefix)
set(pc_libdir "\${prefix}")
set(pc_includedir "\${prefix}")
cmake_path(APPEND pc_libdir ${CMAKE_INSTALL_LIBDIR})
cmake_path(APPEND pc_includedir ${CMAKE_INSTALL_INCLUDEDIR})
configure_file(cmake/planegeo.pc.in planegeo.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/planegeo.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
