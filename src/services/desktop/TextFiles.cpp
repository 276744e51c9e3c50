#include "services/desktop/TextFiles.h"

#include <cstdio>

#include "platform/FileStreams.h"
#include "services/core/AtomicFile.h"

namespace iw {

TextFileRead ReadTextFile(const std::filesystem::path& file, std::size_t maxBytes) {
    TextFileRead result;
    std::error_code ec;
    const auto status = std::filesystem::status(file, ec);
    if (!std::filesystem::exists(status)) return result;  // Missing
    result.status = TextFileRead::Status::Failed;
    if (!std::filesystem::is_regular_file(status)) return result;
    std::FILE* stream = platform::OpenForReading(file);
    if (!stream) return result;
    const std::optional<std::uint64_t> length = platform::LengthOf(stream);
    if (length && *length <= maxBytes && platform::SeekTo(stream, 0)) {
        std::string text(static_cast<std::size_t>(*length), '\0');
        if (std::fread(text.data(), 1, text.size(), stream) == text.size()) {
            result.status = TextFileRead::Status::Read;
            result.text = std::move(text);
        }
    }
    std::fclose(stream);
    return result;
}

bool WriteTextFileIfChanged(const std::filesystem::path& file, std::string_view text) {
    const TextFileRead old = ReadTextFile(file);
    if (old.status == TextFileRead::Status::Read && old.text == text) return true;
    return WriteFileAtomically(file, std::as_bytes(std::span(text.data(), text.size())));
}

}  // namespace iw
