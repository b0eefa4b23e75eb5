# Gives what is installed the form that Debian's policy wants.

set(installed ${CPACK_TEMPORARY_INSTALL_DIRECTORY}${CPACK_PACKAGING_INSTALL_PREFIX})
set(documents ${installed}/${CPACK_GLYPHOR_DOCDIR})

list(TRANSFORM CPACK_GLYPHOR_PROGRAMS PREPEND ${installed}/ OUTPUT_VARIABLE programs)
execute_process(
    COMMAND ${CPACK_GLYPHOR_STRIP} --strip-unneeded --remove-section=.comment --remove-section=.note ${programs}
    COMMAND_ERROR_IS_FATAL ANY)

configure_file(${CPACK_GLYPHOR_DEBIAN}/copyright ${documents}/copyright COPYONLY)
file(REMOVE ${documents}/LICENSE-UNICODE.txt) # the copyright has it
configure_file(${CPACK_GLYPHOR_CHANGES} ${documents}/changelog COPYONLY)
configure_file(${CPACK_GLYPHOR_CHANGELOG} ${documents}/changelog.Debian COPYONLY)
file(GLOB pages ${installed}/${CPACK_GLYPHOR_MANDIR}/man*/*)
execute_process(
    COMMAND gzip -9nf ${documents}/changelog ${documents}/changelog.Debian ${pages}
    COMMAND_ERROR_IS_FATAL ANY)

configure_file(${CPACK_GLYPHOR_DEBIAN}/doc-base ${installed}/share/doc-base/glyphor.glyphor-manual COPYONLY)
configure_file(${CPACK_GLYPHOR_DEBIAN}/lintian-overrides ${installed}/share/lintian/overrides/glyphor COPYONLY)
