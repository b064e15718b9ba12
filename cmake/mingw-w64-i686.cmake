# 32-bit Windows: compiled and linked only, to keep the code clean for 32-bit hosts.
# The compiler's runtime stays in its own DLLs here: with this target's exception tables an
# exception crosses from one DLL into another only when both share one runtime.
set(CMAKE_SYSTEM_PROCESSOR i686)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake)
