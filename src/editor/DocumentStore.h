#pragma once
// How the editor reads and writes icon files: through this interface, so the document
// lifecycle can be tested without files; `FileDocumentStore` is the real one.

#include <string>

#include "document/io/IconFileReader.h"
#include "document/model/IconSet.h"
#include "services/core/CoreContext.h"

namespace iw {

// What a write needs besides the set: the format, and for a cursor which image it holds.
struct DocumentWrite {
    FileMode mode = FileMode::ICO;
    int cursorImage = 0;
};

class IDocumentStore {
  public:
    virtual ~IDocumentStore() = default;
    // Fills the empty `set` from the file at `path` and sets its mode from the file's name.
    // Tells the user about a failure itself; on failure the set is left empty.
    virtual bool Read(const std::string& path, IconSet& set, CoreContext& context) = 0;
    // The same for the group `choice` of a Windows program or library.
    virtual bool ReadProgramGroup(const std::string& path, const GroupChoice& choice, IconSet& set,
                                  CoreContext& context) = 0;
    // Writes the set to `path` as an icon, cursor or animated cursor file. Tells the user
    // about a failure itself; a failed write leaves any old file as it was.
    virtual bool Write(const std::string& path, const IconSet& set, const DocumentWrite& how,
                       CoreContext& context) = 0;
};

// Whether `path` names an existing file (a folder is none).
bool DocumentExists(const std::string& path);

// The icon, cursor and animated cursor readers and writers on real files.
class FileDocumentStore final : public IDocumentStore {
  public:
    bool Read(const std::string& path, IconSet& set, CoreContext& context) override;
    bool ReadProgramGroup(const std::string& path, const GroupChoice& choice, IconSet& set,
                          CoreContext& context) override;
    bool Write(const std::string& path, const IconSet& set, const DocumentWrite& how,
               CoreContext& context) override;
};

}  // namespace iw
