# What CPack makes of the installed tree: a pair of Debian packages, or one archive of all.

set(CPACK_PACKAGE_NAME planegeo)
set(CPACK_PACKAGE_VENDOR "the planegeo authors")
set(CPACK_PACKAGE_CONTACT "the planegeo authors <planegeo@example.org>")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR})
set(CPACK_PACKAGE_CHECKSUM SHA256)
set(CPACK_VERBATIM_VARIABLES ON)

if(WIN32)
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    set(platform windows-x86)
  else()
    set(platform windows-x64)
  endif()
  set(CPACK_GENERATOR ZIP)
else()
  string(TOLOWER ${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR} platform)
  set(CPACK_GENERATOR TGZ)
endif()
set(CPACK_PACKAGE_FILE_NAME planegeo-${PROJECT_VERSION}-${platform})
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_COMPONENTS_ALL runtime development documentation)

# Archives have the documentation and the bindings beside the rest; Debian has places and files of
# its own for them.
if(PLANEGEO_PACKAGE STREQUAL "debian")
  set(CPACK_GENERATOR DEB)
  set(CPACK_COMPONENTS_GROUPING IGNORE)
  set(CPACK_COMPONENTS_ALL runtime development)
  set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY OFF)
  include(PlanegeoDebian)
else()
  # Not part of an installation by hand, whose prefix others share.
  set(as COMPONENT documentation EXCLUDE_FROM_ALL)
  install(FILES README.md CHANGELOG.md LICENSE DESTINATION . ${as})
  install(DIRECTORY docs/ DESTINATION docs ${as} FILES_MATCHING PATTERN "*.md" PATTERN "*.svg")
  install(DIRECTORY examples/c examples/cpp examples/python DESTINATION examples ${as})
  install(DIRECTORY bindings/csharp bindings/pascal bindings/python DESTINATION bindings ${as}
          PATTERN __pycache__ EXCLUDE PATTERN tests EXCLUDE)
  install(FILES bindings/README.md DESTINATION bindings ${as})
endif()

include(CPack)
