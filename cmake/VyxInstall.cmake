# Each decoding library is a project of its own, which builds alone or as a folder of this one, and installs as a CMake
# package: find_package(korvane_asterix) gives the target korvane::asterix, in the build tree and from outside alike.
# Included by every library's CMakeLists.txt right after its project().
include_guard(DIRECTORY) # some of the install folders are variables of the directory
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# A library built alone gets the language level and the warnings that it gets here, and is optimised unless asked not to.
if(PROJECT_IS_TOP_LEVEL)
    include(${CMAKE_CURRENT_LIST_DIR}/VyxCompiler.cmake)
    if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
        set(CMAKE_BUILD_TYPE Release)
    endif()
endif()

# vyx_install_library(<name> [PACKAGES <package arguments>...] [REQUIRES <modules>] [DATA <file>]): rules of target
# korvane_<name> in libs/<name>, whose public headers are those below include/. PACKAGES: what a user of the installed
# package has to find first, each one the arguments of a find_dependency in quotes; REQUIRES: the same as modules of
# pkg-config. DATA: a built file that is installed to share/korvane_<name> and that the package names in
# korvane_<name>_DATA_FILE, and pkg-config in the variable data_file. Built alone, the library's example is compiled too.
function(vyx_install_library name)
    cmake_parse_arguments(ARG "" "DATA" "PACKAGES;REQUIRES" ${ARGN})
    set(target korvane_${name})
    add_library(korvane::${name} ALIAS ${target})
    set_target_properties(${target} PROPERTIES EXPORT_NAME ${name})
    target_compile_features(${target} PUBLIC cxx_std_20)
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}/include> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)

    install(TARGETS ${target} EXPORT ${target} ARCHIVE COMPONENT ${target} LIBRARY COMPONENT ${target})
    install(DIRECTORY include/${name} TYPE INCLUDE COMPONENT ${target} FILES_MATCHING PATTERN "*.h")
    _vyx_install_package_files(${target} "${ARG_PACKAGES}" "${ARG_DATA}")
    _vyx_install_pkg_config_file(${target} "${ARG_REQUIRES}" "${ARG_DATA}")
    if(PROJECT_IS_TOP_LEVEL)
        _vyx_build_example(${target})
    endif()
endfunction()

function(_vyx_install_package_files target packages data)
    set(folder ${CMAKE_INSTALL_LIBDIR}/cmake/${target})
    set(config "include(CMakeFindDependencyMacro)\n")
    foreach(package IN LISTS packages)
        string(APPEND config "find_dependency(${package})\n")
    endforeach()
    string(APPEND config "include(\${CMAKE_CURRENT_LIST_DIR}/${target}-targets.cmake)\n")
    if(data)
        set(data_folder ${CMAKE_INSTALL_DATADIR}/${target})
        install(FILES ${data} DESTINATION ${data_folder} COMPONENT ${target})
        cmake_path(GET data FILENAME name)
        file(RELATIVE_PATH way /${folder} /${data_folder}/${name})
        string(APPEND config "cmake_path(ABSOLUTE_PATH ${target}_DATA_FILE NORMALIZE)\n")
        string(PREPEND config "set(${target}_DATA_FILE \"\${CMAKE_CURRENT_LIST_DIR}/${way}\")\n")
    endif()
    file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${target}-config.cmake CONTENT "${config}" @ONLY)
    write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/${target}-config-version.cmake
        VERSION ${PROJECT_VERSION} COMPATIBILITY SameMajorVersion)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${target}-config.cmake
        ${CMAKE_CURRENT_BINARY_DIR}/${target}-config-version.cmake DESTINATION ${folder} COMPONENT ${target})
    install(EXPORT ${target} FILE ${target}-targets.cmake NAMESPACE korvane:: DESTINATION ${folder}
        COMPONENT ${target})
endfunction()

# For those who build otherwise. The archive can be moved with the tree that it stands in.
function(_vyx_install_pkg_config_file target requires data)
    set(folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
    file(RELATIVE_PATH way /${folder} /)
    string(REGEX REPLACE "/$" "" way ${way})
    list(JOIN requires " " modules)
    set(text "prefix=\${pcfiledir}/${way}\n")
    if(data)
        cmake_path(GET data FILENAME file)
        string(APPEND text "data_file=\${prefix}/${CMAKE_INSTALL_DATADIR}/${target}/${file}\n")
    endif()
    string(APPEND text "\nName: ${target}\nDescription: ${PROJECT_DESCRIPTION}\nVersion: ${PROJECT_VERSION}\n"
        "Requires: ${modules}\nCflags: -I\${prefix}/${CMAKE_INSTALL_INCLUDEDIR}\n"
        "Libs: -L\${prefix}/${CMAKE_INSTALL_LIBDIR} -l${target} -lstdc++ -lm\n")
    file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${target}.pc CONTENT "${text}" @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${target}.pc DESTINATION ${folder} COMPONENT ${target})
endfunction()

function(_vyx_build_example target)
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/example/*.cpp)
    if(sources)
        add_library(${target}_example OBJECT ${sources})
        target_include_directories(${target}_example PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
        target_link_libraries(${target}_example PRIVATE ${target})
    endif()
endfunction()
