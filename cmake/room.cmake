# A room of the house is one static library. What it links is what it may use: a room on a lower floor.
#
#   zdt_room(<name> SOURCES <file>... [LINKS <target>...])
function(zdt_room name)
    cmake_parse_arguments(ROOM "" "" "SOURCES;LINKS" ${ARGN})
    add_library(zdt_${name} STATIC ${ROOM_SOURCES})
    target_include_directories(zdt_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(zdt_${name} PUBLIC ${ROOM_LINKS})
endfunction()
