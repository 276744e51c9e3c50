#include "services/desktop/IniText.h"

#include <algorithm>

#include "services/desktop/TextCase.h"

namespace iw {
namespace {

std::string_view Trim(std::string_view text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
        text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t'))
        text.remove_suffix(1);
    return text;
}

// The name inside "[...]", or nullopt for a line that is not a group header.
std::optional<std::string_view> HeaderName(std::string_view line) {
    line = Trim(line);
    if (line.size() < 2 || line.front() != '[' || line.back() != ']') return std::nullopt;
    return line.substr(1, line.size() - 2);
}

}  // namespace

IniText::IniText(std::string_view text, Names names) : names_(names) {
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find_first_of("\r\n", start);
        if (end == std::string_view::npos) end = text.size();
        lines_.emplace_back(text.substr(start, end - start));
        if (end + 1 < text.size() && text[end] == '\r' && text[end + 1] == '\n') ++end;
        start = end + 1;
    }
}

std::string IniText::Text(std::string_view lineEnd) const {
    std::string text;
    for (const std::string& line : lines_) {
        text += line;
        text += lineEnd;
    }
    return text;
}

bool IniText::Blank() const {
    return std::all_of(lines_.begin(), lines_.end(),
                       [](const std::string& line) { return Trim(line).empty(); });
}

bool IniText::SameName(std::string_view a, std::string_view b) const {
    return names_ == Names::IgnoreCase ? EqualsNoCase(a, b) : a == b;
}

std::vector<std::size_t> IniText::FindGroups(std::string_view name) const {
    std::vector<std::size_t> groups;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        const auto header = HeaderName(lines_[i]);
        if (header && SameName(*header, name)) groups.push_back(i);
    }
    return groups;
}

std::size_t IniText::FindGroup(std::string_view name) const {
    const std::vector<std::size_t> groups = FindGroups(name);
    return groups.empty() ? kNone : groups.front();
}

std::size_t IniText::AddGroup(std::string_view name, bool blankLineBefore) {
    if (blankLineBefore) {
        while (!lines_.empty() && Trim(lines_.back()).empty())
            lines_.pop_back();
        if (!lines_.empty()) lines_.emplace_back();
    }
    lines_.push_back("[" + std::string(name) + "]");
    return lines_.size() - 1;
}

std::size_t IniText::GroupEnd(std::size_t group) const {
    std::size_t end = group + 1;
    while (end < lines_.size() && !HeaderName(lines_[end]))
        ++end;
    return end;
}

std::vector<std::size_t> IniText::KeyLines(std::size_t group, std::string_view key) const {
    std::vector<std::size_t> found;
    if (group >= lines_.size()) return found;
    for (std::size_t i = group + 1, end = GroupEnd(group); i < end; ++i) {
        const std::size_t equals = lines_[i].find('=');
        if (equals != std::string::npos && SameName(Trim(lines_[i].substr(0, equals)), key))
            found.push_back(i);
    }
    return found;
}

std::optional<std::string> IniText::Value(std::size_t group, std::string_view key) const {
    const std::vector<std::size_t> found = KeyLines(group, key);
    if (found.empty()) return std::nullopt;
    const std::string& line = lines_[found.front()];
    return std::string(Trim(std::string_view(line).substr(line.find('=') + 1)));
}

void IniText::EraseLines(const std::vector<std::size_t>& lines) {
    for (auto it = lines.rbegin(); it != lines.rend(); ++it)
        lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(*it));
}

void IniText::SetValue(std::size_t group, std::string_view key, std::string_view value,
                       Insert insert) {
    if (group >= lines_.size()) return;
    std::string line = std::string(key) + "=" + std::string(value);
    std::vector<std::size_t> found = KeyLines(group, key);
    if (!found.empty()) {
        lines_[found.front()] = std::move(line);
        found.erase(found.begin());
        EraseLines(found);
        return;
    }
    std::size_t at = group + 1;
    if (insert == Insert::AtGroupEnd) {
        at = GroupEnd(group);
        while (at > group + 1 && Trim(lines_[at - 1]).empty())
            --at;
    }
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(at), std::move(line));
}

bool IniText::RemoveKey(std::size_t group, std::string_view key) {
    const std::vector<std::size_t> found = KeyLines(group, key);
    EraseLines(found);
    return !found.empty();
}

void IniText::RemoveGroupIfEmpty(std::size_t group) {
    if (group >= lines_.size()) return;
    const std::size_t end = GroupEnd(group);
    for (std::size_t i = group + 1; i < end; ++i)
        if (!Trim(lines_[i]).empty()) return;
    lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(group),
                 lines_.begin() + static_cast<std::ptrdiff_t>(end));
    // The blank line that set the group apart goes with it when it was the last.
    if (group == lines_.size()) {
        while (!lines_.empty() && Trim(lines_.back()).empty())
            lines_.pop_back();
    }
}

std::string EscapeDesktopString(std::string_view text) {
    std::string escaped;
    for (char c : text) {
        switch (c) {
            case '\\':
                escaped += "\\\\";
                break;
            case '\n':
                escaped += "\\n";
                break;
            case '\r':
                escaped += "\\r";
                break;
            case '\t':
                escaped += "\\t";
                break;
            default:
                escaped += c;
        }
    }
    return escaped;
}

std::string UnescapeDesktopString(std::string_view text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\' || i + 1 == text.size()) {
            plain += text[i];
            continue;
        }
        const char next = text[++i];
        const std::string_view from = "\\nrts", to = "\\\n\r\t ";
        const std::size_t at = from.find(next);
        if (at == std::string_view::npos) {
            plain += '\\';
            plain += next;
        } else {
            plain += to[at];
        }
    }
    return plain;
}

}  // namespace iw
