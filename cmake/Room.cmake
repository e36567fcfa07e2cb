# orvanta_room(SOURCES files... HEADERS files... USES rooms...
#     [FOREIGN patterns...] [PUBLIC_LIBRARIES targets...] [LIBRARIES targets...] [PRECOMPILED name] [MOC] [UIC])
#
# The folder that calls it is a room: a static library, named by its path under src with "_" for "/". Its files include
# the standard library, each other, the rooms that USES names by their paths, and the foreign headers (in angle
# brackets) that a pattern of FOREIGN matches. Before the room compiles its files are read; any other include breaks the
# build, and so does a room that is named and not included. A room can only use rooms made before it, so that there are
# no circles. A room of the core has no foreign header and no library.
function(orvanta_room)
    cmake_parse_arguments(ROOM "MOC;UIC" "PRECOMPILED" "SOURCES;HEADERS;USES;FOREIGN;PUBLIC_LIBRARIES;LIBRARIES" ${ARGN})
    cmake_path(RELATIVE_PATH CMAKE_CURRENT_SOURCE_DIR BASE_DIRECTORY ${PROJECT_SOURCE_DIR}/src OUTPUT_VARIABLE path)
    string(REPLACE "/" "_" name ${path})
    if(path MATCHES "^core/" AND (ROOM_FOREIGN OR ROOM_PUBLIC_LIBRARIES OR ROOM_LIBRARIES))
        message(FATAL_ERROR "${path}: a room of the core knows the standard library and rooms of the core alone")
    endif()

    add_library(${name} STATIC)
    target_sources(${name}
        PRIVATE ${ROOM_SOURCES} ${ROOM_HEADERS}
        PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR}/src FILES ${ROOM_HEADERS})
    set_target_properties(${name} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON AUTOMOC ${ROOM_MOC} AUTOUIC ${ROOM_UIC}
        LINKER_LANGUAGE CXX)
    target_link_libraries(${name} PUBLIC ${ROOM_PUBLIC_LIBRARIES} PRIVATE ${ROOM_LIBRARIES} orvanta_product_flags)
    orvanta_use_rooms(${name} PUBLIC ${ROOM_USES})
    if(ROOM_PRECOMPILED)
        orvanta_use_precompiled(${name} ${ROOM_PRECOMPILED})
    endif()
    string(REPLACE ";" "," uses "${ROOM_USES}")
    set_property(GLOBAL APPEND PROPERTY ORVANTA_ROOMS "${path}:${uses}")
    orvanta_check_includes(${name} ${path} FILES ${ROOM_SOURCES} ${ROOM_HEADERS} USES ${ROOM_USES} FOREIGN ${ROOM_FOREIGN})
endfunction()

# orvanta_program(NAME SOURCES files... USES rooms... [FOREIGN patterns...] [LIBRARIES targets...])
#
# The same for a folder whose files make a program.
function(orvanta_program name)
    cmake_parse_arguments(PROGRAM "" "" "SOURCES;USES;FOREIGN;LIBRARIES" ${ARGN})
    cmake_path(RELATIVE_PATH CMAKE_CURRENT_SOURCE_DIR BASE_DIRECTORY ${PROJECT_SOURCE_DIR}/src OUTPUT_VARIABLE path)
    add_executable(${name} ${PROGRAM_SOURCES})
    set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTOUIC OFF)
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${name} PRIVATE ${PROGRAM_LIBRARIES} orvanta_product_flags)
    orvanta_use_rooms(${name} PRIVATE ${PROGRAM_USES})
    orvanta_check_includes(${name} ${path}
        FILES ${PROGRAM_SOURCES} USES ${PROGRAM_USES} FOREIGN ${PROGRAM_FOREIGN})
endfunction()

function(orvanta_use_rooms name visibility)
    foreach(room IN LISTS ARGN)
        string(REPLACE "/" "_" library ${room})
        if(NOT TARGET ${library})
            message(FATAL_ERROR "${name} uses ${room}, which isn't a room below it")
        endif()
        target_link_libraries(${name} ${visibility} ${library})
    endforeach()
endfunction()

function(orvanta_check_includes name path)
    cmake_parse_arguments(CHECK "" "" "FILES;USES;FOREIGN" ${ARGN})
    list(TRANSFORM CHECK_FILES PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
    set(stamp ${CMAKE_CURRENT_BINARY_DIR}/${name}.includes-checked)
    add_custom_command(OUTPUT ${stamp}
        COMMAND ${CMAKE_COMMAND} -DROOM=${path} "-DFILES=${CHECK_FILES}" "-DUSES=${CHECK_USES}"
            "-DFOREIGN=${CHECK_FOREIGN}" -P ${PROJECT_SOURCE_DIR}/cmake/CheckIncludes.cmake
        COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
        DEPENDS ${CHECK_FILES} ${PROJECT_SOURCE_DIR}/cmake/CheckIncludes.cmake
        COMMENT "Checking the includes of ${path}" VERBATIM)
    add_custom_target(${name}_includes DEPENDS ${stamp})
    add_dependencies(${name} ${name}_includes)
endfunction()
