#include "services/desktop/RegistryAssociations.h"

#include "platform/Shell.h"
#include "services/desktop/TextCase.h"

namespace iw {

using platform::RegistryRoot;

bool SystemRegistry::CreateKey(RegistryRoot root, const std::string& path) {
    return platform::CreateRegistryKey(root, path);
}

bool SystemRegistry::SetDefaultValue(RegistryRoot root, const std::string& path,
                                     const std::string& value) {
    return platform::SetRegistryDefaultValue(root, path, value);
}

std::optional<std::string> SystemRegistry::DefaultValue(RegistryRoot root,
                                                        const std::string& path) {
    return platform::ReadRegistryDefaultValue(root, path);
}

void SystemRegistry::NotifyAssociationsChanged() {
    platform::NotifyAssociationsChanged();
}

RegistryAssociations::RegistryAssociations(IRegistry& registry, std::string programFolder)
    : registry_(registry), programFolder_(std::move(programFolder)) {
    // "C:\" joined with "\iconwright.exe" would double the separator.
    while (!programFolder_.empty() &&
           (programFolder_.back() == '\\' || programFolder_.back() == '/')) {
        programFolder_.pop_back();
    }
}

std::string RegistryAssociations::OpenCommand() const {
    return programFolder_ + "\\iconwright.exe" + " %1";
}

bool RegistryAssociations::Register(const FileType& type) {
    const std::string classes = "Software\\Classes\\";
    const std::string programKey = classes + std::string(type.programId);
    struct Entry {
        std::string key;
        std::optional<std::string> value;
    };
    const Entry entries[] = {
        {classes + std::string(type.extensionKey), std::string(type.programId)},
        {programKey, std::string(type.typeName)},
        {programKey + "\\DefaultIcon", std::string("%1")},
        {programKey + "\\Shell", std::nullopt},
        {programKey + "\\Shell\\Open", std::nullopt},
        {programKey + "\\Shell\\Open\\Command", OpenCommand()},
    };
    bool ok = true;
    for (const Entry& entry : entries) {
        if (!registry_.CreateKey(RegistryRoot::CurrentUser, entry.key)) {
            ok = false;
            continue;
        }
        if (entry.value &&
            !registry_.SetDefaultValue(RegistryRoot::CurrentUser, entry.key, *entry.value)) {
            ok = false;
        }
    }
    registry_.NotifyAssociationsChanged();
    return ok;
}

bool RegistryAssociations::IsDefault(const FileType& type) {
    const std::string programKey(type.programId);
    const auto read = [&](const std::string& key) {
        return registry_.DefaultValue(RegistryRoot::ClassesRoot, key).value_or("");
    };
    return EqualsNoCase(read(std::string(type.extensionKey)), type.programId) &&
           UpperAscii(read(programKey)) == type.checkName &&
           read(programKey + "\\DefaultIcon") == "%1" &&
           EqualsNoCase(read(programKey + "\\Shell\\Open\\Command"), OpenCommand());
}

}  // namespace iw
