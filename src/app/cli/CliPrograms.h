#pragma once
// The icon and cursor groups of Windows programs and libraries on the command line: which
// group a command takes, and the folder each group is extracted into.

#include <optional>
#include <string>

#include "CliInput.h"
#include "document/io/ProgramIcons.h"

namespace iw::cli {

// "icon" or "cursor".
const char* GroupKindName(ResourceGroupKind kind);

// The folder name of group `index` under an extract's DIR: its name (a number in decimal,
// or its text with anything but letters, digits, '-', '_' and '.' as '_'); a cursor group
// whose folder would be an icon group's gets "-cursor" after it.
std::string GroupFolderName(const std::vector<ResourceGroup>& groups, int index);

// The group `options` ask for (--group NAME, --language ID) or the first one, read into
// `set`; a cursor group's hotspot is that of image --index. A name that names no group is
// looked up among the icon groups first, for an .cur OUT among the cursor groups first.
// Prints the reason on failure.
bool ReadProgramInput(const ProgramFile& program, const std::string& out,
                      const OutputOptions& options, IconSet& set, CliContext& context);

}  // namespace iw::cli
