# vyx_add_translations(<target>): translations/vyxdisplay_*.ts as resources ":/translations/vyxdisplay_*.qm" of the target.
# Without Qt's tools for translators (package qt6-l10n-tools) there are none, and the program speaks English.
# The tools are looked for themselves, since Qt's package of that name asks for Designer and Assistant as well.
foreach(tool lrelease lupdate)
    string(TOUPPER VYX_${tool} program)
    find_program(${program} NAMES ${tool} ${tool}6 ${tool}-qt6
        HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS} /usr/lib/qt6/bin)
endforeach()
if(NOT VYX_LRELEASE)
    message(STATUS "Qt's lrelease is not installed (package qt6-l10n-tools): the program is built in English only")
endif()

function(vyx_add_translations target)
    if(NOT VYX_LRELEASE)
        return()
    endif()
    file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/translations/vyxdisplay_*.ts)
    foreach(source IN LISTS sources)
        cmake_path(GET source STEM name)
        set(compiled ${CMAKE_CURRENT_BINARY_DIR}/translations/${name}.qm)
        add_custom_command(OUTPUT ${compiled}
            COMMAND ${VYX_LRELEASE} -silent ${source} -qm ${compiled}
            DEPENDS ${source} VERBATIM)
        list(APPEND all ${compiled})
    endforeach()
    file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/translations)
    qt_add_resources(${target} translations PREFIX /translations BASE ${CMAKE_CURRENT_BINARY_DIR}/translations FILES ${all})
endfunction()
