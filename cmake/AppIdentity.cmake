# The program's identity on a freedesktop system, defined here once: the application id names
# the desktop entry, the AppStream file and the icons, and the file associations compare with
# it. The desktop entry is made from its template here, before the sources that embed it.
include(GNUInstallDirs)

set(IW_APP_ID "com.quorvale.Iconwright")
set(IW_DESKTOP_FILE ${PROJECT_BINARY_DIR}/data/${IW_APP_ID}.desktop)
configure_file(${PROJECT_SOURCE_DIR}/data/desktop/iconwright.desktop.in ${IW_DESKTOP_FILE} @ONLY)

# Where the installed program finds its data, relative to its own folder.
file(RELATIVE_PATH IW_DATA_FROM_BIN ${CMAKE_INSTALL_FULL_BINDIR}
     ${CMAKE_INSTALL_FULL_DATADIR}/iconwright)
