# Cross build for 64-bit Windows with Debian's MinGW-w64 compilers (posix thread model).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(RHOMBA_MINGW_PREFIX x86_64-w64-mingw32)
set(CMAKE_C_COMPILER   ${RHOMBA_MINGW_PREFIX}-gcc-posix)
set(CMAKE_CXX_COMPILER ${RHOMBA_MINGW_PREFIX}-g++-posix)
set(CMAKE_RC_COMPILER  ${RHOMBA_MINGW_PREFIX}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${RHOMBA_MINGW_PREFIX})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Fully static executables (libgcc, libstdc++, winpthread): they run under Wine or on a bare
# Windows machine without copying DLLs next to them.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")

# CTest runs the test executables through Wine.
set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/wine-run.sh")
