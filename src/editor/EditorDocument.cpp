// The Editor's document lifecycle: ask to save, new sets, open, save and save as.
#include <filesystem>

#include "editor/BlankIcons.h"
#include "editor/Editor.h"
#include "editor/EditorTexts.h"
#include "editor/RecentFiles.h"
#include "services/core/TextCatalog.h"

namespace iw {
namespace {

bool FileExists(const std::string& path) {
    std::error_code ec;
    return !path.empty() && std::filesystem::is_regular_file(path, ec);
}

}  // namespace

MessageAnswer Editor::AskToSave() {
    if (Unmodified()) {
        lastAnswer_ = MessageAnswer::No;
        return lastAnswer_;
    }
    MessageAnswer answer;
    if (HasFileName()) {
        const std::string text = ReplacePlaceholder(GetText(texts::SaveFilename), "%f", fileName_);
        answer =
            messages_.ShowMessage(texts::SaveFilename.key, text, texts::kProgramTitle,
                                  MessageType::Exclamation, false, MessageButtons::YesNoCancel);
    } else {
        answer = messages_.Show(texts::SaveUntitled, MessageType::Exclamation,
                                MessageButtons::YesNoCancel);
    }
    if (answer == MessageAnswer::Yes && !Save()) answer = MessageAnswer::Cancel;
    lastAnswer_ = answer;
    return answer;
}

void Editor::DefaultRequiredFormats() {
    if (const IconTemplate* fallback = templates_.Find(kDefaultTemplateName)) {
        rules_.required = fallback->entries;
        return;
    }
    // The program's templates folder may be missing; the same formats stand in for it.
    rules_.required.clear();
    for (int side : {256, 48, 32, 24, 16}) {
        TemplateEntry entry;
        entry.widthMinus1 = static_cast<std::int16_t>(side - 1);
        entry.heightMinus1 = static_cast<std::int16_t>(side - 1);
        entry.bits = 32;
        entry.compressed = side == 256 ? 1 : 0;
        rules_.required.push_back(entry);
    }
}

void Editor::StartFreshSet(FileMode mode, int widthMinus1, int heightMinus1, int bitCount,
                           int png) {
    set_.Clear();
    set_.properties = {};
    set_.animation = {};
    const int index = set_.AddIcon(widthMinus1, heightMinus1, bitCount);
    set_.Info(index).png = static_cast<std::int16_t>(png);
    // A fresh 32-bit image is fully transparent; lower depths mark transparency in plane 0.
    IconImage& image = set_.Image(index);
    for (int x = 0; x <= widthMinus1; ++x) {
        for (int y = 0; y <= heightMinus1; ++y)
            image.Color(x, y) = TransparentColor;
    }
    set_.mode = mode;
    fileName_.clear();
    rules_.custom = false;
    DefaultRequiredFormats();
}

void Editor::AfterNewSet() {
    CancelStroke();
    floating_.reset();  // the image it floated over is gone
    highlighted_.clear();
    state_.CurrentIcon = 0;
    ResetUndosRepeats();
    savedStateKnown_ = true;
    savedStateId_ = history_.StateId();
    RunLayout();
    RunInspector();
    ShowCaption();
}

bool Editor::NewDocument() {
    return NewBlankIcon(0);
}

bool Editor::NewBlankIcon(int kind) {
    if (AskToSave() == MessageAnswer::Cancel) return false;
    const BlankIconFormat format = BlankIconKind(kind);
    StartFreshSet(FileMode::ICO, format.side - 1, format.side - 1, format.bits, format.png);
    AfterNewSet();
    return true;
}

bool Editor::NewCursor() {
    if (AskToSave() == MessageAnswer::Cancel) return false;
    StartFreshSet(FileMode::ICO, 31, 31, 32, 0);
    SwitchCURMode();
    AfterNewSet();
    messages_.Show(texts::CreateCursor, MessageType::Information);
    return true;
}

bool Editor::NewAnimatedCursor() {
    if (AskToSave() == MessageAnswer::Cancel) return false;
    StartFreshSet(FileMode::ICO, 31, 31, 32, 0);
    SwitchANIMode();
    AfterNewSet();
    messages_.Show(texts::CreateANI, MessageType::Information);
    return true;
}

bool Editor::NewFromTemplate(const IconTemplate& source) {
    if (source.entries.empty()) return false;
    if (AskToSave() == MessageAnswer::Cancel) return false;
    const TemplateEntry& first = source.entries.front();
    StartFreshSet(FileMode::ICO, first.widthMinus1, first.heightMinus1, first.bits,
                  first.compressed);
    for (std::size_t i = 1; i < source.entries.size() && !set_.Full(); ++i) {
        const TemplateEntry& entry = source.entries[i];
        const int index = set_.AddIcon(entry.widthMinus1, entry.heightMinus1, entry.bits);
        set_.Info(index).png = entry.compressed;
        IconImage& image = set_.Image(index);
        for (int x = 0; x < entry.Width(); ++x) {
            for (int y = 0; y < entry.Height(); ++y)
                image.Color(x, y) = TransparentColor;
        }
    }
    rules_.required = source.entries;
    AfterNewSet();
    return true;
}

bool Editor::OpenDocument(const std::string& path) {
    if (!FileExists(path)) {
        messages_.Show(texts::DoesNotExist, MessageType::Exclamation);
        return false;
    }
    if (AskToSave() == MessageAnswer::Cancel) return false;
    set_.Clear();
    set_.properties = {};
    set_.animation = {};
    CoreContext context{messages_, services_.progress, services_.log};
    if (!services_.documents.Read(path, set_, context) || set_.Empty()) {
        // The reader has told the user why; a new untitled set takes the failed one's place.
        StartFreshSet(FileMode::ICO, 31, 31, 32, 0);
        AfterNewSet();
        return false;
    }
    fileName_ = path;
    rules_.custom = false;
    DefaultRequiredFormats();
    switch (set_.mode) {
        case FileMode::ICO:
            SwitchICOMode();
            break;
        case FileMode::CUR:
            SwitchCURMode();
            break;
        case FileMode::ANI:
            SwitchANIMode();
            break;
    }
    AddRecentFile(settingsStore_, path);
    AfterNewSet();
    return true;
}

bool Editor::OpenRecent(int number) {
    const std::string path =
        number == 1 ? RecentFile(settingsStore_, 1) : MoveRecentFileToTop(settingsStore_, number);
    if (path == kNoRecentFile) return false;
    return OpenDocument(path);
}

bool Editor::WriteTo(const std::string& path) {
    CoreContext context{messages_, services_.progress, services_.log};
    const DocumentWrite how{set_.mode, state_.CurrentIcon};
    if (!services_.documents.Write(path, set_, how, context)) return false;
    fileName_ = path;
    savedStateKnown_ = true;
    savedStateId_ = history_.StateId();
    AddRecentFile(settingsStore_, path);
    ShowCaption();
    return true;
}

bool Editor::Save() {
    if (HasFileName()) return WriteTo(fileName_);
    const std::optional<std::string> path =
        services_.view.ChooseSavePath(set_.mode, DocumentName());
    if (!path || path->empty()) return false;
    return SaveAs(*path);
}

bool Editor::SaveAs(const std::string& path) {
    if (path.empty()) return false;
    if (FileExists(path)) {
        const std::string text = ReplacePlaceholder(GetText(texts::OverwriteFile), "%f", path);
        const MessageAnswer answer =
            messages_.ShowMessage(texts::OverwriteFile.key, text, texts::kProgramTitle,
                                  MessageType::Exclamation, false, MessageButtons::YesNo);
        if (answer != MessageAnswer::Yes) return false;
    }
    return WriteTo(path);
}

}  // namespace iw
