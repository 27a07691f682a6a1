# Two Debian packages by CPack: the programs, and the libraries with their headers.
set(VYX_PACKAGE_CONTACT "Korvane <vyxdisplay@korvane.example>" CACHE STRING "Who answers for the packages")
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC) # as changelogs have it
file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/prepare.cmake @ONLY CONTENT
    "set(contact \"@VYX_PACKAGE_CONTACT@\")\nset(version \"@PROJECT_VERSION@\")\nset(date \"@date@\")
set(source \"@CMAKE_CURRENT_LIST_DIR@\")\ninclude(\"@CMAKE_CURRENT_LIST_DIR@/prepare_tree.cmake\")\n")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vyxdisplay)
set(CPACK_PACKAGE_VENDOR Korvane)
set(CPACK_PACKAGE_CONTACT "${VYX_PACKAGE_CONTACT}")
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_BINARY_DIR}/prepare.cmake)

set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_COMPONENTS_ALL programs)
foreach(library airdb asterix astfile modes sirm)
    list(APPEND CPACK_COMPONENTS_ALL korvane_${library})
endforeach()

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)

set(CPACK_DEBIAN_PROGRAMS_PACKAGE_NAME vyxdisplay)
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_SHLIBDEPS ON)
# What is loaded rather than linked: platforms without a screen, pictures and icons in SVG, files of tiles; a face of
# fixed width; who makes the user of the service.
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_DEPENDS "qt6-qpa-plugins, libqt6svg6, libqt6sql6-sqlite, fonts-dejavu-core, \
systemd | systemd-standalone-sysusers | systemd-sysusers")
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_LIST_DIR}/postinst ${CMAKE_CURRENT_LIST_DIR}/prerm
    ${CMAKE_CURRENT_LIST_DIR}/postrm)
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_RECOMMENDS "fonts-noto-cjk, qt6-wayland, qt6-translations-l10n, xdg-utils")
set(CPACK_DEBIAN_PROGRAMS_DESCRIPTION "air traffic surveillance display
A surveillance terminal for radar technicians, controllers and analysts. It
receives ASTERIX, Mode S and Alenia SIR-M data over UDP, a serial line or from
a recording and draws tracks, safety-net alerts, weather and radar video over
maps.

With it come programs that decode, check, draw and make such data: vyx-asterix,
vyx-modes, vyx-map and vyx-traffic.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libkorvane-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "libpcap-dev, qt6-base-dev, zlib1g-dev")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "decoding of surveillance data, for development
Libraries for ASTERIX data blocks, Mode S frames, Alenia SIR-M messages,
recordings and aircraft addresses, with what CMake and pkg-config need to find
them: korvane_asterix, korvane_modes, korvane_sirm, korvane_astfile and
korvane_airdb.")

include(CPack)
cpack_add_component_group(programs)
cpack_add_component_group(development)
cpack_add_component(programs GROUP programs)
foreach(library airdb asterix astfile modes sirm)
    cpack_add_component(korvane_${library} GROUP development)
endforeach()
