# How everything here is compiled.

# Warnings, for every target of ours.
function(planegeo_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wconversion -Wsign-conversion -Wshadow
                         $<$<BOOL:${PLANEGEO_WERROR}>:-Werror>)
endfunction()

# Fused and reassociated operations would make platforms decide differently, so none are
# allowed; 32-bit x86 computes in SSE2 registers, not in the wider ones of the old unit. Callers on
# 32-bit Windows align the stack to four bytes only, which SSE2 must not rely on being more.
function(planegeo_arithmetic target)
  target_compile_options(${target} PRIVATE -ffp-contract=off -fno-fast-math -fno-math-errno)
  if(CMAKE_SYSTEM_PROCESSOR MATCHES "86|AMD64" AND CMAKE_SIZEOF_VOID_P EQUAL 4)
    target_compile_options(${target} PRIVATE -msse2 -mfpmath=sse $<$<BOOL:${WIN32}>:-mstackrealign>)
  endif()
endfunction()

# What a host in C must link beside the static library.
if("c++" IN_LIST CMAKE_CXX_IMPLICIT_LINK_LIBRARIES)
  set(planegeo_cxx_runtime c++)
else()
  set(planegeo_cxx_runtime stdc++)
endif()

# Turns the one list of exported names into a linker version script and a .def file.
function(planegeo_export_files list_file map_file def_file)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${list_file})
  file(STRINGS ${list_file} names REGEX "^[A-Za-z_]")
  list(JOIN names ";\n    " map_names)
  file(CONFIGURE OUTPUT ${map_file} CONTENT
       "PLANEGEO_1 {\n  global:\n    ${map_names};\n  local:\n    *;\n};\n" @ONLY)
  list(JOIN names "\n    " def_names)
  file(CONFIGURE OUTPUT ${def_file} CONTENT
       "LIBRARY planegeo.dll\nEXPORTS\n    ${def_names}\n" @ONLY)
endfunction()
