#include "services/desktop/TemplateEditor.h"

#include <algorithm>

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

std::string SizeText(const TemplateEntry& entry) {
    return std::to_string(entry.Width()) + " x " + std::to_string(entry.Height());
}

}  // namespace

TemplateEditor::TemplateEditor(MessageService& messages, std::filesystem::path userFolder,
                               ITemplateEditorObserver* observer)
    : messages_(messages), userFolder_(std::move(userFolder)), observer_(observer) {}

void TemplateEditor::NewTemplate() {
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
    name_ = source.name;
    path_ = source.path;
    entries_ = source.entries;
    selected_ = entries_.empty() ? -1 : 0;
    modified_ = false;
    TemplateChanged();
    RowsChanged();
    return true;
}

bool TemplateEditor::SaveTemplates() {
    if (path_.empty()) return false;
    if (!WriteTemplateFile(path_, entries_)) return false;
    modified_ = false;
    TemplateChanged();
    return true;
}

bool TemplateEditor::SaveTemplatesAs(std::string_view name) {
    if (!ValidTemplateName(name) || userFolder_.empty()) return false;
    const std::filesystem::path file = userFolder_ / (std::string(name) + ".ini");
    if (!WriteTemplateFile(file, entries_)) return false;
    name_ = std::string(name);
    path_ = file.string();
    modified_ = false;
    TemplateChanged();
    return true;
}

bool TemplateEditor::AddItem(int width, int height, int bits, bool compressed) {
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
    if (selected_ < 0) return false;
    entries_.erase(entries_.begin() + selected_);
    if (selected_ >= static_cast<int>(entries_.size()))
        selected_ = static_cast<int>(entries_.size()) - 1;
    modified_ = true;
    RowsChanged();
    return true;
}

bool TemplateEditor::MoveUp() {
    if (selected_ <= 0) return false;
    std::swap(entries_[static_cast<std::size_t>(selected_)],
              entries_[static_cast<std::size_t>(selected_ - 1)]);
    --selected_;
    modified_ = true;
    RowsChanged();
    return true;
}

bool TemplateEditor::MoveDown() {
    if (selected_ < 0 || selected_ + 1 >= static_cast<int>(entries_.size())) return false;
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

}  // namespace iw
