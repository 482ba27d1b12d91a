# tamrivo_library(<name> SOURCES <file>... [LINK <target>...])
#
# A static library of one folder. Its users include its headers from the repository's root and
# link what it links.
function(tamrivo_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINK")
    add_library(${name} STATIC ${arg_SOURCES})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${arg_LINK})
endfunction()
