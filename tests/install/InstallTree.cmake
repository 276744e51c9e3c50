# Installs the build into a fresh folder: cmake -DBUILD=<build dir> -DPREFIX=<folder> -P InstallTree.cmake
file(REMOVE_RECURSE ${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${PREFIX}
                RESULT_VARIABLE result OUTPUT_QUIET)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "cmake --install ${BUILD} --prefix ${PREFIX} failed (${result})")
endif()
