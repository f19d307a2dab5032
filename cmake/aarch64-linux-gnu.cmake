# Cross build for 64-bit ARM, for the table of calls that platforms are compared by.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(cross_target aarch64-linux-gnu)
include(${CMAKE_CURRENT_LIST_DIR}/cross.cmake)
