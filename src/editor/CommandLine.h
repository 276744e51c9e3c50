#pragma once
// The program's command line: a file to open, "/log" to show the log list, or a path ending
// in ".xml" as an edit request from another program.

#include <string>
#include <string_view>

namespace iw {

struct CommandLine {
    std::string text;          // the whole line, trimmed
    bool log = false;          // "/log" was given
    std::string path;          // without "/log", trimmed, without the quotes round it
    bool editRequest = false;  // the path ends in ".xml" (any case)
};

CommandLine ParseCommandLine(std::string_view text);

}  // namespace iw
