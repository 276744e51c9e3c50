# The compression tests: the system zlib as a reference implementation (tests only, never
# the core), and stand-in libraries that prove the loader's rules.
if(NOT TARGET test_codec)
  return()
endif()
find_package(ZLIB REQUIRED)
target_link_libraries(test_codec PRIVATE ZLIB::ZLIB)

set(iw_standin_dir ${CMAKE_CURRENT_BINARY_DIR}/zlib_standins)
# variant -> compile definitions
set(iw_standin_full "")
set(iw_standin_nocrc "STANDIN_NO_CRC32")
set(iw_standin_nocompress2 "STANDIN_NO_COMPRESS2")
foreach(variant full nocrc nocompress2)
  set(target iw_zlib_standin_${variant})
  add_library(${target} SHARED ${CMAKE_CURRENT_SOURCE_DIR}/codec/standin/ZlibStandIn.c)
  target_compile_definitions(${target} PRIVATE STANDIN_NAME="${variant}" ${iw_standin_${variant}})
  set_target_properties(${target} PROPERTIES PREFIX "" OUTPUT_NAME "zlib_standin_${variant}"
                        LIBRARY_OUTPUT_DIRECTORY ${iw_standin_dir} RUNTIME_OUTPUT_DIRECTORY ${iw_standin_dir}
                        C_VISIBILITY_PRESET hidden)
  add_dependencies(test_codec ${target})
endforeach()
target_compile_definitions(test_codec PRIVATE
  IW_ZLIB_STANDIN_DIR="${iw_standin_dir}"
  IW_ZLIB_STANDIN_SUFFIX="${CMAKE_SHARED_LIBRARY_SUFFIX}")
