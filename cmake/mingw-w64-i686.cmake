# Cross build for 32-bit Windows.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(cross_target i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/cross.cmake)
set(CMAKE_RC_COMPILER ${cross_target}-windres)
