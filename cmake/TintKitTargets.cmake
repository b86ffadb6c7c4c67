# SPDX-License-Identifier: MIT
# The shapes our targets come in, so that a folder's CMakeLists.txt only lists what it holds.

set(TINTKIT_HEADER_DIR "${CMAKE_INSTALL_INCLUDEDIR}/tintkit")

# What libraries and programs have in common.
function(tintkit_configure target)
    target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:tintkit_settings>)
    if(WIN32)
        target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:tintkit_windows>)
    endif()
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
        $<INSTALL_INTERFACE:${TINTKIT_HEADER_DIR}>)
endfunction()

# tintkit_add_library(NAME SOURCE...): the static library TintKit::NAME.
function(tintkit_add_library name)
    add_library(tintkit_${name} STATIC ${ARGN})
    add_library(TintKit::${name} ALIAS tintkit_${name})
    # A Debug and a Release library can be installed side by side.
    set_target_properties(tintkit_${name} PROPERTIES EXPORT_NAME ${name} DEBUG_POSTFIX d)
    target_compile_features(tintkit_${name} PUBLIC cxx_std_17) # its headers' too
    if(MSVC)
        # Into the debug information of the user's program.
        target_link_options(tintkit_${name} INTERFACE
            $<BUILD_INTERFACE:/NATVIS:${PROJECT_SOURCE_DIR}/tintkit.natvis>
            $<INSTALL_INTERFACE:/NATVIS:$<INSTALL_PREFIX>/${CMAKE_INSTALL_DATADIR}/tintkit/tintkit.natvis>)
    endif()
    tintkit_configure(tintkit_${name})
endfunction()

# tintkit_add_program(NAME SOURCE...): the console program NAME.
function(tintkit_add_program name)
    add_executable(${name} ${ARGN})
    tintkit_configure(${name})
endfunction()

# tintkit_add_test(NAME [RETRIES_WINE_FAULTS] TIMEOUT SECONDS SOURCES ... LIBRARIES ...): the program
# NAME_test, run as one test. A message box that waits for ever is ended by the time limit; a crash is
# a failure. With RETRIES_WINE_FAULTS, a run that a fault of Wine's own has ended is repeated.
function(tintkit_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "RETRIES_WINE_FAULTS" "TIMEOUT" "SOURCES;LIBRARIES")
    if(WIN32)
        list(APPEND arg_SOURCES "${PROJECT_SOURCE_DIR}/tests/support/CrashGuard.cpp")
    endif()
    tintkit_add_program(${name}_test ${arg_SOURCES})
    target_link_libraries(${name}_test PRIVATE ${arg_LIBRARIES})
    if(arg_RETRIES_WINE_FAULTS AND CMAKE_CROSSCOMPILING_EMULATOR)
        add_test(NAME ${TINTKIT_TEST_PREFIX}${name} COMMAND
            "${PROJECT_SOURCE_DIR}/tests/support/retry_wine_fault.py"
            ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:${name}_test>)
    else()
        add_test(NAME ${TINTKIT_TEST_PREFIX}${name} COMMAND ${name}_test)
    endif()
    set_tests_properties(${TINTKIT_TEST_PREFIX}${name} PROPERTIES TIMEOUT ${arg_TIMEOUT})
    if(WIN32)
        # There is one keyboard, one mouse and one foreground window.
        set_tests_properties(${TINTKIT_TEST_PREFIX}${name} PROPERTIES RESOURCE_LOCK screen)
    endif()
endfunction()

# Tells the tests of the build trees apart where all are run together.
if(WIN32)
    set(TINTKIT_TEST_PREFIX windows.)
elseif(TINTKIT_BUILD_FUZZ)
    set(TINTKIT_TEST_PREFIX fuzz.)
elseif(TINTKIT_SANITIZE)
    set(TINTKIT_TEST_PREFIX sanitize.)
else()
    set(TINTKIT_TEST_PREFIX native.)
endif()
