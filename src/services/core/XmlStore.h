#pragma once
// The settings store ("settings.xml") and the message store ("messages.xml"): a small XML
// text of nested elements, addressed by paths such as "Settings\Width". Values are text;
// booleans are "True"/"False" (the numeric texts "-1"/"0" read as the same).

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace pugi {
class xml_document;
}

namespace iw {

class XmlStore {
  public:
    XmlStore();
    ~XmlStore();
    XmlStore(const XmlStore&) = delete;
    XmlStore& operator=(const XmlStore&) = delete;

    // Reads the file whole. A missing file gives the empty store "<XML></XML>"; a file that
    // is not well-formed XML is taken as empty too (and is rewritten whole on the next save).
    // Returns false only when a file was there but could not be used.
    bool Load(const std::filesystem::path& file);
    // Writes the store to the path it was loaded from (or was given). A store without a
    // path is not written. The file is replaced only once the new text is fully on disk.
    bool Save() const;

    void LoadFromString(std::string_view xml);
    // The store laid out with "\r\n" between elements.
    std::string ToString() const;

    void SetFilePath(std::filesystem::path file) { path_ = std::move(file); }

    // The text at `path`, or `defaultValue` when any step of the path is missing.
    std::string GetValue(std::string_view path, std::string_view defaultValue) const;
    // Creates the missing elements. A path that is empty or names something that cannot be
    // an XML element is ignored.
    void SetValue(std::string_view path, std::string_view value);

    bool GetBool(std::string_view path, bool defaultValue) const;
    void SetBool(std::string_view path, bool value);

    // Back to "<XML></XML>" (the path is kept, so the emptied store is written on save).
    void Clear();

  private:
    std::unique_ptr<pugi::xml_document> doc_;
    std::filesystem::path path_;
};

// "True"/"False" and numeric texts ("-1" and any other non-zero number are true, "0" false);
// any other text gives `fallback`.
bool ParseStoreBool(std::string_view text, bool fallback);

}  // namespace iw
