#include "services/core/XmlStore.h"

#include <pugixml.hpp>

#include <fstream>
#include <sstream>
#include <vector>

#include "services/core/AtomicFile.h"
#include "services/core/ParseInteger.h"

namespace iw {
namespace {

constexpr const char* kRootName = "XML";

std::vector<std::string_view> SplitPath(std::string_view path) {
    while (!path.empty() && path.front() == '\\')
        path.remove_prefix(1);
    while (!path.empty() && path.back() == '\\')
        path.remove_suffix(1);
    std::vector<std::string_view> steps;
    while (!path.empty()) {
        std::size_t cut = path.find('\\');
        std::string_view step = path.substr(0, cut);
        steps.push_back(step);
        if (cut == std::string_view::npos) break;
        path.remove_prefix(cut + 1);
    }
    return steps;
}

// XML element names: a letter or "_" first, then letters, digits, "_", "-" and ".".
bool IsElementName(std::string_view name) {
    if (name.empty()) return false;
    auto letter = [](char c) {
        return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
    };
    if (!letter(name[0])) return false;
    for (char c : name) {
        if (!letter(c) && !(c >= '0' && c <= '9') && c != '-' && c != '.') return false;
    }
    return true;
}

void AppendEscaped(std::string& out, std::string_view text) {
    for (char c : text) {
        switch (c) {
            case '&':
                out += "&amp;";
                break;
            case '<':
                out += "&lt;";
                break;
            case '>':
                out += "&gt;";
                break;
            case '"':
                out += "&quot;";
                break;
            case '\'':
                out += "&apos;";
                break;
            default:
                out += c;
        }
    }
}

void AppendElement(std::string& out, const pugi::xml_node& node) {
    out += '<';
    out += node.name();
    out += '>';
    bool hasChildElements = false;
    for (pugi::xml_node child : node.children()) {
        if (child.type() == pugi::node_pcdata || child.type() == pugi::node_cdata) {
            AppendEscaped(out, child.value());
        } else if (child.type() == pugi::node_element) {
            out += "\r\n";
            AppendElement(out, child);
            hasChildElements = true;
        }
    }
    if (hasChildElements) out += "\r\n";
    out += "</";
    out += node.name();
    out += '>';
}

pugi::xml_node Root(pugi::xml_document& doc) {
    pugi::xml_node root = doc.document_element();
    if (!root) root = doc.append_child(kRootName);
    return root;
}

}  // namespace

bool ParseStoreBool(std::string_view text, bool fallback) {
    if (text == "True" || text == "true" || text == "TRUE") return true;
    if (text == "False" || text == "false" || text == "FALSE") return false;
    if (const auto value = ParseInteger<long long>(text)) return *value != 0;
    return fallback;
}

XmlStore::XmlStore() : doc_(std::make_unique<pugi::xml_document>()) {
    Clear();
}
XmlStore::~XmlStore() = default;

void XmlStore::Clear() {
    doc_->reset();
    doc_->append_child(kRootName);
}

void XmlStore::LoadFromString(std::string_view xml) {
    pugi::xml_parse_result ok = doc_->load_buffer(xml.data(), xml.size(), pugi::parse_default);
    if (!ok || !doc_->document_element()) Clear();
}

bool XmlStore::Load(const std::filesystem::path& file) {
    path_ = file;
    Clear();
    std::error_code ec;
    if (!std::filesystem::exists(file, ec)) return true;
    std::ifstream in(file, std::ios::binary);
    if (!in) return false;
    std::ostringstream text;
    text << in.rdbuf();
    std::string content = text.str();
    pugi::xml_parse_result ok =
        doc_->load_buffer(content.data(), content.size(), pugi::parse_default);
    if (!ok || !doc_->document_element()) {
        Clear();
        return false;
    }
    return true;
}

std::string XmlStore::ToString() const {
    std::string out;
    pugi::xml_node root = doc_->document_element();
    if (!root) return "<XML></XML>";
    AppendElement(out, root);
    return out;
}

bool XmlStore::Save() const {
    if (path_.empty()) return false;
    std::string text = ToString();
    return WriteFileAtomically(path_, std::as_bytes(std::span(text.data(), text.size())));
}

std::string XmlStore::GetValue(std::string_view path, std::string_view defaultValue) const {
    std::vector<std::string_view> steps = SplitPath(path);
    pugi::xml_node node = doc_->document_element();
    if (steps.empty() || !node) return std::string(defaultValue);
    for (std::string_view step : steps) {
        node = node.child(std::string(step).c_str());
        if (!node) return std::string(defaultValue);
    }
    return node.text().get();
}

void XmlStore::SetValue(std::string_view path, std::string_view value) {
    std::vector<std::string_view> steps = SplitPath(path);
    if (steps.empty()) return;
    for (std::string_view step : steps) {
        if (!IsElementName(step)) return;
    }
    pugi::xml_node node = Root(*doc_);
    for (std::string_view step : steps) {
        std::string name(step);
        pugi::xml_node next = node.child(name.c_str());
        if (!next) next = node.append_child(name.c_str());
        node = next;
    }
    node.text().set(std::string(value).c_str());
}

bool XmlStore::GetBool(std::string_view path, bool defaultValue) const {
    return ParseStoreBool(GetValue(path, defaultValue ? "True" : "False"), defaultValue);
}

void XmlStore::SetBool(std::string_view path, bool value) {
    SetValue(path, value ? "True" : "False");
}

}  // namespace iw
