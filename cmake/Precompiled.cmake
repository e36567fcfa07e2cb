# orvanta_precompile(NAME HEADERS headers... LIBRARIES targets...)
#
# Has these headers compiled once for all targets that say orvanta_use_precompiled(TARGET NAME) and have the same
# compiler options.
function(orvanta_precompile name)
    cmake_parse_arguments(PCH "" "" "HEADERS;LIBRARIES" ${ARGN})
    set(empty ${CMAKE_BINARY_DIR}/precompiled/${name}.cpp)
    file(CONFIGURE OUTPUT ${empty} CONTENT "")
    add_library(precompiled_${name} OBJECT ${empty})
    set_target_properties(precompiled_${name} PROPERTIES AUTOMOC OFF AUTOUIC OFF)
    target_link_libraries(precompiled_${name} PRIVATE ${PCH_LIBRARIES})
    target_precompile_headers(precompiled_${name} PRIVATE ${PCH_HEADERS})
endfunction()

function(orvanta_use_precompiled target name)
    target_precompile_headers(${target} REUSE_FROM precompiled_${name})
endfunction()
