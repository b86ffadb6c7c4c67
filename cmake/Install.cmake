# SPDX-License-Identifier: MIT
# What `cmake --install` gives: headers under include/tintkit in the folders they have here, static
# libraries, and a package for find_package(TintKit).
include(CMakePackageConfigHelpers)

set(TINTKIT_PACKAGE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/TintKit")

# tintkit_install(NAME...): TintKit::NAME of the folder NAME. Its headers are those of the target
# property TINTKIT_HEADERS, all of its folder where that is not set.
function(tintkit_install)
    foreach(name IN LISTS ARGN)
        install(TARGETS tintkit_${name} EXPORT TintKitTargets)
        get_target_property(headers tintkit_${name} TINTKIT_HEADERS)
        if(headers)
            list(TRANSFORM headers PREPEND "${PROJECT_SOURCE_DIR}/${name}/")
            install(FILES ${headers} DESTINATION "${TINTKIT_HEADER_DIR}/${name}")
        elseif(NOT name STREQUAL framework)
            install(DIRECTORY "${PROJECT_SOURCE_DIR}/${name}/"
                DESTINATION "${TINTKIT_HEADER_DIR}/${name}" FILES_MATCHING PATTERN "*.h")
        elseif(NOT MSVC) # which has MFC
            install(DIRECTORY "${PROJECT_SOURCE_DIR}/framework/include/"
                DESTINATION "${TINTKIT_HEADER_DIR}/framework")
        endif()
    endforeach()
endfunction()

tintkit_install(${TINTKIT_LIBRARIES})
install(TARGETS tintkit EXPORT TintKitTargets)
install(TARGETS imageinfo)
install(FILES "${PROJECT_SOURCE_DIR}/tintkit.natvis" DESTINATION "${CMAKE_INSTALL_DATADIR}/tintkit")
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION "${CMAKE_INSTALL_DOCDIR}")

install(EXPORT TintKitTargets NAMESPACE TintKit:: DESTINATION "${TINTKIT_PACKAGE_DIR}")
configure_package_config_file(cmake/TintKitConfig.cmake.in TintKitConfig.cmake
    INSTALL_DESTINATION "${TINTKIT_PACKAGE_DIR}")
# Before 1.0 a new minor version may change what a user's program calls.
write_basic_package_version_file(TintKitConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES
    "${CMAKE_CURRENT_BINARY_DIR}/TintKitConfig.cmake"
    "${CMAKE_CURRENT_BINARY_DIR}/TintKitConfigVersion.cmake"
    DESTINATION "${TINTKIT_PACKAGE_DIR}")
