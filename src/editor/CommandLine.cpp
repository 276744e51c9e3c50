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
    // The switch is taken out of the path only where it stands as a word of its own, so a
    // path such as /var/log/a.ico or /home/u/logos/a.ico keeps its name.
    std::string path = command.text;
    const auto blankAt = [&path](std::size_t at) {
        return std::isspace(static_cast<unsigned char>(path[at])) != 0;
    };
    for (std::size_t at = 0; (at = path.find(kLogSwitch, at)) != std::string::npos;) {
        const std::size_t end = at + kLogSwitch.size();
        if ((at == 0 || blankAt(at - 1)) && (end == path.size() || blankAt(end)))
            path.erase(at, kLogSwitch.size());
        else
            at = end;
    }
    path = Trimmed(path);
    // The quotes a shell puts round a path with blanks.
    if (path.size() >= 2 && path.front() == '"' && path.back() == '"')
        path = path.substr(1, path.size() - 2);
    command.editRequest = EndsWithNoCase(path, ".xml");
    command.path = std::move(path);
    return command;
}

}  // namespace iw
