#pragma once
// Template files: text files with the extension ".ini" that hold no sections or keys but
// one format per line, four comma-separated integers ended by CR LF: width, height, colour
// depth and compressed flag. A colour field of 0 to 4 is an index from an older form of the
// file: 0 is 1 bit, 1 is 4 bits, 2 is 8 bits, 3 is 24 bits and 4 is 32 bits.

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "services/desktop/Template.h"

namespace iw {

// The colour field as read: an old-style index 0..4 or one of 8, 24, 32 (1 and 4 are
// indexes); anything else gives nothing.
std::optional<int> TemplateDepthFromField(int field);
// The colour field written for a depth. 8, 24 and 32 are written as they are; 1 and 4 bits
// are written as their indexes 0 and 1, because "1" and "4" read back as indexes (4 and 32
// bits), and a saved template must load back the same.
int TemplateDepthField(int bits);

// The entries of a template file's text. Values are separated by commas or line breaks and
// read four to an entry, up to 65 entries or the end of the text; an entry cut off by the
// end of the text ends the reading. The file is not trusted: an entry with a value that is
// not an integer, a side outside 1..256 or an unknown depth is skipped.
std::vector<TemplateEntry> ParseTemplateText(std::string_view text);
// One line "width,height,depth,flag" with CR LF per entry, first to last.
std::string FormatTemplateText(const std::vector<TemplateEntry>& entries);

// Reads the file's entries; nothing when it cannot be read.
std::optional<std::vector<TemplateEntry>> ReadTemplateFile(const std::filesystem::path& file);
// Writes the file whole, replacing it only once the new text is on disk.
bool WriteTemplateFile(const std::filesystem::path& file,
                       const std::vector<TemplateEntry>& entries);

// The template's name for a file: the file name less its last four characters.
std::string TemplateNameOf(const std::filesystem::path& file);

}  // namespace iw
