#include <algorithm>
#include <cstring>
#include <optional>

#include "document/io/AnimatedCursor.h"
#include "document/io/IcoLayout.h"
#include "services/core/CheckedBytes.h"
#include "services/core/ParseInteger.h"

namespace iw {
namespace {

bool TagAt(std::span<const std::uint8_t> file, std::size_t at, const char* tag) {
    return RangeFits(at, 4, file.size()) && std::memcmp(file.data() + at, tag, 4) == 0;
}

// The text behind a sub-chunk's four-byte length field, cut at the end of the file and
// at the first zero byte.
std::string TextAfterTag(std::span<const std::uint8_t> file, std::size_t tagAt) {
    if (!RangeFits(tagAt, 8, file.size())) return {};
    const std::uint64_t length = LoadLE32(file.data() + tagAt + 4);
    const std::size_t start = tagAt + 8;
    const std::size_t end =
        static_cast<std::size_t>(std::min<std::uint64_t>(file.size(), start + length));
    std::string text(file.begin() + static_cast<long>(start),
                     file.begin() + static_cast<long>(end));
    if (auto zero = text.find('\0'); zero != std::string::npos) text.resize(zero);
    return text;
}

std::optional<std::size_t> FindTag(std::span<const std::uint8_t> file, const char* tag) {
    auto it = std::search(file.begin(), file.end(), tag, tag + 4);
    if (it == file.end()) return std::nullopt;
    return static_cast<std::size_t>(it - file.begin());
}

std::vector<std::uint32_t> Words(std::span<const std::uint8_t> data) {
    std::vector<std::uint32_t> words(data.size() / 4);
    for (std::size_t i = 0; i < words.size(); ++i)
        words[i] = LoadLE32(data.data() + 4 * i);
    return words;
}

struct Chunks {
    std::optional<std::uint32_t> defaultRate;
    std::vector<std::uint32_t> rates;
    std::vector<std::uint32_t> sequence;
    bool hasSequence = false;
    std::optional<std::pair<std::uint16_t, std::uint16_t>> hotspot;
};

struct ChunkView {
    const char* tag;
    std::span<const std::uint8_t> data;
};

// A chunk header at `at` whose tag is printable and whose data lies before `end`.
bool ChunkFitsAt(std::span<const std::uint8_t> file, std::size_t at, std::size_t end) {
    if (!RangeFits(at, 8, end)) return false;
    const bool printable =
        std::all_of(file.begin() + static_cast<long>(at), file.begin() + static_cast<long>(at) + 4,
                    [](std::uint8_t c) { return c >= 0x20 && c < 0x7F; });
    return printable && RangeFits(at + 8, LoadLE32(file.data() + at + 4), end);
}

// Some writers leave out the pad byte after a chunk of odd size. A pad byte is 0; when the
// byte is not, and a chunk fits right there but not one byte further on, the pad is missing.
bool PadByteMissing(std::span<const std::uint8_t> file, std::size_t at, std::size_t end) {
    return at < end && file[at] != 0 && ChunkFitsAt(file, at, end) &&
           !ChunkFitsAt(file, at + 1, end);
}

// Walks the chunks in [begin, end); false when a chunk runs past `end`. A tail too short
// for a chunk header ends the walk.
template <typename Visit>
bool WalkChunks(std::span<const std::uint8_t> file, std::size_t begin, std::size_t end,
                Visit visit) {
    std::size_t at = begin;
    while (end - at >= 8) {
        const std::uint32_t size = LoadLE32(file.data() + at + 4);
        if (!RangeFits(at + 8, size, end)) return false;
        if (!visit(at, file.subspan(at + 8, size))) return false;
        at += 8 + std::size_t{size};
        if ((size & 1u) && !PadByteMissing(file, at, end)) ++at;
        if (at > end) break;  // the pad byte of the last chunk may be missing
    }
    return true;
}

void ReadFrameHotspot(std::span<const std::uint8_t> frames, Chunks& chunks) {
    WalkChunks(frames, 4, frames.size(), [&](std::size_t at, std::span<const std::uint8_t> data) {
        if (!TagAt(frames, at, "icon")) return true;
        if (data.size() >= ico::kHeaderSize + ico::kEntrySize &&
            LoadLE16(data.data() + 2) == ico::kTypeCursor) {
            chunks.hotspot = {LoadLE16(data.data() + 10), LoadLE16(data.data() + 12)};
        }
        return false;  // only the first frame is looked at
    });
}

}  // namespace

std::vector<int> ParseSequence(const std::string& text) {
    std::vector<int> frames;
    std::size_t at = 0;
    while (at < text.size()) {
        std::size_t comma = text.find(',', at);
        if (comma == std::string::npos) comma = text.size();
        // Frame numbers only: anything else between the commas is passed over.
        if (const auto frame =
                ParseInteger<std::uint16_t>(std::string_view(text).substr(at, comma - at))) {
            frames.push_back(*frame);
        }
        at = comma + 1;
    }
    return frames;
}

std::string FormatSequence(const std::vector<int>& frames) {
    std::string text;
    for (int f : frames)
        text += std::to_string(f) + ",";
    return text;
}

bool ReadAnimationChunks(std::span<const std::uint8_t> file, IconSet& set) {
    set.animation.sequenceInUse = false;
    // Only a file that is neither RIFF nor ACON is refused.
    if (!TagAt(file, 0, "RIFF") && !TagAt(file, 8, "ACON")) return false;

    if (TagAt(file, 12, "LIST")) {
        if (auto at = FindTag(file, "INAM")) set.properties.name = TextAfterTag(file, *at);
        if (auto at = FindTag(file, "IART")) set.properties.artist = TextAfterTag(file, *at);
    }

    Chunks chunks;
    const bool walked =
        WalkChunks(file, 12, file.size(), [&](std::size_t at, std::span<const std::uint8_t> data) {
            if (TagAt(file, at, "LIST") && data.size() >= 4) {
                if (std::memcmp(data.data(), "INFO", 4) == 0) {
                    // A sub-chunk that cannot be walked ends the list: the texts before it
                    // stay, and so does everything else in the file.
                    WalkChunks(data, 4, data.size(),
                               [&](std::size_t sub, std::span<const std::uint8_t> text) {
                                   std::string value(text.begin(), text.end());
                                   if (auto z = value.find('\0'); z != std::string::npos) {
                                       value.resize(z);
                                   }
                                   if (TagAt(data, sub, "INAM")) set.properties.name = value;
                                   if (TagAt(data, sub, "IART")) set.properties.artist = value;
                                   return true;
                               });
                    return true;
                }
                if (std::memcmp(data.data(), "fram", 4) == 0) ReadFrameHotspot(data, chunks);
            } else if (TagAt(file, at, "anih") && data.size() >= 32) {
                chunks.defaultRate = LoadLE32(data.data() + 28);
            } else if (TagAt(file, at, "rate")) {
                chunks.rates = Words(data);
            } else if (TagAt(file, at, "seq ")) {
                chunks.sequence = Words(data);
                chunks.hasSequence = true;
            }
            return true;
        });
    if (!walked) return false;

    const int frames = set.Count();
    auto clampRate = [](std::uint32_t r) {
        return static_cast<std::int16_t>(std::min<std::uint32_t>(r, 32767));
    };
    if (chunks.defaultRate) {
        for (int i = 0; i < frames; ++i)
            set.Info(i).rate = clampRate(*chunks.defaultRate);
    }
    // Step i shows frame sequence[i] (or frame i without a sequence) at rate i. Indices
    // beyond the frames found are dropped from the sequence.
    std::vector<int> shown;
    if (chunks.hasSequence) {
        for (std::uint32_t f : chunks.sequence) {
            if (f < static_cast<std::uint32_t>(frames)) shown.push_back(static_cast<int>(f));
        }
        set.properties.sequence = FormatSequence(shown);
        set.animation.sequenceInUse = true;
    }
    std::string ratesText;
    for (std::size_t step = 0; step < chunks.rates.size(); ++step) {
        ratesText += (step ? "|" : "") + std::to_string(chunks.rates[step]);
        std::uint32_t frame = static_cast<std::uint32_t>(step);
        if (chunks.hasSequence) {
            if (step >= chunks.sequence.size()) continue;
            frame = chunks.sequence[step];
        }
        if (frame < static_cast<std::uint32_t>(frames)) {
            set.Info(static_cast<int>(frame)).rate = clampRate(chunks.rates[step]);
        }
    }
    set.animation.ratesText = ratesText;
    // Every frame shares one hotspot; take the first frame's.
    if (chunks.hotspot) {
        set.properties.hotspotX = static_cast<std::int16_t>(chunks.hotspot->first);
        set.properties.hotspotY = static_cast<std::int16_t>(chunks.hotspot->second);
    }
    return true;
}

}  // namespace iw
