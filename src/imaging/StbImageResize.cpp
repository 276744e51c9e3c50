// The implementation of Debian's stb_image_resize (libstb-dev), compiled here and nowhere
// else. Its warnings are silenced for this file alone (src/CMakeLists.txt), so this file
// holds nothing but the include.

#define STB_IMAGE_RESIZE_IMPLEMENTATION
#include <stb/stb_image_resize.h>
