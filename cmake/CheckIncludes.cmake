# Reads FILES and fails when one includes anything but the standard library's headers or a header of ROOMS.
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
foreach(file IN LISTS FILES)
    file(STRINGS ${file} includes REGEX "^[ \t]*#[ \t]*include")
    foreach(line IN LISTS includes)
        if(line MATCHES "<([^>]*)>")
            if(NOT CMAKE_MATCH_1 IN_LIST standard)
                string(APPEND bad "  ${file}: <${CMAKE_MATCH_1}> is no header of the standard library\n")
            endif()
        elseif(line MATCHES "\"([a-z_]+)/[^\"]*\"")
            if(NOT CMAKE_MATCH_1 IN_LIST ROOMS)
                string(APPEND bad "  ${file}: room ${CMAKE_MATCH_1} isn't below this one\n")
            endif()
        else()
            string(APPEND bad "  ${file}: ${line} names no room\n")
        endif()
    endforeach()
endforeach()
if(bad)
    message(FATAL_ERROR "Includes that a core room may not have:\n${bad}")
endif()
