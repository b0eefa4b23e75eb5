# Where things are installed, and the way from each program to what it looks for: relative, so that the
# whole installation can be moved.

include(GNUInstallDirs)
if("$CACHE{CMAKE_INSTALL_DOCDIR}" STREQUAL "")
    set(CMAKE_INSTALL_DOCDIR ${CMAKE_INSTALL_DATAROOTDIR}/doc/glyphor)
    GNUInstallDirs_get_absolute_install_dir(CMAKE_INSTALL_FULL_DOCDIR CMAKE_INSTALL_DOCDIR DOCDIR)
endif()

set(window_folder ${CMAKE_INSTALL_LIBEXECDIR}/glyphor)
file(RELATIVE_PATH program_to_window
    ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBEXECDIR}/glyphor)
file(RELATIVE_PATH window_to_manual
    ${CMAKE_INSTALL_FULL_LIBEXECDIR}/glyphor ${CMAKE_INSTALL_FULL_DOCDIR}/manual)
