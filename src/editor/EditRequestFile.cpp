#include "editor/EditRequestFile.h"

#include <filesystem>
#include <memory>

#include "services/core/XmlStore.h"

namespace iw {
namespace {

constexpr std::string_view kProgram = "Request\\Program";
constexpr std::string_view kFile = "Request\\File";
constexpr std::string_view kResult = "Request\\Result";
constexpr std::string_view kSavedPath = "Request\\SavedPath";

// The request file's store, or nullptr when the file is missing or not XML.
std::unique_ptr<XmlStore> Load(const std::string& requestFile) {
    std::error_code ec;
    if (!std::filesystem::is_regular_file(requestFile, ec)) return nullptr;
    auto store = std::make_unique<XmlStore>();
    if (!store->Load(requestFile)) return nullptr;
    return store;
}

}  // namespace

std::optional<EditRequestFile> EditRequestFile::Read(const std::string& requestFile) {
    const auto store = Load(requestFile);
    if (!store) return std::nullopt;
    EditRequestFile request;
    request.path_ = requestFile;
    request.program_ = store->GetValue(kProgram, "");
    request.target_ = store->GetValue(kFile, "");
    if (request.target_.empty()) return std::nullopt;
    return request;
}

bool EditRequestFile::WriteAnswer() const {
    const auto store = Load(path_);
    if (!store) return false;
    store->SetValue(kResult, saved_ ? kSaved : kCancelled);
    store->SetValue(kSavedPath, saved_ ? target_ : "");
    return store->Save();
}

bool SamePath(const std::string& a, const std::string& b) {
    return std::filesystem::path(a).lexically_normal() ==
           std::filesystem::path(b).lexically_normal();
}

}  // namespace iw
