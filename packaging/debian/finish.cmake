# Gives the files of a Debian package the form that policy wants: the changelogs and the copyright, and what man
# reads compressed.

set(installed ${CPACK_TEMPORARY_INSTALL_DIRECTORY}${CPACK_PACKAGING_INSTALL_PREFIX})
set(documents ${installed}/${CPACK_GLYPHOR_DOCDIR})
file(COPY ${CPACK_GLYPHOR_DEBIAN}/copyright DESTINATION ${documents})
file(REMOVE ${documents}/LICENSE-UNICODE.txt) # the copyright has it
configure_file(${CPACK_GLYPHOR_CHANGES} ${documents}/changelog COPYONLY)
configure_file(${CPACK_GLYPHOR_CHANGELOG} ${documents}/changelog.Debian COPYONLY)
file(GLOB pages ${installed}/${CPACK_GLYPHOR_MANDIR}/man*/*)
execute_process(
    COMMAND gzip -9nf ${documents}/changelog ${documents}/changelog.Debian ${pages}
    COMMAND_ERROR_IS_FATAL ANY)

file(COPY ${CPACK_GLYPHOR_DEBIAN}/overrides DESTINATION ${installed}/share/lintian)
file(RENAME ${installed}/share/lintian/overrides/glyphor.overrides ${installed}/share/lintian/overrides/glyphor)
