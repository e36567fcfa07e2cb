# orvanta_core_room(NAME SOURCES files... HEADERS files... USES rooms...)
#
# A room of the core: a static library that knows the standard library and the rooms that it names, nothing else.
# Before it compiles, its files are read and an include of anything beyond that breaks the build.
function(orvanta_core_room name)
    cmake_parse_arguments(ROOM "" "" "SOURCES;HEADERS;USES" ${ARGN})
    add_library(core_${name} STATIC)
    target_sources(core_${name}
        PRIVATE ${ROOM_SOURCES}
        PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR}/src/core FILES ${ROOM_HEADERS})
    set_target_properties(core_${name} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON AUTOMOC OFF AUTOUIC OFF LINKER_LANGUAGE CXX)
    list(TRANSFORM ROOM_USES PREPEND core_ OUTPUT_VARIABLE libraries)
    target_link_libraries(core_${name} PUBLIC ${libraries} PRIVATE orvanta_flags)

    set(stamp ${CMAKE_CURRENT_BINARY_DIR}/${name}.includes-checked)
    list(TRANSFORM ROOM_SOURCES PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/ OUTPUT_VARIABLE sources)
    list(TRANSFORM ROOM_HEADERS PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/ OUTPUT_VARIABLE headers)
    # What a room uses, it may know through: the rooms below come with their own.
    set(known ${name} ${ROOM_USES})
    foreach(used IN LISTS ROOM_USES)
        get_property(below GLOBAL PROPERTY core_room_${used}_knows)
        list(APPEND known ${below})
    endforeach()
    list(REMOVE_DUPLICATES known)
    set_property(GLOBAL PROPERTY core_room_${name}_knows ${known})
    add_custom_command(OUTPUT ${stamp}
        COMMAND ${CMAKE_COMMAND} "-DFILES=${sources};${headers}" "-DROOMS=${known}"
            -P ${PROJECT_SOURCE_DIR}/cmake/CheckIncludes.cmake
        COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
        DEPENDS ${sources} ${headers} ${PROJECT_SOURCE_DIR}/cmake/CheckIncludes.cmake
        COMMENT "Checking the includes of core room ${name}" VERBATIM)
    add_custom_target(core_${name}_includes DEPENDS ${stamp})
    add_dependencies(core_${name} core_${name}_includes)
endfunction()
