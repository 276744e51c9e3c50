# What "cmake --install" puts in place, and the Debian package "cpack -G DEB" makes of it.
# Included last, so that every program target is known: the editor, "iconwright", is
# installed with its manual page whenever the build has it.
include(GNUInstallDirs)

set(IW_HAS_GUI OFF)
if(TARGET iconwright)
  set(IW_HAS_GUI ON)
endif()

# The programs.
install(TARGETS iconwright-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
if(IW_HAS_GUI)
  install(TARGETS iconwright RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()

# The program's data, found from the programs' folder (see src/services/desktop/AppIdentity.h).
install(FILES ${IW_TEMPLATE_FILES} DESTINATION ${CMAKE_INSTALL_DATADIR}/iconwright/Templates)

# The desktop entry, the AppStream metadata and the themed icons, all named by the app id.
set(IW_METAINFO_BINARIES "<binary>iconwright-cli</binary>")
if(IW_HAS_GUI)
  set(IW_METAINFO_BINARIES "<binary>iconwright</binary>\n    ${IW_METAINFO_BINARIES}")
endif()
set(IW_METAINFO_FILE ${PROJECT_BINARY_DIR}/data/${IW_APP_ID}.metainfo.xml)
configure_file(${PROJECT_SOURCE_DIR}/data/desktop/iconwright.metainfo.xml.in ${IW_METAINFO_FILE}
               @ONLY)
install(FILES ${IW_DESKTOP_FILE} DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${IW_METAINFO_FILE} DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(DIRECTORY ${IW_ICON_THEME_DIR}/hicolor DESTINATION ${CMAKE_INSTALL_DATADIR}/icons)
install(FILES ${PROJECT_SOURCE_DIR}/data/icons/iconwright.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps RENAME ${IW_APP_ID}.svg)

# The manual pages.
install(FILES ${IW_MAN_DIR}/iconwright-cli.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
if(IW_HAS_GUI)
  install(FILES ${IW_MAN_DIR}/iconwright.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endif()

# The Debian package. dpkg-shlibdeps (from dpkg-dev) finds the libraries the programs link;
# the Qt plugins the editor loads at run time are named by hand, and zlib, which the program
# loads itself when it is there, is recommended.
set(CPACK_PACKAGE_NAME iconwright)
set(CPACK_PACKAGE_VENDOR "Quorvale")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "editor for Windows icons, cursors and animated cursors")
set(CPACK_PACKAGE_DESCRIPTION
    "Iconwright edits Windows icon (.ico), cursor (.cur) and animated cursor (.ani) files:\n"
    "multi-size icon sets from 1 to 256 pixels at 1, 4, 8, 24 and 32 bits per pixel,\n"
    "PNG-compressed images, cursor hotspots, animated cursors with rates and sequences.\n"
    "iconwright-cli inspects, converts and builds such files from the command line, makes\n"
    "Iconwright the default editor of the three types and gives folders an icon.")
string(JOIN "" CPACK_PACKAGE_DESCRIPTION ${CPACK_PACKAGE_DESCRIPTION})
set(CPACK_PACKAGE_HOMEPAGE_URL "https://github.com/quorvale/iconwright")
set(CPACK_PACKAGE_CONTACT "Quorvale Iconwright maintainers <iconwright@quorvale.org>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
if(IW_HAS_GUI)
  set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins, libqt6svg6")
endif()
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "zlib1g")
# gio sets GNOME's folder icons; update-desktop-database refreshes a user's desktop entries.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "libglib2.0-bin, desktop-file-utils")
include(CPack)
