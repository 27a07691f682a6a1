# vyx_folder_library(<folder> LINKS <targets> [PCH core|widgets] [EXCEPT <files>])
#
# One library per folder of src/, made of every source file in it. Its headers are included as "folder/header.h" and are visible to those targets alone
# that link it: the include path holds a link to this folder and to no other, so an include of a higher floor, or of a
# folder that is not linked, does not compile.
function(vyx_folder_library folder)
    cmake_parse_arguments(ARG "" "PCH" "LINKS;EXCEPT" ${ARGN})
    set(target vyx_${folder})
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
    list(TRANSFORM ARG_EXCEPT PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
    list(REMOVE_ITEM sources ${ARG_EXCEPT})
    add_library(${target} STATIC ${sources})
    vyx_publish_headers(${target} PUBLIC ${folder})
    target_link_libraries(${target} PUBLIC ${ARG_LINKS})
    vyx_use_pch(${target} "${ARG_PCH}")
endfunction()

# Makes the headers of src/<folder> (or only those named after it) visible as "folder/header.h" to the target's users.
function(vyx_publish_headers target scope folder)
    set(root ${CMAKE_BINARY_DIR}/include/${target})
    if(ARGN)
        file(MAKE_DIRECTORY ${root}/${folder})
        foreach(header IN LISTS ARGN)
            file(CREATE_LINK ${PROJECT_SOURCE_DIR}/src/${folder}/${header} ${root}/${folder}/${header} SYMBOLIC)
        endforeach()
    else()
        file(MAKE_DIRECTORY ${root})
        file(CREATE_LINK ${PROJECT_SOURCE_DIR}/src/${folder} ${root}/${folder} SYMBOLIC)
    endif()
    target_include_directories(${target} ${scope} ${root})
endfunction()

# Shares one precompiled set of Qt headers among the targets of a kind: core (Core, Gui, Network) or widgets.
# Not with libFuzzer, whose coverage flags differ between targets.
function(vyx_use_pch target kind)
    if(VYX_FUZZ)
        return()
    endif()
    if(kind STREQUAL "core" OR kind STREQUAL "widgets")
        target_precompile_headers(${target} REUSE_FROM vyx_pch_${kind})
    endif()
endfunction()

# vyx_test(<folder> <name> LINKS <targets> [PCH kind]): tests/<folder>/<name>.cpp becomes the program and ctest entry
# <name>, run without a screen.
function(vyx_test folder name)
    cmake_parse_arguments(ARG "" "PCH" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${name}.cpp ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LINKS} Qt6::Test)
    vyx_use_pch(${name} "${ARG_PCH}")
    add_test(NAME ${folder}/${name} COMMAND ${name})
    set_tests_properties(${folder}/${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8" TIMEOUT 120)
endfunction()

# vyx_bench(<name> LINKS <targets> [PCH kind]): <name>.cpp in the current folder becomes a Google Benchmark program that
# the target "bench" runs.
function(vyx_bench name)
    cmake_parse_arguments(ARG "" "PCH" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${name}.cpp ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LINKS} benchmark::benchmark)
    vyx_use_pch(${name} "${ARG_PCH}")
    set_property(GLOBAL APPEND PROPERTY VYX_BENCHES ${name})
endfunction()
