include(CMakePackageConfigHelpers)

# Components: Library is what a host needs to run, Development what its developers need.
install(TARGETS ovk EXPORT OvkTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT Library NAMELINK_COMPONENT Development
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT Library
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT Development)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/ovk" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}" COMPONENT Development
    FILES_MATCHING PATTERN "*.h" PATTERN "*_p.h" EXCLUDE)
set(_ovk_platform_folders windows)
if(NOT OVK_QTITAN_DIR)
    list(APPEND _ovk_platform_folders qtitan)
endif()
if(NOT OVK_VORSDK_DIR)
    list(APPEND _ovk_platform_folders vorsdk)
endif()
foreach(folder IN LISTS _ovk_platform_folders)
    install(DIRECTORY "${PROJECT_SOURCE_DIR}/platform/${folder}" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
        COMPONENT Development
        FILES_MATCHING PATTERN "*.h" PATTERN "*_p.h" EXCLUDE)
endforeach()

set(_ovk_cmake_dir "${CMAKE_INSTALL_LIBDIR}/cmake/Ovk")
install(EXPORT OvkTargets NAMESPACE Ovk:: DESTINATION "${_ovk_cmake_dir}" COMPONENT Development)
configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/OvkConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/OvkConfig.cmake" INSTALL_DESTINATION "${_ovk_cmake_dir}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/OvkConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/OvkConfig.cmake"
    "${PROJECT_BINARY_DIR}/OvkConfigVersion.cmake"
    "${PROJECT_SOURCE_DIR}/cmake/OvkHostVersion.cmake"
    "${PROJECT_SOURCE_DIR}/cmake/host_version.cpp.in"
    "${PROJECT_SOURCE_DIR}/cmake/host_version.rc.in"
    DESTINATION "${_ovk_cmake_dir}" COMPONENT Development)
