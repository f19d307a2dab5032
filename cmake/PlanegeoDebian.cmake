# The Debian packages libplanegeoN and libplanegeo-dev.

set(library_package libplanegeo${PROJECT_VERSION_MAJOR})
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS OFF)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)

set(about "It answers the questions of drawing, snapping, trimming and measuring commands:
where lines, circles, arcs and elliptic arcs meet, which tangent goes through a
point, how long an arc is, what a point snaps to.")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "${about}")
file(WRITE ${PROJECT_BINARY_DIR}/debian/triggers "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/debian/triggers)

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libplanegeo-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${library_package} (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION
    "${about}\n\nThis package has the header, the static library and the files for CMake and\npkg-config.")

# What the policy wants of both: a copyright file and a changelog.
set(debian ${PROJECT_BINARY_DIR}/debian)
file(READ LICENSE licence)
string(REGEX REPLACE "^MIT License\n+" "" licence "${licence}")
string(REGEX MATCH "Copyright[^\n]*" copyright "${licence}")
string(REGEX REPLACE "^Copyright[^\n]*\n+" "" licence "${licence}")
string(STRIP "${licence}" licence)
string(REPLACE "\n\n" "\n.\n" licence "${licence}")
string(REPLACE "\n" "\n " licence "${licence}")
string(REGEX REPLACE "^Copyright *(\\([cC]\\))? *" "" copyright "${copyright}")
file(WRITE ${debian}/copyright
"Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/
Upstream-Name: planegeo

Files: *
Copyright: ${copyright}
License: Expat

License: Expat
 ${licence}
")
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
file(WRITE ${debian}/changelog
"planegeo (${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}) unstable; urgency=medium

  * Version ${PROJECT_VERSION}.

 -- ${CPACK_PACKAGE_CONTACT}  ${date}
")
find_program(GZIP gzip REQUIRED)
execute_process(COMMAND ${GZIP} -9nf ${debian}/changelog COMMAND_ERROR_IS_FATAL ANY)
file(RENAME ${debian}/changelog.gz ${debian}/changelog.Debian.gz)
foreach(component runtime development)
  set(package ${library_package})
  if(component STREQUAL "development")
    set(package libplanegeo-dev)
  endif()
  install(FILES ${debian}/copyright ${debian}/changelog.Debian.gz
          DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package} COMPONENT ${component})
endforeach()
