#include "document/io/IconFileReader.h"

#include <fstream>
#include <optional>
#include <vector>

#include "document/io/AnimatedCursor.h"
#include "document/io/IconReaderSteps.h"
#include "document/io/PictureSignature.h"
#include "document/io/ProgramIcons.h"
#include "services/core/TextCatalog.h"

namespace iw {

IconReadStatus detail::LoadWholeFile(const std::string& path, const IconReadLimits& limits,
                                     std::vector<std::uint8_t>& bytes) {
    std::ifstream in(path, std::ios::binary | std::ios::ate);
    if (!in) return IconReadStatus::Unreadable;
    const std::streamoff length = in.tellg();
    if (length < 0) return IconReadStatus::Unreadable;
    if (length == 0) return IconReadStatus::EmptyFile;
    if (static_cast<std::uint64_t>(length) > limits.maxFileBytes) return IconReadStatus::TooLarge;
    bytes.resize(static_cast<std::size_t>(length));
    in.seekg(0);
    if (!in.read(reinterpret_cast<char*>(bytes.data()), length)) {
        return IconReadStatus::Unreadable;
    }
    return IconReadStatus::Ok;
}

namespace {

void ResetForReading(IconSet& set, const std::string& path) {
    set.Clear();
    set.properties = {};
    set.animation = {};
    set.mode = FileModeFromPath(path);
}

void ReportFailure(IconReadStatus status, std::span<const std::uint8_t> file,
                   const std::string& path, MessageService& messages) {
    // A directory that yields no image is reported as corrupt without asking whether the
    // file is an ordinary picture.
    const bool renamedPicture =
        status != IconReadStatus::NoEntries && status != IconReadStatus::NoSuchGroup &&
        status != IconReadStatus::AnimationCorrupt && IsOrdinaryPicture(file);
    const TextId& id = renamedPicture ? texts::RenamedPicture : texts::CorruptFile;
    messages.ShowMessage(id.key, GetText(id) + "\n" + path, texts::kProgramTitle,
                         MessageType::Exclamation, false);
}

// A program's group, when the file is a program that has the group asked for. Otherwise
// nothing: a program without groups goes on to the other readers, unless a group was asked
// for.
std::optional<IconReadResult> ReadProgramGroup(std::span<const std::uint8_t> FileBytes,
                                               IconSet& set, IProgressSink& progress,
                                               const GroupChoice& choice) {
    const std::optional<ProgramIconTable> table = ProgramIconTable::Read(FileBytes);
    if (!table) return std::nullopt;
    const int group = choice.group >= 0 ? choice.group : table->FirstGroup();
    if (group < 0 && choice.group < 0) return std::nullopt;
    progress.SetStatus(GetText(texts::GettingIconInformation));
    IconReadResult result = table->ReadGroup(FileBytes, group, choice.language, set, progress);
    result.program = true;
    return result;
}

}  // namespace

IconReadResult ReadIconData(std::span<const std::uint8_t> FileBytes, const std::string& path,
                            IconSet& set, IProgressSink& progress, const GroupChoice& choice) {
    ResetForReading(set, path);
    if (std::optional<IconReadResult> fromProgram =
            ReadProgramGroup(FileBytes, set, progress, choice)) {
        if (!fromProgram->Ok()) set.Clear();
        progress.SetStatus("");
        return *fromProgram;
    }
    IconReadResult result;
    result.program = LooksLikeProgram(FileBytes);
    detail::EntryTable entries;
    if (UpperExtension3(path) == "ICO") {
        result.status = detail::ReadDirectory(FileBytes, set, entries);
    } else {
        progress.SetStatus(GetText(texts::GettingIconInformation));
        result.status = detail::FindBitmapHeaders(FileBytes, set, entries);
    }
    if (!result.Ok()) {
        set.Clear();
        progress.SetStatus("");
        return result;
    }
    detail::DecodeImages(FileBytes, entries, set, progress);
    result.nonStandard16Converted = detail::ConvertNonStandard16Images(set);
    if (set.mode == FileMode::ANI && !ReadAnimationChunks(FileBytes, set)) {
        set.Clear();
        progress.SetStatus("");
        result.status = IconReadStatus::AnimationCorrupt;
        return result;
    }
    if (set.mode == FileMode::CUR) detail::ReadCursorHotspot(FileBytes, set);
    progress.SetStatus("");
    return result;
}

bool ReadIconFile(const std::string& path, IconSet& set, CoreContext& context,
                  const IconReadLimits& limits) {
    return ReadIconFile(path, GroupChoice{}, set, context, limits);
}

bool ReadIconFile(const std::string& path, const GroupChoice& choice, IconSet& set,
                  CoreContext& context, const IconReadLimits& limits) {
    // The whole file, erased when this returns: images keep what they need of it.
    std::vector<std::uint8_t> FileBytes;
    IconReadResult result;
    result.status = detail::LoadWholeFile(path, limits, FileBytes);
    if (result.Ok()) {
        result = ReadIconData(FileBytes, path, set, context.progress, choice);
    } else {
        ResetForReading(set, path);
    }
    return detail::FinishRead(result, FileBytes, path, set, context);
}

bool detail::FinishRead(const IconReadResult& result, std::span<const std::uint8_t> FileBytes,
                        const std::string& path, IconSet& set, CoreContext& context) {
    if (!result.Ok()) {
        set.Clear();
        ReportFailure(result.status, FileBytes, path, context.messages);
        return false;
    }
    if (result.nonStandard16Converted) {
        context.messages.Show(texts::Bad16Icons, MessageType::Information);
    }
    return true;
}

}  // namespace iw
