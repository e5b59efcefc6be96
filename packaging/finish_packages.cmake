# Run by cpack over the packages it has made: leaves out the scripts that it adds for shared libraries. What they do is
# done by the package's trigger, as Debian wants it.
find_program(DPKG_DEB dpkg-deb REQUIRED)
foreach(package ${CPACK_PACKAGE_FILES})
    if(NOT package MATCHES "\\.deb$")
        continue()
    endif()
    set(folder ${package}.unpacked)
    execute_process(COMMAND ${DPKG_DEB} --raw-extract ${package} ${folder} COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE ${folder}/DEBIAN/postinst ${folder}/DEBIAN/postrm)
    execute_process(COMMAND ${DPKG_DEB} --root-owner-group --build ${folder} ${package}
        OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE_RECURSE ${folder})
endforeach()
