# What `cmake --install` and the Debian packages hold. The tree can be moved: everything finds its neighbours by
# relative paths, so the library folder is "lib" on every system.
include(CMakePackageConfigHelpers)

set(WIREPANE_HEADERS include/wirepane)
set(WIREPANE_CMAKE lib/cmake/Wirepane)

# For whoever uses the terminal.
install(TARGETS wirepane RUNTIME DESTINATION bin COMPONENT terminal)
install(TARGETS wirepane_news LIBRARY DESTINATION lib/wirepane COMPONENT terminal)
set_target_properties(wirepane PROPERTIES INSTALL_RPATH "$ORIGIN/../lib")
set_target_properties(wirepane_news PROPERTIES INSTALL_RPATH "$ORIGIN/..")
set_target_properties(wirepane_host wirepane_contract PROPERTIES INSTALL_RPATH "$ORIGIN")
install(DIRECTORY docs/ DESTINATION share/doc/wirepane COMPONENT terminal)
install(FILES README.md LICENSE DESTINATION share/doc/wirepane COMPONENT terminal)

# For whoever embeds the module: contract, headers, the example.
set_target_properties(wirepane_contract PROPERTIES EXPORT_NAME contract)
set_target_properties(wirepane_host PROPERTIES EXPORT_NAME host)
set_target_properties(wirepane_conformance PROPERTIES EXPORT_NAME conformance)
install(TARGETS wirepane_contract wirepane_host wirepane_conformance EXPORT WirepaneTargets
        LIBRARY DESTINATION lib COMPONENT terminal NAMELINK_COMPONENT development
        ARCHIVE DESTINATION lib COMPONENT development)
foreach(room contract controls views conformance)
    install(DIRECTORY host/${room} DESTINATION ${WIREPANE_HEADERS}/host COMPONENT development
            FILES_MATCHING PATTERN "*.h")
endforeach()
install(DIRECTORY examples/minimal_host DESTINATION share/doc/wirepane/examples COMPONENT development)
install(EXPORT WirepaneTargets NAMESPACE Wirepane:: DESTINATION ${WIREPANE_CMAKE} COMPONENT development)
configure_package_config_file(cmake/WirepaneConfig.cmake.in ${CMAKE_BINARY_DIR}/WirepaneConfig.cmake
    INSTALL_DESTINATION ${WIREPANE_CMAKE})
write_basic_package_version_file(${CMAKE_BINARY_DIR}/WirepaneConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_BINARY_DIR}/WirepaneConfig.cmake ${CMAKE_BINARY_DIR}/WirepaneConfigVersion.cmake
        DESTINATION ${WIREPANE_CMAKE} COMPONENT development)

# Debian: "wirepane", and "wirepane-dev" for embedders.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME wirepane)
set(CPACK_PACKAGE_CONTACT "The Wirepane authors <wirepane@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "news terminal, and the news module that terminals embed")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL terminal development)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_TERMINAL_PACKAGE_NAME wirepane)
set(CPACK_DEBIAN_TERMINAL_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_TERMINAL_PACKAGE_SHLIBDEPS ON)
# Its own libraries are in the package: without their folders the dependencies cannot be worked out.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_TERMINAL_PACKAGE_RECOMMENDS "fonts-noto-cjk, fonts-liberation, qt6-translations-l10n, qt6-wayland")
set(CPACK_COMPONENT_TERMINAL_DESCRIPTION
    "Reads, searches, prints and saves securities news as it arrives.\n It keeps its news in a store of its own.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME wirepane-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "wirepane (= ${PROJECT_VERSION}), qt6-base-dev, libgl-dev")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
    "What a terminal needs to embed Wirepane's news module.\n Headers, package files, texts, an example.")
include(CPack)
