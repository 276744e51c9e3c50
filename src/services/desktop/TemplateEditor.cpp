#include "services/desktop/TemplateEditor.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <system_error>

#include "services/desktop/DesktopTexts.h"
#include "services/desktop/TemplateFile.h"

namespace iw {
namespace {

bool ValidDepth(int bits) {
    return bits == 1 || bits == 4 || bits == 8 || bits == 24 || bits == 32;
}

bool ValidTemplateName(std::string_view name) {
    if (name.empty() || name == "." || name == "..") return false;
    for (char c : name) {
        if (static_cast<unsigned char>(c) < 32) return false;
        if (std::string_view("\\/:*?\"<>|").find(c) != std::string_view::npos) return false;
    }
    return true;
}

// A side typed into the editor: a whole number from 1 to 256, else nothing.
std::optional<int> SideFromText(std::string_view text) {
    if (!TemplateEditor::IsInteger(text)) return std::nullopt;
    if (text.front() == '+') text.remove_prefix(1);
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    if (value < 1 || value > 256) return std::nullopt;
    return value;
}

constexpr std::array<int, 5> kDepthBits = {1, 4, 8, 24, 32};

std::string SizeText(const TemplateEntry& entry) {
    return std::to_string(entry.Width()) + " x " + std::to_string(entry.Height());
}

}  // namespace

TemplateEditor::TemplateEditor(MessageService& messages, std::filesystem::path userFolder,
                               ITemplateEditorObserver* observer)
    : messages_(messages), userFolder_(std::move(userFolder)), observer_(observer) {}

bool TemplateEditor::Editable() const {
    if (!readOnly_) return true;
    messages_.Show(texts::TemplateLocked, MessageType::Exclamation);
    return false;
}

void TemplateEditor::NewTemplate() {
    readOnly_ = false;
    name_ = std::string(kNewName);
    path_.clear();
    entries_.clear();
    selected_ = -1;
    modified_ = false;
    TemplateChanged();
    RowsChanged();
}

bool TemplateEditor::OpenTemplates(const IconTemplate& source) {
    if (source.Locked()) {
        messages_.Show(texts::TemplateLocked, MessageType::Exclamation);
        return false;
    }
    ViewTemplate(source);
    return true;
}

void TemplateEditor::ViewTemplate(const IconTemplate& source) {
    readOnly_ = source.Locked();
    name_ = source.name;
    path_ = source.path;
    entries_ = source.entries;
    selected_ = entries_.empty() ? -1 : 0;
    modified_ = false;
    TemplateChanged();
    RowsChanged();
}

bool TemplateEditor::SaveTemplates() {
    if (path_.empty() || !Editable()) return false;
    if (!WriteTemplateFile(path_, entries_)) return false;
    modified_ = false;
    TemplateChanged();
    return true;
}

bool TemplateEditor::SaveTemplatesAs(std::string_view name) {
    if (!ValidTemplateName(name) || userFolder_.empty() || !Editable()) return false;
    const std::filesystem::path file = userFolder_ / (std::string(name) + ".ini");
    if (!WriteTemplateFile(file, entries_)) return false;
    name_ = std::string(name);
    path_ = file.string();
    modified_ = false;
    TemplateChanged();
    return true;
}

bool TemplateEditor::Save(std::string_view name) {
    if (!Editable()) return false;
    if (!path_.empty()) return SaveTemplates();
    if (!ValidTemplateName(name)) {
        messages_.Show(texts::TemplateName, MessageType::Exclamation);
        return false;
    }
    const std::filesystem::path file = userFolder_ / (std::string(name) + ".ini");
    std::error_code error;
    if (std::filesystem::exists(file, error)) {
        const std::string text =
            ReplacePlaceholder(GetText(iw::texts::OverwriteFile), "%f", file.string());
        if (messages_.ShowMessage(iw::texts::OverwriteFile.key, text, texts::kProgramTitle,
                                  MessageType::Exclamation, false,
                                  MessageButtons::YesNo) != MessageAnswer::Yes)
            return false;
    }
    return SaveTemplatesAs(name);
}

bool TemplateEditor::AddItemText(std::string_view width, std::string_view height, int depthIndex,
                                 int compressedIndex) {
    if (!Editable()) return false;
    if (entries_.size() >= static_cast<std::size_t>(IconTemplate::kMaxEntries)) {
        messages_.Show(texts::IconLimit, MessageType::Exclamation);
        return false;
    }
    const std::optional<int> w = SideFromText(width);
    const std::optional<int> h = SideFromText(height);
    if (!w || !h) {
        messages_.Show(texts::Integer256From1, MessageType::Exclamation);
        return false;
    }
    if (depthIndex < 0 || depthIndex >= static_cast<int>(kDepthBits.size())) return false;
    return AddItem(*w, *h, kDepthBits[static_cast<std::size_t>(depthIndex)], compressedIndex == 1);
}

bool TemplateEditor::AddItem(int width, int height, int bits, bool compressed) {
    if (!Editable()) return false;
    if (entries_.size() >= static_cast<std::size_t>(IconTemplate::kMaxEntries)) return false;
    if (width < 1 || width > 256 || height < 1 || height > 256 || !ValidDepth(bits)) return false;
    TemplateEntry entry;
    entry.widthMinus1 = static_cast<std::int16_t>(width - 1);
    entry.heightMinus1 = static_cast<std::int16_t>(height - 1);
    entry.bits = static_cast<std::int16_t>(bits);
    entry.compressed = compressed ? 1 : 0;
    entries_.push_back(entry);
    selected_ = static_cast<int>(entries_.size()) - 1;
    modified_ = true;
    RowsChanged();
    return true;
}

bool TemplateEditor::RemoveItem() {
    if (selected_ < 0 || !Editable()) return false;
    entries_.erase(entries_.begin() + selected_);
    if (selected_ >= static_cast<int>(entries_.size()))
        selected_ = static_cast<int>(entries_.size()) - 1;
    modified_ = true;
    RowsChanged();
    return true;
}

bool TemplateEditor::MoveUp() {
    if (selected_ <= 0 || !Editable()) return false;
    std::swap(entries_[static_cast<std::size_t>(selected_)],
              entries_[static_cast<std::size_t>(selected_ - 1)]);
    --selected_;
    modified_ = true;
    RowsChanged();
    return true;
}

bool TemplateEditor::MoveDown() {
    if (selected_ < 0 || selected_ + 1 >= static_cast<int>(entries_.size()) || !Editable())
        return false;
    std::swap(entries_[static_cast<std::size_t>(selected_)],
              entries_[static_cast<std::size_t>(selected_ + 1)]);
    ++selected_;
    modified_ = true;
    RowsChanged();
    return true;
}

void TemplateEditor::SelectRow(int row) {
    selected_ = (row >= 0 && row < static_cast<int>(entries_.size())) ? row : -1;
    RowsChanged();
}

void TemplateEditor::UnselectRows() {
    SelectRow(-1);
}

int TemplateEditor::UpdateScrollBar(int firstShown, int visibleRows) const {
    const int rows = static_cast<int>(entries_.size());
    visibleRows = std::max(visibleRows, 1);
    const int lastFirst = std::max(rows - visibleRows, 0);
    int first = std::clamp(firstShown, 0, lastFirst);
    if (selected_ >= 0) {
        if (selected_ < first) first = selected_;
        if (selected_ >= first + visibleRows) first = selected_ - visibleRows + 1;
    }
    return first;
}

std::string TemplateEditor::UpdateLabel() const {
    if (selected_ < 0) return {};
    return SizeText(entries_[static_cast<std::size_t>(selected_)]);
}

std::vector<std::string> TemplateEditor::AddColorList() {
    std::vector<std::string> names;
    for (const TextId& id : texts::kDepthNames)
        names.push_back(GetText(id));
    return names;
}

std::vector<std::string> TemplateEditor::AddCompressedList() {
    return {GetText(texts::CompressedNo), GetText(texts::CompressedYes)};
}

bool TemplateEditor::IsInteger(std::string_view text) {
    if (text.empty()) return false;
    std::size_t start = (text.front() == '-' || text.front() == '+') ? 1 : 0;
    if (start == text.size()) return false;
    return std::all_of(text.begin() + static_cast<std::ptrdiff_t>(start), text.end(),
                       [](char c) { return c >= '0' && c <= '9'; });
}

std::string TemplateEditor::DepthName(int bits) {
    int index = -1;
    if (bits == 1) index = 0;
    if (bits == 4) index = 1;
    if (bits == 8) index = 2;
    if (bits == 24) index = 3;
    if (bits == 32) index = 4;
    if (index < 0) return {};
    return GetText(texts::kDepthNames[static_cast<std::size_t>(index)]);
}

std::vector<TemplateRowText> TemplateEditor::Rows() const {
    std::vector<TemplateRowText> rows;
    for (const TemplateEntry& entry : entries_) {
        rows.push_back({SizeText(entry), DepthName(entry.bits),
                        GetText(entry.compressed ? texts::CompressedYes : texts::CompressedNo)});
    }
    return rows;
}

bool DeleteTemplate(const IconTemplate& source, MessageService& messages) {
    if (source.Locked()) {
        messages.Show(texts::TemplateLocked, MessageType::Exclamation);
        return false;
    }
    const std::string text = ReplacePlaceholder(GetText(texts::DeleteTemplate), "%f", source.name);
    if (messages.ShowMessage(texts::DeleteTemplate.key, text, texts::kProgramTitle,
                             MessageType::Question, false,
                             MessageButtons::YesNo) != MessageAnswer::Yes)
        return false;
    std::error_code error;
    return std::filesystem::remove(source.path, error) && !error;
}

}  // namespace iw
