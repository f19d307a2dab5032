# What cross builds have in common: compilers by their target's name, and nothing of the host's to
# link with. Included by the toolchain files, after `cross_target` is set.
set(CMAKE_C_COMPILER ${cross_target}-gcc)
set(CMAKE_CXX_COMPILER ${cross_target}-g++)
set(CMAKE_FIND_ROOT_PATH /usr/${cross_target} ${CMAKE_PREFIX_PATH})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
