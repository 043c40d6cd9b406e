# Compiler settings that every target of the project shares.

find_program(OVK_CCACHE ccache)
if(OVK_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # Precompiled headers and __DATE__-free sources: the defines in the header do not vary by unit.
    set(CMAKE_CXX_COMPILER_LAUNCHER
        "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        "${OVK_CCACHE}")
endif()

add_library(ovk_options INTERFACE)
if(MSVC)
    target_compile_options(ovk_options INTERFACE /W4 /permissive- /utf-8)
    if(OVK_WARNINGS_AS_ERRORS)
        target_compile_options(ovk_options INTERFACE /WX)
    endif()
else()
    target_compile_options(ovk_options INTERFACE -Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Woverloaded-virtual -Winvalid-pch)
    if(OVK_WARNINGS_AS_ERRORS)
        target_compile_options(ovk_options INTERFACE -Werror)
    endif()
    # ccache finds the precompiled header by its content only with this.
    target_compile_options(ovk_options INTERFACE -fpch-preprocess)
endif()
target_compile_definitions(ovk_options INTERFACE
    QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_KEYWORDS QT_DEPRECATED_WARNINGS_SINCE=0x050f00)

if(OVK_SANITIZE AND NOT MSVC)
    add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined -g1)
    add_link_options(-fsanitize=address,undefined)
endif()

find_program(OVK_MOLD mold)
if(OVK_MOLD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_GREATER_EQUAL 12.1)
    add_link_options(-fuse-ld=mold)
endif()
