# tamrivo_library(<name> SOURCES <file>... [LINK <target>...])
#
# A static library of one folder. Its users include its headers from the repository's root and
# link what it links. A folder of headers alone has no sources.
function(tamrivo_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINK")
    if(arg_SOURCES)
        add_library(${name} STATIC ${arg_SOURCES})
        set(scope PUBLIC)
    else()
        add_library(${name} INTERFACE)
        set(scope INTERFACE)
    endif()
    target_include_directories(${name} ${scope} ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} ${scope} ${arg_LINK})
endfunction()
