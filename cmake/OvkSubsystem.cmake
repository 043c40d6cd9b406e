# ovk_add_subsystem(NAME SOURCES ...)
#
# One folder of the library: an object library `ovk_NAME` whose objects go into the shared library
# `ovk`. All of them share one precompiled header. Headers are moc'd and, unless their name ends
# in _p.h, installed by the pattern of ovk/CMakeLists.txt.
function(ovk_add_subsystem NAME)
    cmake_parse_arguments(ARG "" "" "SOURCES" ${ARGN})
    set(target ovk_${NAME})
    add_library(${target} OBJECT ${ARG_SOURCES})
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    target_compile_definitions(${target} PRIVATE OVK_LIBRARY)
    target_link_libraries(${target} PRIVATE ovk_usage ovk_options)
    target_precompile_headers(${target} REUSE_FROM ovk_pch)
    set_property(GLOBAL APPEND PROPERTY OVK_SUBSYSTEMS ${target})
endfunction()
