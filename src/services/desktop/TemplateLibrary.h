#pragma once
// The loaded templates, shared by the start-up, conversion, options and main windows: the
// program's own (locked) first, then the user's, each folder's in name order.

#include <filesystem>
#include <string_view>
#include <vector>

#include "services/core/MessageService.h"
#include "services/desktop/Template.h"

namespace iw {

class TemplateLibrary {
  public:
    // How many templates one folder may contribute; a folder is the user's to fill, and a
    // list of thousands is of use to nobody.
    static constexpr std::size_t kMaxPerFolder = 500;

    // Reads every ".ini" file of both folders. A missing program folder shows "The Templates
    // folder could not be found.  Please reinstall Iconwright." and loading goes on with the
    // user's templates. An empty user folder path is skipped.
    void LoadAll(const std::filesystem::path& programFolder,
                 const std::filesystem::path& userFolder, MessageService& messages);

    const std::vector<IconTemplate>& Templates() const { return templates_; }
    // The first template of that name, or nullptr.
    const IconTemplate* Find(std::string_view name) const;

  private:
    void LoadFolder(const std::filesystem::path& folder, bool locked);
    std::vector<IconTemplate> templates_;
};

}  // namespace iw
