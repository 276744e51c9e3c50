#include "editor/DocumentSession.h"

#include <filesystem>

#include "document/io/ImageConversion.h"
#include "document/io/ProgramIcons.h"
#include "editor/AnimationCommands.h"
#include "editor/BlankIcons.h"
#include "editor/EditorTexts.h"
#include "editor/IconFormats.h"
#include "services/core/TextCatalog.h"

namespace iw {
namespace {

// One blank 32 x 32 image of 32 bits: new documents, cursors and the untitled fallback.
const TemplateEntry kDefaultFormat = ImageAttributes{32, 32, 32, false}.Entry();

}  // namespace

DocumentSession::DocumentSession(IconSet& set, const UndoHistory& history,
                                 ProgramSettings& settings, const EditorServices& services,
                                 IDocumentHost& host, EditorEvents& events)
    : set_(set),
      history_(history),
      settings_(settings),
      services_(services),
      host_(host),
      events_(events) {}

CoreContext DocumentSession::Context() const {
    return {settings_.Messages(), services_.progress, services_.log};
}

// ---- Flags and captions -----------------------------------------------------------------

bool DocumentSession::Unmodified() const {
    return savedStateKnown_ && history_.StateId() == savedStateId_;
}

void DocumentSession::MarkSaved() {
    savedStateKnown_ = true;
    savedStateId_ = history_.StateId();
}

std::string DocumentSession::DocumentName() const {
    if (!fileName_.empty()) return std::filesystem::path(fileName_).filename().string();
    if (!programPath_.empty()) return std::filesystem::path(programPath_).filename().string();
    return GetText(texts::Untitled);
}

std::string DocumentSession::SuggestedSaveName() const {
    if (!fileName_.empty() || programPath_.empty()) return DocumentName();
    const char* extension = set_.mode == FileMode::CUR   ? ".cur"
                            : set_.mode == FileMode::ANI ? ".ani"
                                                         : ".ico";
    return std::filesystem::path(programPath_).stem().string() + extension;
}

std::string DocumentSession::Caption() const {
    return DocumentName() + std::string(texts::kCaptionSuffix);
}

std::string DocumentSession::ModeMenuCaption() const {
    return GetText(set_.mode == FileMode::ICO ? texts::IconMenu : texts::CursorMenu);
}

void DocumentSession::SwitchMode(FileMode mode) {
    if (set_.mode == mode) return;
    set_.mode = mode;
    // The file will be written in the other format: that is a change to save.
    MarkModified();
    events_.Notify(&IEditorObserver::ModeChanged);
}

// ---- Ask to save ------------------------------------------------------------------------

MessageAnswer DocumentSession::AskToSave() {
    if (Unmodified()) {
        lastAnswer_ = MessageAnswer::No;
        return lastAnswer_;
    }
    MessageService& messages = settings_.Messages();
    MessageAnswer answer;
    if (HasFileName()) {
        const std::string text = ReplacePlaceholder(GetText(texts::SaveFilename), "%f", fileName_);
        answer = messages.ShowMessage(texts::SaveFilename.key, text, texts::kProgramTitle,
                                      MessageType::Exclamation, false, MessageButtons::YesNoCancel);
    } else {
        answer = messages.Show(texts::SaveUntitled, MessageType::Exclamation,
                               MessageButtons::YesNoCancel);
    }
    if (answer == MessageAnswer::Yes && !Save()) answer = MessageAnswer::Cancel;
    lastAnswer_ = answer;
    return answer;
}

// ---- New sets ---------------------------------------------------------------------------

void DocumentSession::StartFreshSet(FileMode mode, const TemplateEntry& format) {
    set_.Clear();
    set_.properties = {};
    set_.animation = {};
    set_.InsertIcon(0, BlankImage(format));
    set_.mode = mode;
    fileName_.clear();
    programPath_.clear();
    groupOffer_ = false;
}

void DocumentSession::Replaced(const std::vector<TemplateEntry>* formats) {
    if (request_ && !SamePath(fileName_, request_->Target())) EndEditRequest();
    host_.SetReplaced(formats);
    MarkSaved();
    events_.Notify(&IEditorObserver::ModeChanged);
    events_.Notify(&IEditorObserver::CaptionChanged);
}

void DocumentSession::Discard() {
    set_.Clear();
    fileName_.clear();
    programPath_.clear();
}

void DocumentSession::StartUntitled() {
    StartFreshSet(FileMode::ICO, kDefaultFormat);
    Replaced();
}

bool DocumentSession::NewDocument() {
    return NewBlankIcon(0);
}

bool DocumentSession::NewBlankIcon(int kind) {
    const BlankIconFormat format = BlankIconKind(kind);
    return NewIcon({format.side, format.side, format.bits, format.png != 0});
}

bool DocumentSession::NewIcon(const ImageAttributes& attributes) {
    if (!attributes.Valid() || !Ask()) return false;
    StartFreshSet(FileMode::ICO, attributes.Entry());
    Replaced();
    return true;
}

bool DocumentSession::NewCursor() {
    return NewCursorSet(FileMode::CUR, texts::CreateCursor);
}

bool DocumentSession::NewAnimatedCursor() {
    return NewCursorSet(FileMode::ANI, texts::CreateANI);
}

bool DocumentSession::NewCursorSet(FileMode mode, const TextId& hint) {
    if (!Ask()) return false;
    StartFreshSet(mode, kDefaultFormat);
    Replaced();
    settings_.Messages().Show(hint, MessageType::Information);
    return true;
}

bool DocumentSession::NewFromTemplate(const IconTemplate& source) {
    if (source.entries.empty() || !Ask()) return false;
    StartFreshSet(FileMode::ICO, source.entries.front());
    for (std::size_t i = 1; i < source.entries.size() && !set_.Full(); ++i)
        set_.InsertIcon(set_.Count(), BlankImage(source.entries[i]));
    Replaced(&source.entries);
    return true;
}

bool DocumentSession::NewFolderIcon(const IconSet& made) {
    if (made.Empty() || !Ask()) return false;
    set_.Clear();
    set_.properties = {};
    set_.animation = {};
    set_.mode = FileMode::ICO;
    for (int i = 0; i < made.Count() && !set_.Full(); ++i)
        set_.InsertIcon(set_.Count(), made.Image(i).Clone());
    fileName_.clear();
    programPath_.clear();
    Replaced();
    settings_.Messages().Show(texts::CreateFolderIcon, MessageType::Information);
    return true;
}

bool DocumentSession::NewFromPicture(const RgbaBuffer& picture, const IconTemplate& source,
                                     IProgressSink& progress) {
    if (picture.Empty() || source.entries.empty() || !Ask()) return false;
    const std::vector<IconInfo> formats = FormatsOf(source.entries);
    ConvertPicture(picture, formats, set_, progress);
    fileName_.clear();
    programPath_.clear();
    Replaced(&source.entries);
    MarkModified();
    events_.Notify(&IEditorObserver::CaptionChanged);
    return true;
}

// ---- Open -------------------------------------------------------------------------------

bool DocumentSession::OpenDocument(const std::string& path) {
    return OpenFile(path, std::nullopt);
}

bool DocumentSession::OpenProgramGroup(const std::string& path, const GroupChoice& choice,
                                       bool confirmed) {
    return OpenFile(path, choice, confirmed);
}

bool DocumentSession::ConfirmProgram(const std::string& path) {
    if (!IsProgramFile(path)) return true;
    return settings_.Messages().Show(texts::OpenEXE, MessageType::Question,
                                     MessageButtons::YesNo) == MessageAnswer::Yes;
}

bool DocumentSession::OpenFile(const std::string& path, const std::optional<GroupChoice>& choice,
                               bool confirmed) {
    if (!DocumentExists(path)) {
        settings_.Messages().Show(texts::DoesNotExist, MessageType::Exclamation);
        return false;
    }
    // Picking another group of the program the set came from does not ask again.
    const bool pickingGroup =
        choice && (confirmed || (!programPath_.empty() && SamePath(programPath_, path)));
    if ((!pickingGroup && !ConfirmProgram(path)) || !Ask()) return false;
    const bool program = IsProgramFile(path);
    set_.Clear();
    set_.properties = {};
    set_.animation = {};
    CoreContext context = Context();
    // The reader sets the file's mode.
    const bool read = choice ? services_.documents.ReadProgramGroup(path, *choice, set_, context)
                             : services_.documents.Read(path, set_, context);
    if (!read || set_.Empty()) {
        // The reader has told the user why; a new untitled set takes the failed one's place.
        StartUntitled();
        return false;
    }
    // A program is never written into: the set is saved as an icon file elsewhere.
    fileName_ = program ? std::string() : path;
    programPath_ = program ? path : std::string();
    groupOffer_ = program && !choice;
    settings_.AddRecentFile(path);
    Replaced();
    ShowAnimationNotices(set_, settings_.Messages());
    return true;
}

bool DocumentSession::OpenRecent(int number) {
    const std::string path =
        number == 1 ? settings_.RecentFiles()[0] : settings_.MoveRecentFileToTop(number);
    if (path == kNoRecentFile) return false;
    return OpenDocument(path);
}

bool DocumentSession::OpenEditRequest(const std::string& requestFile) {
    std::optional<EditRequestFile> request = EditRequestFile::Read(requestFile);
    if (!request) {
        settings_.Messages().ShowMessage(texts::InvalidCommand.key,
                                         GetText(texts::InvalidCommand) + "\n" + requestFile,
                                         texts::kProgramTitle, MessageType::Exclamation, false);
        return false;
    }
    EndEditRequest();
    if (!TakeRequestedFile(request->Target())) {
        request->WriteAnswer();
        return false;
    }
    request_ = std::move(request);
    services_.view.ShowEditRequest(EditRequestText());
    events_.Notify(&IEditorObserver::EditRequestChanged);
    return true;
}

bool DocumentSession::TakeRequestedFile(const std::string& target) {
    if (DocumentExists(target)) return OpenDocument(target);
    if (!Ask()) return false;
    StartFreshSet(FileModeFromPath(target), kDefaultFormat);
    fileName_ = target;
    Replaced();
    return true;
}

void DocumentSession::EndEditRequest() {
    if (!request_) return;
    request_->WriteAnswer();
    request_.reset();
    services_.view.ShowEditRequest(std::string());
    events_.Notify(&IEditorObserver::EditRequestChanged);
}

const std::string& DocumentSession::EditRequest() const {
    static const std::string kNone;
    return request_ ? request_->Path() : kNone;
}

std::string DocumentSession::EditRequestText() const {
    return request_ ? GetText(texts::EditingFor) + request_->Program() : std::string();
}

// ---- Save -------------------------------------------------------------------------------

bool DocumentSession::WriteTo(const std::string& path) {
    host_.FinishEditing();
    CoreContext context = Context();
    const DocumentWrite how{set_.mode, host_.CurrentIcon()};
    if (!services_.documents.Write(path, set_, how, context)) return false;
    fileName_ = path;
    programPath_.clear();
    MarkSaved();
    if (request_ && SamePath(path, request_->Target())) {
        request_->NoteSaved();
    } else {
        EndEditRequest();  // the document went elsewhere
    }
    settings_.AddRecentFile(path);
    events_.Notify(&IEditorObserver::CaptionChanged);
    return true;
}

bool DocumentSession::Save() {
    if (HasFileName()) return WriteTo(fileName_);
    const std::optional<std::string> path =
        services_.view.ChooseSavePath(set_.mode, SuggestedSaveName());
    if (!path || path->empty()) return false;
    return SaveAs(*path);
}

bool DocumentSession::SaveAs(const std::string& path) {
    if (path.empty()) return false;
    if (DocumentExists(path)) {
        const std::string text = ReplacePlaceholder(GetText(texts::OverwriteFile), "%f", path);
        const MessageAnswer answer = settings_.Messages().ShowMessage(
            texts::OverwriteFile.key, text, texts::kProgramTitle, MessageType::Exclamation, false,
            MessageButtons::YesNo);
        if (answer != MessageAnswer::Yes) return false;
    }
    return WriteTo(path);
}

}  // namespace iw
