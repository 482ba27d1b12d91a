# Windows, 64 bits, with Debian's cross compiler. The runtime goes into what is built, so that the
# module needs nothing beside it.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(prefix x86_64-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
