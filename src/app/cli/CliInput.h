#pragma once
// Reading a command's input file, and writing its output by extension.

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "CliSupport.h"
#include "document/io/PictureDecoder.h"
#include "document/model/IconSet.h"
#include "imaging/RgbaBuffer.h"

namespace iw::cli {

// Writes a PNG stream as the whole of `file`; prints the reason on failure.
bool WritePngFile(const std::string& file, const std::vector<std::uint8_t>& stream);
// Encodes `picture` as a PNG file; prints the reason on failure.
bool WritePicturePng(const std::string& file, const RgbaBuffer& picture);

// The picture format by the file's first bytes (Unknown when it cannot be read).
PictureFormat PictureFormatOfFile(const std::string& path);
// True for pictures (PNG, JPEG, GIF, BMP, Photoshop, ...), false for icons and the rest.
bool IsPictureFile(const std::string& path);

// Any picture the program reads (an icon file gives its largest image), through the core
// and Qt's readers; prints the reason on failure.
bool LoadPictureInput(const std::string& path, RgbaBuffer& picture, CliContext& context);

// Tells the user why `path` cannot be read, as the icon reader words it (a renamed
// picture, or a corrupt file); says so when it is in fact an icon. Returns false.
bool ReportUnreadableInput(const std::string& path, CliContext& context);

// An icon, cursor or animated cursor, or a picture as one 32-bit image. A picture larger
// than 256 x 256 is resampled to fit inside 256 x 256 with its aspect kept (and says so).
bool LoadInputSet(const std::string& path, IconSet& set, CliContext& context);

// The options that shape an output file.
struct OutputOptions {
    int index = 0;                               // .cur: which image
    std::optional<std::pair<int, int>> hotspot;  // .cur/.ani
    std::optional<int> rate;                     // .ani: jiffies for every frame
    std::optional<std::string> name;             // .ani
    std::optional<std::string> artist;           // .ani
    std::optional<std::vector<int>> sequence;    // .ani
    std::optional<std::string> templateName;     // convert: the template's formats
    std::optional<std::string> group;            // convert: a program's group by name
    std::optional<int> language;                 // convert: the group's language
};

// Takes the option at args[i] (and its value); returns false with `error` set when the
// option is unknown or its value is bad. Advances `i` past what it used.
bool ParseOutputOption(const Args& args, std::size_t& i, OutputOptions& options,
                       std::string& error);

// Splits a command's arguments into its plain arguments and its output options. Returns
// false with `error` set on a bad option; sets `help` when --help or -h is among them.
bool SplitArguments(const Args& args, std::vector<std::string>& plain, OutputOptions& options,
                    bool& help, std::string& error);

// ".ico", ".cur" or ".ani" by OUT's extension (any case); empty for anything else.
std::string OutputKind(const std::string& path);

// Applies the options to the set and writes it; prints the reason on failure.
bool WriteOutputSet(const std::string& path, IconSet& set, const OutputOptions& options,
                    CliContext& context);

}  // namespace iw::cli
