# Debian packages by CPack, one for each component: `cpack -G DEB` in a build folder. The library, what
# developers need, the tools and the Qt Designer plugin are apart; dependencies are computed.
if(NOT PROJECT_IS_TOP_LEVEL)
    return()
endif()

set(CPACK_PACKAGE_NAME ovk)
set(CPACK_PACKAGE_VENDOR "Ovk")
set(CPACK_PACKAGE_CONTACT "Ovk developers <ovk@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
set(CPACK_STRIP_FILES ON)
set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
get_cmake_property(_ovk_components COMPONENTS)
set(CPACK_COMPONENTS_ALL Library Development Tools)
if(Designer IN_LIST _ovk_components)
    list(APPEND CPACK_COMPONENTS_ALL Designer)
endif()

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS OFF)

set(_ovk_library_package "libovk${PROJECT_VERSION_MAJOR}")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME "${_ovk_library_package}")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_DESCRIPTION "Application frame and widget kit for Qt 5
 A ribbon window, commands, typed preferences, units, docking, and a description
 of the whole interface that users customise and that survives upgrades.")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(_ovk_same_library "${_ovk_library_package} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libovk-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${_ovk_same_library}, qtbase5-dev (>= 5.15), cmake (>= 3.22)")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "Application frame and widget kit for Qt 5: development files
 Headers and the CMake package of Ovk.")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME ovk-tools)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${_ovk_same_library}")
set(CPACK_DEBIAN_TOOLS_DESCRIPTION "Application frame and widget kit for Qt 5: tools
 ovk-profile reads, checks, compares and merges profiles of the interface.")

set(CPACK_DEBIAN_DESIGNER_PACKAGE_NAME ovk-designer-plugin)
set(CPACK_DEBIAN_DESIGNER_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_DESIGNER_PACKAGE_DEPENDS "${_ovk_same_library}")
set(CPACK_DEBIAN_DESIGNER_DESCRIPTION "Application frame and widget kit for Qt 5: Qt Designer plugin
 The widgets of Ovk in the widget box of Qt Designer.")

include(CPack)
