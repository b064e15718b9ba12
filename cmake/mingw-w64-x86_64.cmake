# 64-bit Windows. Test programs run through the Wine wrapper, so plain ctest works on Linux.
set(CMAKE_SYSTEM_PROCESSOR x86_64)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake)
# The compiler's runtime is linked in, so that the DLLs need nothing beside them.
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static")
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_CROSSCOMPILING_EMULATOR
  "${CMAKE_CURRENT_LIST_DIR}/../scripts/detached_output.sh"
  "${CMAKE_CURRENT_LIST_DIR}/../scripts/wine_run.sh")
