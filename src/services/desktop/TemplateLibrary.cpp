#include "services/desktop/TemplateLibrary.h"

#include <algorithm>
#include <cctype>

#include "services/desktop/DesktopTexts.h"
#include "services/desktop/TemplateFile.h"

namespace iw {
namespace {

bool HasIniExtension(const std::filesystem::path& file) {
    std::string ext = file.extension().string();
    std::transform(ext.begin(), ext.end(), ext.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return ext == ".ini";
}

std::string Lowered(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

}  // namespace

void TemplateLibrary::LoadAll(const std::filesystem::path& programFolder,
                              const std::filesystem::path& userFolder, MessageService& messages) {
    templates_.clear();
    std::error_code ec;
    if (programFolder.empty() || !std::filesystem::is_directory(programFolder, ec)) {
        messages.Show(texts::TemplatesFolderMissing, MessageType::Critical);
    } else {
        LoadFolder(programFolder, true);
    }
    if (!userFolder.empty()) LoadFolder(userFolder, false);
}

void TemplateLibrary::LoadFolder(const std::filesystem::path& folder, bool locked) {
    std::error_code ec;
    std::vector<std::filesystem::path> files;
    for (std::filesystem::directory_iterator it(folder, ec), end; !ec && it != end;
         it.increment(ec)) {
        std::error_code typeError;
        if (!it->is_regular_file(typeError) || !HasIniExtension(it->path())) continue;
        files.push_back(it->path());
    }
    std::sort(files.begin(), files.end(), [](const auto& a, const auto& b) {
        return Lowered(a.filename().string()) < Lowered(b.filename().string());
    });
    if (files.size() > kMaxPerFolder) files.resize(kMaxPerFolder);
    for (const auto& file : files) {
        auto entries = ReadTemplateFile(file);
        if (!entries) continue;
        IconTemplate loaded;
        loaded.name = TemplateNameOf(file);
        loaded.path = file.string();
        if (locked) loaded.lock = std::string(kLockedMark);
        loaded.entries = std::move(*entries);
        templates_.push_back(std::move(loaded));
    }
}

const IconTemplate* TemplateLibrary::Find(std::string_view name) const {
    for (const IconTemplate& t : templates_) {
        if (t.name == name) return &t;
    }
    return nullptr;
}

}  // namespace iw
