# What the toolchains of both widths have in common.

# The variant with the threads of the C++ library.
set(CMAKE_C_COMPILER ${prefix}-gcc-posix)
set(CMAKE_CXX_COMPILER ${prefix}-g++-posix)
set(CMAKE_RC_COMPILER ${prefix}-windres)
set(TAMRIVO_WIDL ${prefix}-widl CACHE STRING "Makes type libraries")
set(TAMRIVO_IDL_INCLUDE /usr/include/wine/wine/windows CACHE PATH "Where oaidl.idl is")
# Wine of any machine has it, in a folder of that machine's name.
file(GLOB folders /usr/lib/*/wine/*-windows)
find_path(TAMRIVO_TYPE_LIBRARIES stdole2.tlb PATHS ${folders} NO_DEFAULT_PATH
    NO_CMAKE_FIND_ROOT_PATH REQUIRED DOC "Where stdole2.tlb is")

# The runtime is linked in: a client's folder has no place for its libraries.
foreach(kind EXE MODULE SHARED)
    set(CMAKE_${kind}_LINKER_FLAGS_INIT "-static")
endforeach()

set(CMAKE_FIND_ROOT_PATH /usr/${prefix})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
