# build_info.h: the version and the git revision that a program is built from. Included, this file offers
# vyx_generate_build_info(<target>); run as a script, it writes the header.

# The target sees "build_info.h", written again whenever HEAD has moved. A tarball has no HEAD and gets "unknown".
function(vyx_generate_build_info target)
    set(directory ${CMAKE_CURRENT_BINARY_DIR}/build_info)
    _vyx_find_git_head_files(head_files)
    add_custom_command(
        OUTPUT ${directory}/build_info.h
        COMMAND ${CMAKE_COMMAND} -DSOURCE=${PROJECT_SOURCE_DIR} -DVERSION=${PROJECT_VERSION}
            -DOUTPUT=${directory}/build_info.h -P ${PROJECT_SOURCE_DIR}/cmake/VyxBuildInfo.cmake
        DEPENDS ${PROJECT_SOURCE_DIR}/cmake/VyxBuildInfo.cmake ${PROJECT_SOURCE_DIR}/CMakeLists.txt
            ${head_files}
        VERBATIM)
    add_custom_target(build_info DEPENDS ${directory}/build_info.h)
    target_sources(${target} PRIVATE ${directory}/build_info.h)
    set_source_files_properties(${directory}/build_info.h PROPERTIES SKIP_AUTOGEN ON)
    target_include_directories(${target} PRIVATE ${directory})
endfunction()

# The files that change when HEAD moves, in a work tree of its own too. A parent directory's repository is not ours.
function(_vyx_find_git_head_files result)
    set(files "")
    if(EXISTS ${PROJECT_SOURCE_DIR}/.git)
        foreach(name HEAD logs/HEAD)
            execute_process(COMMAND git rev-parse --git-path ${name} WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
                OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
            get_filename_component(path "${path}" ABSOLUTE BASE_DIR ${PROJECT_SOURCE_DIR})
            if(EXISTS ${path} AND NOT IS_DIRECTORY ${path})
                list(APPEND files ${path})
            endif()
        endforeach()
    endif()
    set(${result} ${files} PARENT_SCOPE)
endfunction()

if(CMAKE_SCRIPT_MODE_FILE STREQUAL CMAKE_CURRENT_LIST_FILE)
    set(revision "")
    if(EXISTS ${SOURCE}/.git)
        execute_process(COMMAND git rev-parse --short=7 --verify HEAD WORKING_DIRECTORY ${SOURCE}
            OUTPUT_VARIABLE revision OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
    endif()
    if(revision)
        set(revision "0x${revision}")
    else()
        set(revision "unknown")
    endif()
    file(WRITE ${OUTPUT}
        "#pragma once\n\n#define VYX_VERSION \"${VERSION}\"\n#define VYX_GIT_REVISION \"${revision}\"\n")
endif()
