#include "codec/png/PngProperties.h"

#include <bit>

namespace iw {
namespace {

struct KeywordEntry {
    int id;
    std::string_view written;
    std::string_view lookup;
};

constexpr std::array<KeywordEntry, 10> kKeywords{{
    {pngTitle, "Title", "Title"},
    {pngAuthor, "Author", "Author"},
    {pngDescription, "Description", "Description"},
    {pngCopyright, "Copyright", "Copyright"},
    {pngCreationTime, "Creation Time", "Creation Time"},
    {pngSoftware, "Software", "Software"},
    {pngDisclaimer, "Disclaimer", "Disclaimer"},
    {pngWarning, "Warning", "Warning"},
    {pngSource, "Source", "Source'"},
    {pngComment, "Comment", "Comment"},
}};

char Lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (Lower(a[i]) != Lower(b[i])) return false;
    }
    return true;
}

bool IsLeapYear(int year) {
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

}  // namespace

bool IsValidPngTime(const PngTime& t) {
    static constexpr int kDays[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (t.year < 0 || t.year > 65535 || t.month < 1 || t.month > 12) return false;
    const int days = kDays[t.month - 1] + (t.month == 2 && IsLeapYear(t.year) ? 1 : 0);
    return t.day >= 1 && t.day <= days && t.hour >= 0 && t.hour <= 23 && t.minute >= 0 &&
           t.minute <= 59 && t.second >= 0 && t.second <= 60;
}

std::string_view PngPropertyKeyword(int id) {
    for (const KeywordEntry& entry : kKeywords) {
        if (entry.id == id) return entry.written;
    }
    return {};
}

int PngPropertyLookup(std::string_view keyword) {
    for (const KeywordEntry& entry : kKeywords) {
        if (EqualsIgnoringCase(entry.lookup, keyword)) return entry.id;
    }
    return -1;
}

bool IsValidPngPropertyId(int id) {
    return !PngPropertyKeyword(id).empty() || id == pngCustom1 || id == pngCustom2 ||
           id == pngCustom3;
}

int PngProperties::SlotOf(int id) {
    return std::countr_zero(static_cast<unsigned>(id));
}

bool PngProperties::Set(int id, std::string_view value) {
    if (!IsValidPngPropertyId(id)) return false;
    values_[static_cast<std::size_t>(SlotOf(id))] = std::string(value);
    return true;
}

bool PngProperties::Set(int id, const PngTime& time) {
    if (id != pngLastModified || !IsValidPngTime(time)) return false;
    time_ = time;
    return true;
}

std::string PngProperties::Get(int id) const {
    if (!IsValidPngPropertyId(id)) return {};
    return values_[static_cast<std::size_t>(SlotOf(id))];
}

void PngProperties::Clear() {
    for (std::string& value : values_)
        value.clear();
    time_.reset();
}

bool PngProperties::Empty() const {
    if (time_) return false;
    for (const std::string& value : values_) {
        if (!value.empty()) return false;
    }
    return true;
}

}  // namespace iw
