# The installed tree: "cmake --install" into a folder of the build, then the freedesktop
# validators and our own checks on what it holds.
set(IW_INSTALL_TEST_PREFIX ${PROJECT_BINARY_DIR}/install-test)
add_test(NAME install.Tree
         COMMAND ${CMAKE_COMMAND} -DBUILD=${PROJECT_BINARY_DIR} -DPREFIX=${IW_INSTALL_TEST_PREFIX}
                 -P ${CMAKE_CURRENT_LIST_DIR}/InstallTree.cmake)
set_tests_properties(install.Tree PROPERTIES FIXTURES_SETUP iw_install_tree)

# The validators come from desktop-file-utils and appstream (scripts/packages.sh); one that
# is missing fails its test.
add_test(NAME install.DesktopEntryValidates
         COMMAND desktop-file-validate
                 ${IW_INSTALL_TEST_PREFIX}/share/applications/${IW_APP_ID}.desktop)
add_test(NAME install.MetainfoValidates
         COMMAND appstreamcli validate --no-net
                 ${IW_INSTALL_TEST_PREFIX}/share/metainfo/${IW_APP_ID}.metainfo.xml)
set(iw_install_checks install.DesktopEntryValidates install.MetainfoValidates)
if(IW_DEBIAN_PYTHON)
  add_test(NAME install.TreeIsComplete
           COMMAND ${IW_DEBIAN_PYTHON} ${CMAKE_CURRENT_LIST_DIR}/check_install.py
                   ${IW_INSTALL_TEST_PREFIX} ${IW_APP_ID} ${IW_DATA_FROM_BIN} ${IW_HAS_GUI})
  list(APPEND iw_install_checks install.TreeIsComplete)
endif()
set_tests_properties(${iw_install_checks} PROPERTIES FIXTURES_REQUIRED iw_install_tree)
