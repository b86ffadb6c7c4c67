# SPDX-License-Identifier: MIT
# How everything of ours is compiled, in one place, as two interface targets:
#   tintkit_settings  every target of the project (never passed on to users)
#   tintkit_windows   every Windows target: the narrow, 64-bit build the toolkit is written for

add_library(tintkit_settings INTERFACE)
target_compile_features(tintkit_settings INTERFACE cxx_std_17)
set(CMAKE_CXX_EXTENSIONS OFF)

# COMPILE_LANGUAGE keeps the compiler's options away from the resource compiler.
if(MSVC)
    # Not /WX: no warning of a compiler that we have not tried is to stop a user's build.
    target_compile_options(tintkit_settings INTERFACE
        $<$<COMPILE_LANGUAGE:CXX>:/W4 /permissive- /utf-8 /external:anglebrackets /external:W0>)
else()
    target_compile_options(tintkit_settings INTERFACE
        $<$<COMPILE_LANGUAGE:CXX>:-Wall -Wextra -Wpedantic -Werror>)
endif()

if(TINTKIT_SANITIZE OR TINTKIT_BUILD_FUZZ)
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all)
    target_compile_options(tintkit_settings INTERFACE ${sanitizers} -fno-omit-frame-pointer -g)
    target_link_options(tintkit_settings INTERFACE ${sanitizers})
endif()
if(TINTKIT_BUILD_FUZZ)
    # Coverage for the libraries; the fuzz programs themselves link with -fsanitize=fuzzer.
    target_compile_options(tintkit_settings INTERFACE -fsanitize=fuzzer-no-link)
endif()

add_library(tintkit_windows INTERFACE)
target_compile_definitions(tintkit_windows INTERFACE
    _MBCS STRICT NOMINMAX WINVER=0x0601 _WIN32_WINNT=0x0601 _WIN32_IE=0x0800)
if(MSVC)
    set(CMAKE_MFC_FLAG 2) # the shared MFC
elseif(MINGW)
    # Programs that start without the compiler's DLLs beside them.
    target_link_options(tintkit_windows INTERFACE -static -static-libgcc -static-libstdc++)
endif()
