#include <algorithm>
#include <cstring>

#include "document/io/AnimatedCursor.h"
#include "document/io/IconFileWriter.h"
#include "services/core/AtomicFile.h"

namespace iw {
namespace {

using Bytes = std::vector<std::uint8_t>;

void Append32(Bytes& out, std::uint32_t v) {
    for (int i = 0; i < 4; ++i)
        out.push_back(static_cast<std::uint8_t>(v >> (8 * i)));
}

void AppendTag(Bytes& out, const char* tag) {
    for (int i = 0; i < 4; ++i)
        out.push_back(static_cast<std::uint8_t>(tag[i]));
}

void AppendChunk(Bytes& out, const char* tag, const Bytes& data) {
    AppendTag(out, tag);
    Append32(out, static_cast<std::uint32_t>(data.size()));
    out.insert(out.end(), data.begin(), data.end());
    if (data.size() % 2) out.push_back(0);
}

// A text sub-chunk: the length counts the text's bytes only, not the pad byte.
void AppendTextChunk(Bytes& out, const char* tag, const std::string& text) {
    AppendChunk(out, tag, Bytes(text.begin(), text.end()));
}

Bytes WordsChunkData(const std::vector<std::uint32_t>& words) {
    Bytes data;
    for (std::uint32_t w : words)
        Append32(data, w);
    return data;
}

}  // namespace

std::optional<Bytes> BuildAnimatedCursor(const IconSet& set, CoreContext& context) {
    const int frames = set.Count();
    std::vector<int> sequence;
    if (set.animation.sequenceInUse) {
        for (int f : ParseSequence(set.properties.sequence)) {
            if (f < frames) sequence.push_back(f);
        }
    }
    const bool useSequence = !sequence.empty();
    const std::uint32_t steps = useSequence ? static_cast<std::uint32_t>(sequence.size())
                                            : static_cast<std::uint32_t>(frames);
    auto frameAtStep = [&](std::uint32_t step) {
        return useSequence ? sequence[step] : static_cast<int>(step);
    };

    Bytes body;  // everything after "RIFF" size
    AppendTag(body, "ACON");

    const IconSetProperties& p = set.properties;
    if (!p.name.empty() || !p.artist.empty()) {
        Bytes info;
        AppendTag(info, "INFO");
        if (!p.name.empty()) AppendTextChunk(info, "INAM", p.name);
        if (!p.artist.empty()) AppendTextChunk(info, "IART", p.artist);
        AppendChunk(body, "LIST", info);
    }

    const std::uint32_t firstRate = frames > 0 ? static_cast<std::uint32_t>(set.Info(0).rate) : 0;
    Bytes anih;
    for (std::uint32_t v :
         {36u, static_cast<std::uint32_t>(frames), steps, 0u, 0u, 0u, 0u, firstRate, 1u}) {
        Append32(anih, v);  // flags 1 (frames are icons), with or without a sequence
    }
    AppendChunk(body, "anih", anih);

    bool ratesDiffer = false;
    for (int i = 0; i < frames; ++i)
        ratesDiffer |= set.Info(i).rate != set.Info(0).rate;
    if (ratesDiffer) {
        std::vector<std::uint32_t> rates;
        for (std::uint32_t s = 0; s < steps; ++s) {
            rates.push_back(static_cast<std::uint32_t>(set.Info(frameAtStep(s)).rate));
        }
        AppendChunk(body, "rate", WordsChunkData(rates));
    }
    if (useSequence) {
        std::vector<std::uint32_t> words(sequence.begin(), sequence.end());
        AppendChunk(body, "seq ", WordsChunkData(words));
    }

    Bytes frameList;
    AppendTag(frameList, "fram");
    for (int i = 0; i < frames; ++i) {
        const std::optional<Bytes> frame = BuildCursorFile(set, i, p.hotspotX, p.hotspotY, context);
        if (!frame) return std::nullopt;
        AppendChunk(frameList, "icon", *frame);
        context.progress.SetProgress(i + 1, frames);
        context.progress.Yield();
    }
    AppendChunk(body, "LIST", frameList);

    Bytes file;
    AppendTag(file, "RIFF");
    Append32(file, static_cast<std::uint32_t>(body.size()));
    file.insert(file.end(), body.begin(), body.end());
    context.progress.SetStatus("");
    return file;
}

bool WriteAnimatedCursor(const std::string& path, const IconSet& set, CoreContext& context) {
    const std::optional<Bytes> bytes = BuildAnimatedCursor(set, context);
    if (!bytes) return false;
    AtomicFile file;
    return file.Open(path) && file.Write(bytes->data(), bytes->size()) && file.Commit();
}

}  // namespace iw
