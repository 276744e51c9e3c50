#include <filesystem>

#include "document/io/AnimatedCursor.h"
#include "document/io/IconFileReader.h"
#include "document/io/IconFileWriter.h"
#include "editor/DocumentStore.h"

namespace iw {

bool DocumentExists(const std::string& path) {
    std::error_code ec;
    return !path.empty() && std::filesystem::is_regular_file(path, ec);
}

bool FileDocumentStore::Read(const std::string& path, IconSet& set, CoreContext& context) {
    return ReadIconFile(path, set, context);
}

bool FileDocumentStore::ReadProgramGroup(const std::string& path, const GroupChoice& choice,
                                         IconSet& set, CoreContext& context) {
    return ReadIconFile(path, choice, set, context);
}

bool FileDocumentStore::Write(const std::string& path, const IconSet& set, const DocumentWrite& how,
                              CoreContext& context) {
    switch (how.mode) {
        case FileMode::CUR:
            return WriteCursorFile(path, set, how.cursorImage, set.properties.hotspotX,
                                   set.properties.hotspotY, context);
        case FileMode::ANI:
            return WriteAnimatedCursor(path, set, context);
        case FileMode::ICO:
            break;
    }
    return WriteIconFile(path, set, context);
}

}  // namespace iw
