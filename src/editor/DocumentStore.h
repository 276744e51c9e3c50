#pragma once
// How the editor reads and writes icon files: through this interface, so the document
// lifecycle can be tested without files and the real readers and writers plug in behind it.

#include <string>

#include "document/model/IconSet.h"

namespace iw {

class IDocumentStore {
  public:
    virtual ~IDocumentStore() = default;
    // Fills the empty `set` from the file at `path` and sets its mode from the file's name.
    // Tells the user about a failure itself; on failure the set is left empty.
    virtual bool Read(const std::string& path, IconSet& set) = 0;
    // Writes the set to `path` as an icon, cursor or animated cursor file. Tells the user
    // about a failure itself; a failed write leaves any old file as it was.
    virtual bool Write(const std::string& path, const IconSet& set, FileMode mode) = 0;
};

}  // namespace iw
