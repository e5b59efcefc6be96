# What `cmake --install` and the Debian packages hold. The tree can be moved: everything finds its neighbours by
# relative paths, so the library folder is "lib" on every system.
include(CMakePackageConfigHelpers)

set(WIREPANE_HEADERS include/wirepane)
set(WIREPANE_CMAKE lib/cmake/Wirepane)

# Nothing else is built for what is installed: whoever builds this much can install.
add_custom_target(wirepane_installed
    DEPENDS wirepane wirepane_sample_wire_program wirepane_news wirepane_contract wirepane_host wirepane_conformance)
if(TARGET wirepane_wire_postgres)
    add_dependencies(wirepane_installed wirepane_wire_postgres)
endif()

if(TARGET wirepane_sound)
    add_dependencies(wirepane_installed wirepane_sound)
endif()

# For whoever uses the terminal.
install(TARGETS wirepane wirepane_sample_wire_program RUNTIME DESTINATION bin COMPONENT terminal)
# Under a folder of its interface: the module of another version may stand beside it.
install(TARGETS wirepane_news LIBRARY DESTINATION ${WIREPANE_MODULE_FOLDER} COMPONENT library)
set_target_properties(wirepane PROPERTIES INSTALL_RPATH "$ORIGIN/../lib")
set_target_properties(wirepane_news PROPERTIES INSTALL_RPATH "$ORIGIN/..")
set_target_properties(wirepane_host wirepane_contract PROPERTIES INSTALL_RPATH "$ORIGIN")
# The guides stand where the program needs them: systems may leave share/doc out.
install(DIRECTORY docs DESTINATION share/wirepane COMPONENT terminal PATTERN "*.py" EXCLUDE)
install(FILES README.md DESTINATION share/doc/wirepane COMPONENT terminal)
if(UNIX)
    file(CREATE_LINK ../../wirepane/docs ${CMAKE_BINARY_DIR}/guides SYMBOLIC)
    install(FILES ${CMAKE_BINARY_DIR}/guides DESTINATION share/doc/wirepane COMPONENT terminal)
endif()

# For whoever embeds the module: contract, headers, the example.
set_target_properties(wirepane_contract PROPERTIES EXPORT_NAME contract)
set_target_properties(wirepane_host PROPERTIES EXPORT_NAME host)
set_target_properties(wirepane_conformance PROPERTIES EXPORT_NAME conformance)
install(TARGETS wirepane_contract wirepane_host wirepane_conformance EXPORT WirepaneTargets
        LIBRARY DESTINATION lib COMPONENT library NAMELINK_COMPONENT development
        ARCHIVE DESTINATION lib COMPONENT development)
foreach(room contract controls views)
    install(DIRECTORY host/${room} DESTINATION ${WIREPANE_HEADERS}/host COMPONENT development
            FILES_MATCHING PATTERN "*.h")
endforeach()
install(FILES host/conformance/back_end_check.h DESTINATION ${WIREPANE_HEADERS}/host/conformance
        COMPONENT development)
install(DIRECTORY examples/minimal_host DESTINATION share/doc/wirepane/examples COMPONENT development)
install(EXPORT WirepaneTargets NAMESPACE Wirepane:: DESTINATION ${WIREPANE_CMAKE} COMPONENT development)
configure_package_config_file(cmake/WirepaneConfig.cmake.in ${CMAKE_BINARY_DIR}/WirepaneConfig.cmake
    INSTALL_DESTINATION ${WIREPANE_CMAKE})
write_basic_package_version_file(${CMAKE_BINARY_DIR}/WirepaneConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_BINARY_DIR}/WirepaneConfig.cmake ${CMAKE_BINARY_DIR}/WirepaneConfigVersion.cmake
        DESTINATION ${WIREPANE_CMAKE} COMPONENT development)
foreach(library contract host)
    configure_file(packaging/wirepane-${library}.pc.in wirepane-${library}.pc @ONLY)
    install(FILES ${CMAKE_BINARY_DIR}/wirepane-${library}.pc DESTINATION share/pkgconfig COMPONENT development)
endforeach()
