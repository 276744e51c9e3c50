#pragma once
// The three file types the program can be the default editor of, with everything that
// names them: the Windows file classes, the MIME type, the start-up check's setting and
// the question asked when the program is not the default.

#include <array>
#include <string_view>

#include "services/core/Texts.h"

namespace iw {

struct FileType {
    std::string_view word;          // "ico", "cur", "ani": how commands name the type
    std::string_view extensionKey;  // ".ico"
    std::string_view programId;     // "Quorvale.Iconwright.Icon"
    std::string_view typeName;      // "Icon"
    std::string_view checkName;     // "ICON": the type name as the check compares it
    std::string_view mimeType;      // "image/vnd.microsoft.icon"
    std::string_view checkSetting;  // "Settings\CheckICO": the start-up check, on by default
    TextId question;                // "ICOFileType"
};

// Icon, cursor and animated cursor, in that order.
const std::array<FileType, 3>& FileTypes();
// The type a word names ("ico", "cur" or "ani", any case); nullptr for any other word.
const FileType* FindFileType(std::string_view word);

}  // namespace iw
