# Reads the FILES of a ROOM. Fails when one includes anything but the standard library, a foreign header that one of the
# patterns of FOREIGN matches, or a header of the room itself or of USES; and when a room of USES isn't included at all.
# Rooms are folders under src, and a header is included by its path from there.
cmake_policy(VERSION 3.25)
set(standard
    algorithm any array atomic barrier bit bitset charconv chrono codecvt compare complex concepts
    condition_variable coroutine deque exception execution filesystem format forward_list fstream functional
    future initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map memory
    memory_resource mutex new numbers numeric optional ostream queue random ranges ratio regex scoped_allocator
    semaphore set shared_mutex source_location span sstream stack stdexcept stop_token streambuf string
    string_view syncstream system_error thread tuple type_traits typeindex typeinfo unordered_map
    unordered_set utility valarray variant vector version
    cassert cctype cerrno cfenv cfloat cinttypes climits clocale cmath csetjmp csignal cstdarg cstddef cstdint
    cstdio cstdlib cstring ctime cuchar cwchar cwctype)
set(bad "")
set(included "")
foreach(file IN LISTS FILES)
    file(STRINGS ${file} includes REGEX "^[ \t]*#[ \t]*include")
    foreach(line IN LISTS includes)
        if(line MATCHES "<([^>]*)>")
            set(header ${CMAKE_MATCH_1})
            set(is_allowed FALSE)
            if(header IN_LIST standard)
                set(is_allowed TRUE)
            endif()
            foreach(pattern IN LISTS FOREIGN)
                if(header MATCHES "^(${pattern})$")
                    set(is_allowed TRUE)
                endif()
            endforeach()
            if(NOT is_allowed AND FOREIGN)
                string(APPEND bad "  ${file}: <${header}> is none of this room's libraries\n")
            elseif(NOT is_allowed)
                string(APPEND bad "  ${file}: <${header}> is no header of the standard library\n")
            endif()
        elseif(line MATCHES "\"(.+)/[^/]*\"")
            set(room ${CMAKE_MATCH_1})
            list(APPEND included ${room})
            if(NOT room STREQUAL ROOM AND NOT room IN_LIST USES)
                string(APPEND bad "  ${file}: ${room} is no room that this one uses\n")
            endif()
        elseif(line MATCHES "\"ui_([A-Za-z_]+)\\.h\"")
            cmake_path(GET file PARENT_PATH folder)
            if(NOT EXISTS ${folder}/${CMAKE_MATCH_1}.ui)
                string(APPEND bad "  ${file}: there is no form ${CMAKE_MATCH_1}.ui in this room\n")
            endif()
        else()
            string(APPEND bad "  ${file}: ${line} names no room\n")
        endif()
    endforeach()
endforeach()
foreach(room IN LISTS USES)
    if(NOT room IN_LIST included)
        string(APPEND bad "  ${ROOM} names ${room} and includes nothing of it\n")
    endif()
endforeach()
if(bad)
    message(FATAL_ERROR "Includes that don't agree with what ${ROOM} may know:\n${bad}")
endif()
