#pragma once
// An edit request from another program (docs/edit-requests.md): a small XML file, in the
// settings store's form, naming the program ("Request\Program") and the icon file it wants
// edited ("Request\File"). When the request ends the editor writes its answer into the
// same file: "Request\Result" is "Saved" when the icon file was written during the request,
// else "Cancelled", and "Request\SavedPath" the path written ("" when cancelled).

#include <optional>
#include <string>

namespace iw {

class EditRequestFile {
  public:
    static constexpr std::string_view kSaved = "Saved";
    static constexpr std::string_view kCancelled = "Cancelled";

    // The request in `requestFile`, or nothing when that is no request: missing, not XML,
    // or naming no icon file.
    static std::optional<EditRequestFile> Read(const std::string& requestFile);

    const std::string& Path() const { return path_; }
    const std::string& Program() const { return program_; }
    // The icon file to edit, where Save writes.
    const std::string& Target() const { return target_; }
    bool Saved() const { return saved_; }
    void NoteSaved() { saved_ = true; }

    // Writes the answer into the request file, keeping what the requester wrote there; the
    // file is replaced whole only once the new text is on disk. Nothing is written when the
    // file has gone or is no longer readable. Returns whether the answer was written.
    bool WriteAnswer() const;

  private:
    std::string path_;
    std::string program_;
    std::string target_;
    bool saved_ = false;
};

// Whether two paths name the same file, as far as their text tells.
bool SamePath(const std::string& a, const std::string& b);

}  // namespace iw
