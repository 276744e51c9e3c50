#include "services/desktop/FileTypes.h"

#include "services/core/TextCatalog.h"
#include "services/desktop/TextCase.h"

namespace iw {

const std::array<FileType, 3>& FileTypes() {
    static const std::array<FileType, 3> types = {{
        {"ico", ".ico", "Quorvale.Iconwright.Icon", "Icon", "ICON", "image/vnd.microsoft.icon",
         "Settings\\CheckICO", texts::ICOFileType},
        {"cur", ".cur", "Quorvale.Iconwright.Cursor", "Cursor", "CURSOR", "image/x-win-bitmap",
         "Settings\\CheckCUR", texts::CURFileType},
        {"ani", ".ani", "Quorvale.Iconwright.AnimatedCursor", "Animated Cursor", "ANIMATED CURSOR",
         "application/x-navi-animation", "Settings\\CheckANI", texts::ANIFileType},
    }};
    return types;
}

const FileType* FindFileType(std::string_view word) {
    for (const FileType& type : FileTypes()) {
        if (EqualsNoCase(word, type.word)) return &type;
    }
    return nullptr;
}

}  // namespace iw
