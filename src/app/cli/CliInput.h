#pragma once
// Reading a command's input file, and writing its output by extension.

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "CliSupport.h"
#include "codec/c32bppDIB.h"
#include "document/model/IconSet.h"

namespace iw::cli {

enum class InputKind { Picture, IconSet, Unreadable };

// Reads an input file as the program does: a PNG picture (any size) when the file starts
// with the PNG signature and decodes, otherwise an icon, cursor or animated cursor through
// the icon reader. When neither works the reader has told the user why, with the same
// message the info command gives (a renamed picture, or a corrupt file).
InputKind ReadInput(const std::string& path, c32bppDIB& picture, IconSet& set, CliContext& context);

// Adds `picture` to `set` at `bitCount` bits; prints the reason when it is too large.
bool AddInputPicture(const std::string& path, const c32bppDIB& picture, IconSet& set, int bitCount,
                     bool png);

// Writes a PNG stream as the whole of `file`; prints the reason on failure.
bool WritePngFile(const std::string& file, const std::vector<std::uint8_t>& stream);

// An icon, cursor or animated cursor, or a PNG picture as one 32-bit image.
bool LoadInputSet(const std::string& path, IconSet& set, CliContext& context);

// The options that shape an output file.
struct OutputOptions {
    int index = 0;                               // .cur: which image
    std::optional<std::pair<int, int>> hotspot;  // .cur/.ani
    std::optional<int> rate;                     // .ani: jiffies for every frame
    std::optional<std::string> name;             // .ani
    std::optional<std::string> artist;           // .ani
    std::optional<std::vector<int>> sequence;    // .ani
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
