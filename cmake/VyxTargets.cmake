# vyx_folder_library(<folder> LINKS <targets> [PCH core|widgets] [MOC] [UNITY])
#
# One library per folder of src/, made of every source file in it but a main.cpp. Its headers are included as
# "folder/header.h" and are visible to those targets alone that link it: the include path holds a link to this folder
# and to no other, so an include of a higher floor, or of a folder that is not linked, does not compile.
# MOC: the folder has classes with Q_OBJECT, Q_GADGET or Q_NAMESPACE, or resources.
# UNITY: its sources are compiled several at a time where VYX_UNITY is on. Only for folders that need no widgets: ./test
# builds those that way, and so finds names that clash; in the others only a release would.
function(vyx_folder_library folder)
    cmake_parse_arguments(ARG "MOC;UNITY" "PCH" "LINKS" ${ARGN})
    set(target vyx_${folder})
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
    list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
    add_library(${target} STATIC ${sources})
    set(root ${CMAKE_BINARY_DIR}/include/${target})
    file(MAKE_DIRECTORY ${root})
    file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${root}/${folder} SYMBOLIC)
    target_include_directories(${target} PUBLIC ${root})
    target_link_libraries(${target} PUBLIC ${ARG_LINKS})
    set_target_properties(${target} PROPERTIES AUTOMOC ${ARG_MOC} AUTORCC ${ARG_MOC})
    vyx_use_pch(${target} "${ARG_PCH}")
    if(ARG_UNITY)
        vyx_use_unity(${target})
    endif()
endfunction()

# vyx_program(<target>): a program that is installed, and that the man page, the completions and the packages know. What is
# built finds libraries in lib/ beside bin/, where a portable tree has copies of them, those that the libraries need
# themselves included; what is installed has the system's.
function(vyx_program target)
    set_target_properties(${target} PROPERTIES BUILD_RPATH "$ORIGIN/../lib")
    target_link_options(${target} PRIVATE -Wl,--disable-new-dtags)
    install(TARGETS ${target} RUNTIME COMPONENT programs)
    set_property(GLOBAL APPEND PROPERTY VYX_PROGRAMS ${target})
    if(NOT TARGET programs)
        add_custom_target(programs)
    endif()
    add_dependencies(programs ${target})
endfunction()

# A folder that asks for it is compiled several sources at a time where nobody works on single ones. Its sources then
# share one anonymous namespace.
function(vyx_use_unity target)
    set_target_properties(${target} PROPERTIES UNITY_BUILD "${VYX_UNITY}" UNITY_BUILD_BATCH_SIZE 6)
endfunction()

# Shares one precompiled set of headers among the targets of a kind: core (Qt Core and Gui) or widgets, and the same with
# Qt Test, tests_core and tests_widgets.
function(vyx_use_pch target kind)
    if(VYX_QUICK_BUILD AND kind)
        target_precompile_headers(${target} REUSE_FROM vyx_pch_${kind})
    endif()
endfunction()

# Undefined behaviour is looked for in what the tests test, not in their own sources, which makes these compile in half the
# time. Of Qt Test they take the headers and the library, not the definitions: those name each test's folder, which would
# keep tests from sharing precompiled headers.
function(vyx_compile_as_test target)
    if(VYX_SANITIZE MATCHES "undefined")
        target_compile_options(${target} PRIVATE -fno-sanitize=undefined)
    endif()
    target_include_directories(${target} SYSTEM PRIVATE $<TARGET_PROPERTY:Qt6::Test,INTERFACE_INCLUDE_DIRECTORIES>)
    target_link_libraries(${target} PRIVATE $<LINK_ONLY:Qt6::Test>)
endfunction()

# vyx_test_folder(<folder> LINKS <targets> [PCH kind] [APPLICATION core|gui|widgets] [FIXTURES <test folders>]
#     [SOURCES <files>] [EXCEPT <names>])
#
# One program, tests_<folder>, of every tst_*.cpp in tests/<folder>; each file is a ctest entry of its own, run without
# a screen in a process of its own. APPLICATION: the kind of application object that the tests run in. FIXTURES: other
# test folders whose headers are used. EXCEPT: files that are not built here, without their ending.
function(vyx_test_folder folder)
    cmake_parse_arguments(ARG "UNITY" "PCH;APPLICATION" "LINKS;FIXTURES;SOURCES;EXCEPT" ${ARGN})
    set(target tests_${folder})
    file(GLOB files CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/tst_*.cpp)
    list(TRANSFORM ARG_EXCEPT PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
    list(TRANSFORM ARG_EXCEPT APPEND .cpp)
    list(REMOVE_ITEM files ${ARG_EXCEPT})
    add_executable(${target} ${files} ${ARG_SOURCES} ${PROJECT_SOURCE_DIR}/tests/test_program.cpp)
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    if(VYX_SANITIZE STREQUAL "thread")
        target_sources(${target} PRIVATE ${PROJECT_SOURCE_DIR}/tests/thread_sanitizer.cpp)
    endif()
    list(TRANSFORM ARG_FIXTURES PREPEND ${PROJECT_SOURCE_DIR}/tests/)
    target_include_directories(${target} PRIVATE
        ${PROJECT_SOURCE_DIR}/tests ${CMAKE_CURRENT_SOURCE_DIR} ${ARG_FIXTURES})
    target_link_libraries(${target} PRIVATE ${ARG_LINKS})
    if(ARG_APPLICATION STREQUAL "widgets")
        target_link_libraries(${target} PRIVATE Qt6::Widgets)
        target_compile_definitions(${target} PRIVATE VYX_TEST_APPLICATION=QApplication)
    elseif(ARG_APPLICATION STREQUAL "gui")
        target_link_libraries(${target} PRIVATE Qt6::Gui)
        target_compile_definitions(${target} PRIVATE VYX_TEST_APPLICATION=QGuiApplication)
    else()
        target_compile_definitions(${target} PRIVATE VYX_TEST_APPLICATION=QCoreApplication)
    endif()
    vyx_compile_as_test(${target})
    vyx_use_pch(${target} "tests_${ARG_PCH}")
    if(ARG_UNITY)
        vyx_use_unity(${target})
    endif()
    foreach(file IN LISTS files)
        cmake_path(GET file STEM name)
        add_test(NAME ${folder}/${name} COMMAND ${target} ${name})
        set_tests_properties(${folder}/${name} PROPERTIES
            ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8" TIMEOUT 120)
    endforeach()
endfunction()

# vyx_bench(<name> LINKS <targets> [PCH kind] [APPLICATION]): <name>.cpp in the current folder becomes a
# Google Benchmark program that the target "bench" runs; its main() is its own, or one that makes an application first.
function(vyx_bench name)
    cmake_parse_arguments(ARG "APPLICATION" "PCH" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${name}.cpp ${ARG_SOURCES})
    if(ARG_APPLICATION)
        target_sources(${name} PRIVATE ${PROJECT_SOURCE_DIR}/bench/bench_program.cpp)
    endif()
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/bench)
    target_link_libraries(${name} PRIVATE ${ARG_LINKS} benchmark::benchmark)
    vyx_use_pch(${name} "${ARG_PCH}")
    set_property(GLOBAL APPEND PROPERTY VYX_BENCHES ${name})
endfunction()
