# Finds SOCI, which installs no package file of its own on Debian.
#
# find_package(SOCI REQUIRED COMPONENTS sqlite3 postgresql) gives SOCI::core and a target for each
# back end named, all of which link SOCI::core.

find_path(SOCI_INCLUDE_DIR soci/soci.h)
find_library(SOCI_CORE_LIBRARY soci_core)
mark_as_advanced(SOCI_INCLUDE_DIR SOCI_CORE_LIBRARY)

foreach(backend IN LISTS SOCI_FIND_COMPONENTS)
    find_library(SOCI_${backend}_LIBRARY soci_${backend})
    mark_as_advanced(SOCI_${backend}_LIBRARY)
    if(SOCI_${backend}_LIBRARY)
        set(SOCI_${backend}_FOUND TRUE)
    endif()
endforeach()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(SOCI
    REQUIRED_VARS SOCI_CORE_LIBRARY SOCI_INCLUDE_DIR
    HANDLE_COMPONENTS)

if(SOCI_FOUND AND NOT TARGET SOCI::core)
    add_library(SOCI::core UNKNOWN IMPORTED)
    set_target_properties(SOCI::core PROPERTIES
        IMPORTED_LOCATION ${SOCI_CORE_LIBRARY}
        INTERFACE_INCLUDE_DIRECTORIES ${SOCI_INCLUDE_DIR})
    if(TAMRIVO_SANITIZE)
        # The shared library keeps the type information of its inner classes to itself.
        target_compile_options(SOCI::core INTERFACE -fno-sanitize=vptr)
    endif()
    foreach(backend IN LISTS SOCI_FIND_COMPONENTS)
        add_library(SOCI::${backend} UNKNOWN IMPORTED)
        set_target_properties(SOCI::${backend} PROPERTIES
            IMPORTED_LOCATION ${SOCI_${backend}_LIBRARY}
            INTERFACE_LINK_LIBRARIES SOCI::core)
    endforeach()
endif()
