# SPDX-License-Identifier: MIT
# An overlay port: it builds the checkout it stands in.
#
#     vcpkg install tintkit --overlay-ports=PATH\TO\TINTKIT\ports
cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH ports)
cmake_path(GET ports PARENT_PATH SOURCE_PATH)

vcpkg_check_linkage(ONLY_STATIC_LIBRARY)
if(VCPKG_TARGET_IS_WINDOWS AND NOT VCPKG_TARGET_IS_MINGW)
    # The libraries are built for the shared MFC.
    vcpkg_check_linkage(ONLY_DYNAMIC_CRT)
endif()

vcpkg_cmake_configure(
    SOURCE_PATH "${SOURCE_PATH}"
    OPTIONS
        -DTINTKIT_BUILD_TESTS=OFF
        -DTINTKIT_BUILD_GALLERY=OFF
        -DTINTKIT_BUILD_BENCH=OFF)
vcpkg_cmake_install()
vcpkg_cmake_config_fixup(PACKAGE_NAME TintKit CONFIG_PATH lib/cmake/TintKit)
vcpkg_copy_tools(TOOL_NAMES imageinfo AUTO_CLEAN)

file(REMOVE_RECURSE
    "${CURRENT_PACKAGES_DIR}/debug/include"
    "${CURRENT_PACKAGES_DIR}/debug/share")
vcpkg_install_copyright(FILE_LIST "${SOURCE_PATH}/LICENSE")
