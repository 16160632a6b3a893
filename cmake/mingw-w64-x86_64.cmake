# 64-bit Windows, with the posix thread model.
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(VELA_MINGW_TRIPLET x86_64-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64-common.cmake)
