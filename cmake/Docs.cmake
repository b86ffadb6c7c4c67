# SPDX-License-Identifier: MIT
# The target `docs` (setup/docs): reference pages from the headers that are installed, and the pages of
# docs/, as build/PRESET/reference/html/index.html. Any warning of Doxygen's fails it.
find_package(Doxygen 1.9 QUIET)
if(NOT Doxygen_FOUND)
    add_custom_target(docs
        COMMAND ${CMAKE_COMMAND} -E echo
            "The reference is made by Doxygen, which was not found: see setup/docs."
        COMMAND ${CMAKE_COMMAND} -E false)
    return()
endif()

# All folders of the toolkit, whichever of them this tree builds; the stand-in's reference is MFC's.
set(pages "${PROJECT_SOURCE_DIR}/docs")
foreach(folder IN ITEMS draw controls menus decorations image diag)
    set(headers "")
    if(TARGET tintkit_${folder})
        get_target_property(headers tintkit_${folder} TINTKIT_HEADERS)
    endif()
    if(headers)
        list(TRANSFORM headers PREPEND "${PROJECT_SOURCE_DIR}/${folder}/")
        list(APPEND pages ${headers})
    elseif(EXISTS "${PROJECT_SOURCE_DIR}/${folder}")
        list(APPEND pages "${PROJECT_SOURCE_DIR}/${folder}")
    endif()
endforeach()

set(DOXYGEN_PROJECT_NUMBER "${PROJECT_VERSION}")
set(DOXYGEN_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/reference")
set(DOXYGEN_FILE_PATTERNS *.h *.md)
set(DOXYGEN_USE_MDFILE_AS_MAINPAGE "${PROJECT_SOURCE_DIR}/docs/README.md")
set(DOXYGEN_IMAGE_PATH "${PROJECT_SOURCE_DIR}/docs/pictures")
set(DOXYGEN_STRIP_FROM_PATH "${PROJECT_SOURCE_DIR}")
set(DOXYGEN_STRIP_FROM_INC_PATH "${PROJECT_SOURCE_DIR}")
set(DOXYGEN_FULL_PATH_NAMES YES)
set(DOXYGEN_HAVE_DOT NO)
set(DOXYGEN_GENERATE_LATEX NO)
set(DOXYGEN_QUIET YES)
set(DOXYGEN_JAVADOC_AUTOBRIEF YES)
set(DOXYGEN_HIDE_UNDOC_RELATIONS NO)
set(DOXYGEN_HIDE_SCOPE_NAMES YES)
set(DOXYGEN_SORT_MEMBER_DOCS NO) # their order in the header tells something
# A member whose name says all has no comment, and is shown all the same.
set(DOXYGEN_EXTRACT_ALL YES)
set(DOXYGEN_WARN_IF_INCOMPLETE_DOC NO)
set(DOXYGEN_WARN_AS_ERROR FAIL_ON_WARNINGS)
set(DOXYGEN_MACRO_EXPANSION YES)
set(DOXYGEN_EXPAND_ONLY_PREDEF YES)
set(DOXYGEN_PREDEFINED
    _WIN32 afx_msg= "DECLARE_MESSAGE_MAP()=" "DECLARE_DYNAMIC(x)=" "DECLARE_DYNCREATE(x)=")
doxygen_add_docs(docs ${pages} COMMENT "writing the reference")
