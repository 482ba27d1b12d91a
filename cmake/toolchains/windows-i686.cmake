# Windows, 32 bits, with Debian's cross compiler. Compiled only: there is no Wine of 32 bits to run
# it.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86)

set(prefix i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
