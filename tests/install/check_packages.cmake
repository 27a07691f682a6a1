# Installs the libraries, and builds and runs a program that knows only the installed packages. Run as a script with
# SOURCE (of the whole project), WORK (a folder that is kept from run to run, so that the next one compiles what has
# changed), GENERATOR, and BUILD: the whole project's build folder, whose libraries are installed. Each library is then
# configured alone and its example compiled. Without BUILD each one is built alone, which takes minutes, and installed
# from there.

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN}\n${output}")
    endif()
endfunction()

# Neither optimised nor with debug information: what is tested is that it builds.
set(arguments -G ${GENERATOR} -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=)
set(prefix ${WORK}/prefix)
file(REMOVE_RECURSE ${prefix})
foreach(library airdb asterix astfile modes sirm)
    run(${CMAKE_COMMAND} -S ${SOURCE}/libs/${library} -B ${WORK}/${library} ${arguments})
    if(BUILD)
        run(${CMAKE_COMMAND} --build ${WORK}/${library} --target korvane_${library}_example)
        run(${CMAKE_COMMAND} --install ${BUILD} --component korvane_${library} --prefix ${prefix})
    else()
        run(${CMAKE_COMMAND} --build ${WORK}/${library})
        run(${CMAKE_COMMAND} --install ${WORK}/${library} --prefix ${prefix})
    endif()
endforeach()

# Headers are found in the installed tree and nowhere else.
file(GLOB_RECURSE packages ${prefix}/*.cmake)
foreach(package IN LISTS packages)
    file(STRINGS ${package} traces REGEX "${SOURCE}/|${WORK}/")
    if(traces)
        message(FATAL_ERROR "${package} points into the build: ${traces}")
    endif()
endforeach()

# Moved, as a package is between the machine that makes it and the one that uses it.
file(REMOVE_RECURSE ${WORK}/elsewhere)
file(RENAME ${prefix} ${WORK}/elsewhere)
run(${CMAKE_COMMAND} -S ${SOURCE}/tests/install/consumer -B ${WORK}/consumer ${arguments}
    -DCMAKE_PREFIX_PATH=${WORK}/elsewhere)
run(${CMAKE_COMMAND} --build ${WORK}/consumer)
run(${CMAKE_CTEST_COMMAND} --test-dir ${WORK}/consumer)

# The same for those who build with pkg-config.
find_program(PKG_CONFIG pkg-config)
file(GLOB_RECURSE modules ${WORK}/elsewhere/*/korvane_asterix.pc)
cmake_path(GET modules PARENT_PATH folder)
foreach(library asterix astfile)
    if(PKG_CONFIG)
        run(sh -c "c++ -std=c++20 -fPIC ${SOURCE}/tests/install/consumer/${library}.cpp -o ${WORK}/${library}-program \
            $(PKG_CONFIG_PATH=${folder} ${PKG_CONFIG} --cflags --libs korvane_${library}) && ${WORK}/${library}-program")
    endif()
endforeach()
