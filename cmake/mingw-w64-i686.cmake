# 32-bit Windows (the hosts' usual target), with the posix thread model.
set(CMAKE_SYSTEM_PROCESSOR i686)
set(VELA_MINGW_TRIPLET i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64-common.cmake)
