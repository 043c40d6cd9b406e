# ovk_host_version(TARGET MAJOR.MINOR.PATCH.BUILD)
#
# Links the fixed file information with that version into a host's executable, where
# ovk::Application::GetVersionInfo() finds it: a version resource on Windows, the section
# `.ovk.version` elsewhere. The executable must bear the name that the library was built for
# (OVK_HOST_EXECUTABLE).
set(_ovk_host_version_dir "${CMAKE_CURRENT_LIST_DIR}")

function(ovk_host_version TARGET VERSION_TEXT)
    if(NOT TARGET ${TARGET})
        message(FATAL_ERROR "ovk_host_version: ${TARGET} is not a target")
    endif()
    if(NOT VERSION_TEXT MATCHES "^([0-9]+)\\.([0-9]+)\\.([0-9]+)\\.([0-9]+)$")
        message(FATAL_ERROR "ovk_host_version: ${VERSION_TEXT} is not of the form MAJOR.MINOR.PATCH.BUILD")
    endif()
    set(OVK_VERSION_MAJOR ${CMAKE_MATCH_1})
    set(OVK_VERSION_MINOR ${CMAKE_MATCH_2})
    set(OVK_VERSION_PATCH ${CMAKE_MATCH_3})
    set(OVK_VERSION_BUILD ${CMAKE_MATCH_4})
    foreach(part IN ITEMS MAJOR MINOR PATCH BUILD)
        if(OVK_VERSION_${part} GREATER 65535)
            message(FATAL_ERROR "ovk_host_version: ${OVK_VERSION_${part}} does not fit in 16 bits")
        endif()
    endforeach()
    if(WIN32)
        set(source "${CMAKE_CURRENT_BINARY_DIR}/${TARGET}_ovk_version.rc")
        configure_file("${_ovk_host_version_dir}/host_version.rc.in" "${source}" @ONLY)
    else()
        set(source "${CMAKE_CURRENT_BINARY_DIR}/${TARGET}_ovk_version.cpp")
        configure_file("${_ovk_host_version_dir}/host_version.cpp.in" "${source}" @ONLY)
    endif()
    target_sources(${TARGET} PRIVATE "${source}")
    set_source_files_properties("${source}" PROPERTIES SKIP_AUTOGEN ON SKIP_PRECOMPILE_HEADERS ON)
endfunction()
