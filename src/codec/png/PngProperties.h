#pragma once
// The text properties a PNG is written with. Each is addressed by a bit value; the ten
// text properties are written as tEXt (or zTXt when compressing pays) under the keywords
// below. 1024 is the modification time, written as tIME. 2048, 4096 and 8192 are accepted
// and kept for the caller, but nothing is written for them.

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace iw {

enum PngPropertyId : int {
    pngTitle = 1,
    pngAuthor = 2,
    pngDescription = 4,
    pngCopyright = 8,
    pngCreationTime = 16,
    pngSoftware = 32,
    pngDisclaimer = 64,
    pngWarning = 128,
    pngSource = 256,
    pngComment = 512,
    pngLastModified = 1024,
    pngCustom1 = 2048,
    pngCustom2 = 4096,
    pngCustom3 = 8192,
};

// The date value behind tIME, in universal time.
struct PngTime {
    int year = 0;
    int month = 1;   // 1 .. 12
    int day = 1;     // 1 .. 31
    int hour = 0;    // 0 .. 23
    int minute = 0;  // 0 .. 59
    int second = 0;  // 0 .. 60 (a leap second)
    friend bool operator==(const PngTime&, const PngTime&) = default;
};
bool IsValidPngTime(const PngTime& time);

// The keyword written for a text property's bit value; empty for other values.
std::string_view PngPropertyKeyword(int id);
// The bit value for a keyword, compared case-insensitively, or -1. The key for 256 is
// "Source'" with its apostrophe, so "Source" itself is not found; this is how the lookup
// has always behaved and is kept.
int PngPropertyLookup(std::string_view keyword);
// The ten text properties and 2048, 4096 and 8192 (1024 is the time, set apart).
bool IsValidPngPropertyId(int id);

class PngProperties {
  public:
    // Sets a text property; an empty value removes it. False for an id that is not valid.
    bool Set(int id, std::string_view value);
    // Sets the modification time (id 1024 only). False for another id or a bad date.
    bool Set(int id, const PngTime& time);
    // The text of a property, empty when unset or not a text property.
    std::string Get(int id) const;
    const std::optional<PngTime>& Time() const { return time_; }
    void Clear();
    bool Empty() const;

  private:
    static constexpr int kSlots = 14;  // bits 0 .. 13
    static int SlotOf(int id);
    std::array<std::string, kSlots> values_{};
    std::optional<PngTime> time_;
};

}  // namespace iw
