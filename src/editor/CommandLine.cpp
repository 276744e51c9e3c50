#include "editor/CommandLine.h"

#include <algorithm>
#include <cctype>

namespace iw {
namespace {

constexpr std::string_view kLogSwitch = "/log";

std::string Trimmed(std::string_view text) {
    const auto blank = [](char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; };
    while (!text.empty() && blank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && blank(text.back()))
        text.remove_suffix(1);
    return std::string(text);
}

bool EndsWithNoCase(std::string_view text, std::string_view tail) {
    if (text.size() < tail.size()) return false;
    return std::equal(tail.begin(), tail.end(),
                      text.end() - static_cast<std::ptrdiff_t>(tail.size()), [](char a, char b) {
                          return std::tolower(static_cast<unsigned char>(a)) ==
                                 std::tolower(static_cast<unsigned char>(b));
                      });
}

}  // namespace

CommandLine ParseCommandLine(std::string_view text) {
    CommandLine command;
    command.text = Trimmed(text);
    command.log = command.text.find(kLogSwitch) != std::string::npos;
    std::string path = command.text;
    for (std::size_t at; (at = path.find(kLogSwitch)) != std::string::npos;)
        path.erase(at, kLogSwitch.size());
    path = Trimmed(path);
    // The quotes a shell puts round a path with blanks.
    if (path.size() >= 2 && path.front() == '"' && path.back() == '"')
        path = path.substr(1, path.size() - 2);
    command.editRequest = EndsWithNoCase(path, ".xml");
    command.path = std::move(path);
    return command;
}

}  // namespace iw
