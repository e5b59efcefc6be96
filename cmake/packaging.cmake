# The Debian packages: "wirepane"; the libraries and the module, under a name that changes with their interface;
# "wirepane-wire", what speaks with the server of a wire; "wirepane-sound", what plays tones; and "wirepane-dev" for embedders. Debug symbols stand in packages of their own ("-dbgsym").
set(WIREPANE_CONTACT "The Wirepane authors <authors@wirepane.example>" CACHE STRING "Who answers for the packages")
set(WIREPANE_TERMINAL_PACKAGE wirepane)
set(WIREPANE_LIBRARY_PACKAGE libwirepane-host${WIREPANE_ABI})
set(WIREPANE_DEVELOPMENT_PACKAGE wirepane-dev)

set(WIREPANE_WIRE_PACKAGE wirepane-wire)
set(WIREPANE_SOUND_PACKAGE wirepane-sound)
set(WIREPANE_COMPONENTS terminal library development)
if(TARGET wirepane_wire_postgres)
    list(APPEND WIREPANE_COMPONENTS wire)
endif()
if(TARGET wirepane_sound)
    list(APPEND WIREPANE_COMPONENTS sound)
endif()

# What Debian asks of every package.
foreach(component ${WIREPANE_COMPONENTS})
    string(TOUPPER ${component} part)
    set(package ${WIREPANE_${part}_PACKAGE})
    install(FILES packaging/copyright DESTINATION share/doc/${package} COMPONENT ${component})
    wirepane_install_compressed(packaging/changelog share/doc/${package} ${component})
    set(CPACK_DEBIAN_${part}_PACKAGE_NAME ${package})
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME wirepane)
set(CPACK_PACKAGE_CONTACT ${WIREPANE_CONTACT})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "news terminal, and the news module that terminals embed")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL ${WIREPANE_COMPONENTS})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_POST_BUILD_SCRIPTS ${CMAKE_SOURCE_DIR}/packaging/finish_packages.cmake)
# Its own libraries are in the packages: without their folders the dependencies cannot be worked out.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})

set(CPACK_DEBIAN_TERMINAL_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_TERMINAL_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_TERMINAL_DEBUGINFO_PACKAGE ON)
set(CPACK_DEBIAN_TERMINAL_PACKAGE_DEPENDS "${WIREPANE_LIBRARY_PACKAGE} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_TERMINAL_PACKAGE_RECOMMENDS "${WIREPANE_SOUND_PACKAGE}, fonts-noto-cjk, fonts-noto-cjk-extra, fonts-liberation, qt6-translations-l10n, qt6-wayland")
set(CPACK_COMPONENT_TERMINAL_DESCRIPTION
    "Reads, searches, prints and saves securities news as it arrives.\n It keeps its news in a store of its own.")

set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_LIBRARY_DEBUGINFO_PACKAGE ON)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY =)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${CMAKE_SOURCE_DIR}/packaging/triggers)
set(CPACK_COMPONENT_LIBRARY_DESCRIPTION
    "What a terminal with Wirepane's news module in it runs with.\n The libraries of the contract and the host, and the module.")

set(CPACK_DEBIAN_WIRE_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_WIRE_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_WIRE_DEBUGINFO_PACKAGE ON)
set(CPACK_DEBIAN_WIRE_PACKAGE_DEPENDS "${WIREPANE_TERMINAL_PACKAGE} (= ${PROJECT_VERSION})")
set(CPACK_COMPONENT_WIRE_DESCRIPTION
    "Lets Wirepane's terminals follow a wire that PostgreSQL keeps.\n Loaded when a wire is named.")

set(CPACK_DEBIAN_SOUND_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_SOUND_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_SOUND_DEBUGINFO_PACKAGE ON)
set(CPACK_DEBIAN_SOUND_PACKAGE_DEPENDS "${WIREPANE_TERMINAL_PACKAGE} (= ${PROJECT_VERSION})")
set(CPACK_COMPONENT_SOUND_DESCRIPTION
    "Lets Wirepane's terminal tell alerts by tones.\n Without it alerts are told by the desktop's own sound.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${WIREPANE_LIBRARY_PACKAGE} (= ${PROJECT_VERSION}), qt6-base-dev, libgl-dev")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
    "What a terminal needs to embed Wirepane's news module.\n Headers, package files, texts, an example.")
include(CPack)
