#pragma once
// Editing texts of the INI family line by line: "[Group]" headers and "Key=Value" lines, as
// in "desktop.ini", desktop entries, ".directory" and mimeapps.list. Only the lines a caller
// changes are touched; every other line comes back as it was.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace iw {

class IniText {
  public:
    // Windows' INI files compare group and key names without regard to case; the desktop
    // entry format compares them exactly.
    enum class Names { CaseSensitive, IgnoreCase };
    enum class Insert { AfterHeader, AtGroupEnd };
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    // Splits at CR LF, LF or a lone CR.
    IniText(std::string_view text, Names names);

    // Every line followed by `lineEnd`.
    std::string Text(std::string_view lineEnd) const;
    // True when every line is blank.
    bool Blank() const;

    // The header line of the first group `name`; kNone when there is none.
    std::size_t FindGroup(std::string_view name) const;
    // Every group `name` (a file edited by hand may repeat one), first to last.
    std::vector<std::size_t> FindGroups(std::string_view name) const;
    // Appends the group at the end; with `blankLineBefore`, trailing blank lines give way to
    // one blank line before it (when the text holds something).
    std::size_t AddGroup(std::string_view name, bool blankLineBefore = true);

    // The value of the first line of `key` in the group whose header is `group`: the text
    // after the first "=", without blanks around it.
    std::optional<std::string> Value(std::size_t group, std::string_view key) const;
    // Gives the first line of `key` in the group the value (written "Key=Value") and removes
    // its other lines there; without one, a line is inserted where `insert` says.
    void SetValue(std::size_t group, std::string_view key, std::string_view value, Insert insert);
    // Removes every line of `key` in the group. True when one was there.
    bool RemoveKey(std::size_t group, std::string_view key);
    // Removes the group's header and its blank lines when nothing else is left in it (and,
    // for the last group, the blank lines before it).
    void RemoveGroupIfEmpty(std::size_t group);

  private:
    std::size_t GroupEnd(std::size_t group) const;
    std::vector<std::size_t> KeyLines(std::size_t group, std::string_view key) const;
    bool SameName(std::string_view a, std::string_view b) const;
    void EraseLines(const std::vector<std::size_t>& lines);

    std::vector<std::string> lines_;
    Names names_;
};

// A text as a desktop entry's string value writes it: backslash, line feed, carriage return
// and tab escaped ("\\", "\n", "\r", "\t").
std::string EscapeDesktopString(std::string_view text);
// The text a string value stands for ("\s" is a blank); an unknown escape is kept as written.
std::string UnescapeDesktopString(std::string_view text);

}  // namespace iw
