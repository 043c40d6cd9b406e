# ovk_add_tests(NAME SOURCES ... [LIBRARIES ...] [DISPLAY])
#
# One test executable `test_NAME` of a folder of tests. Each source may hold one or more classes
# registered with OVK_TEST_CLASS(Class) at the start of a line; each class becomes one CTest entry
# `NAME.Class` that runs in a process of its own, so that no class sees what another left behind.
# With DISPLAY each process has an X server with a window manager to itself.
set_property(GLOBAL PROPERTY OVK_TEST_ENVIRONMENT
    "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;XDG_RUNTIME_DIR=${PROJECT_BINARY_DIR}/runtime"
    "ASAN_OPTIONS=detect_leaks=1:detect_stack_use_after_return=1"
    "UBSAN_OPTIONS=print_stacktrace=1"
    "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/lsan.supp:print_suppressions=0")
file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/runtime")

function(ovk_add_tests NAME)
    cmake_parse_arguments(ARG "DISPLAY" "" "SOURCES;LIBRARIES" ${ARGN})
    set(target test_${NAME})
    add_executable(${target} ${ARG_SOURCES})
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    target_link_libraries(${target} PRIVATE ovk_test_support ovk ovk_options Qt5::Test ${ARG_LIBRARIES})
    target_precompile_headers(${target} REUSE_FROM ovk_test_pch)
    get_property(environment GLOBAL PROPERTY OVK_TEST_ENVIRONMENT)
    set(runner)
    if(ARG_DISPLAY)
        set(runner bash "${PROJECT_SOURCE_DIR}/tools/with_display.sh" --size 1280x1024)
    endif()
    foreach(source IN LISTS ARG_SOURCES)
        if(NOT source MATCHES "\\.cpp$")
            continue()
        endif()
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${source}")
        file(STRINGS "${source}" classes REGEX "^OVK_TEST_CLASS\\(")
        foreach(line IN LISTS classes)
            string(REGEX REPLACE "^OVK_TEST_CLASS\\(([A-Za-z0-9_:]+)\\).*" "\\1" class "${line}")
            add_test(NAME "${NAME}.${class}" COMMAND ${runner} $<TARGET_FILE:${target}> "--class=${class}")
            set_tests_properties("${NAME}.${class}" PROPERTIES TIMEOUT 300 ENVIRONMENT "${environment}")
        endforeach()
    endforeach()
endfunction()
