#pragma once
// Making the program the default editor of its file types, and asking whether it still is.
// One interface, one backend per desktop: the Windows registry's file classes
// (RegistryAssociations.h) and the freedesktop desktop entries and mimeapps.list
// (FreedesktopAssociations.h).

#include <filesystem>
#include <memory>

#include "services/desktop/FileTypes.h"

namespace iw {

class IFileAssociations {
  public:
    virtual ~IFileAssociations() = default;
    // Makes the program the default editor of the type, for the current user. False when
    // something could not be written.
    virtual bool Register(const FileType& type) = 0;
    // Whether the program is the default editor of the type now.
    virtual bool IsDefault(const FileType& type) = 0;
};

// The associations of the desktop the program runs on, for `program`: the path of the
// editor's executable that files are to open in.
std::unique_ptr<IFileAssociations> MakeSystemAssociations(const std::filesystem::path& program);

}  // namespace iw
