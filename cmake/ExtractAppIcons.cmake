# Makes the themed application icons from the program's icon file, by the program itself:
#   cmake -DCLI=<iconwright-cli> -DICON=<file.ico> -DOUT=<folder> -DAPP_ID=<id>
#         -DSIZES="16;24;..." -P ExtractAppIcons.cmake
# "iconwright-cli extract" writes each image as <index>.png; each picture's side, read from
# its PNG header, names its folder OUT/hicolor/<side>x<side>/apps/<id>.png. The icon file
# must hold exactly the sizes asked for, each square.
foreach(var CLI ICON OUT APP_ID SIZES)
  if(NOT DEFINED ${var})
    message(FATAL_ERROR "ExtractAppIcons.cmake needs -D${var}=...")
  endif()
endforeach()

set(work ${OUT}/extracted)
file(REMOVE_RECURSE ${work} ${OUT}/hicolor)
execute_process(COMMAND ${CLI} extract ${ICON} ${work} RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "${CLI} extract ${ICON} failed (${result})")
endif()

file(GLOB pictures ${work}/*.png)
set(found "")
foreach(picture IN LISTS pictures)
  # The PNG signature (8 bytes), the IHDR length and type (8), then width and height.
  file(READ ${picture} header OFFSET 16 LIMIT 8 HEX)
  string(SUBSTRING "${header}" 0 8 width_hex)
  string(SUBSTRING "${header}" 8 8 height_hex)
  math(EXPR width "0x${width_hex}")
  math(EXPR height "0x${height_hex}")
  if(NOT width EQUAL height)
    message(FATAL_ERROR "${ICON}: an image of ${width} x ${height} is not square")
  endif()
  file(MAKE_DIRECTORY ${OUT}/hicolor/${width}x${width}/apps)
  file(COPY_FILE ${picture} ${OUT}/hicolor/${width}x${width}/apps/${APP_ID}.png)
  list(APPEND found ${width})
endforeach()
file(REMOVE_RECURSE ${work})

list(SORT found COMPARE NATURAL)
set(wanted ${SIZES})
list(SORT wanted COMPARE NATURAL)
if(NOT found STREQUAL wanted)
  message(FATAL_ERROR "${ICON} holds the sizes ${found}; the icon theme needs ${wanted}")
endif()
