#pragma once
// The file associations in the Windows registry. The program writes its file classes for
// the current user (HKEY_CURRENT_USER\Software\Classes) and checks them in the merged view
// (HKEY_CLASSES_ROOT), where a machine-wide class the user has not overridden shows too.
// The logic works on any IRegistry, so that it runs against a registry in memory as well.

#include <optional>
#include <string>

#include "platform/Registry.h"
#include "services/desktop/FileAssociations.h"

namespace iw {

class IRegistry {
  public:
    virtual ~IRegistry() = default;
    virtual bool CreateKey(platform::RegistryRoot root, const std::string& path) = 0;
    virtual bool SetDefaultValue(platform::RegistryRoot root, const std::string& path,
                                 const std::string& value) = 0;
    virtual std::optional<std::string> DefaultValue(platform::RegistryRoot root,
                                                    const std::string& path) = 0;
    // The shell's association-changed notification.
    virtual void NotifyAssociationsChanged() = 0;
};

// The registry of the system (and the shell's notification). Outside Windows every call fails.
class SystemRegistry final : public IRegistry {
  public:
    bool CreateKey(platform::RegistryRoot root, const std::string& path) override;
    bool SetDefaultValue(platform::RegistryRoot root, const std::string& path,
                         const std::string& value) override;
    std::optional<std::string> DefaultValue(platform::RegistryRoot root,
                                            const std::string& path) override;
    void NotifyAssociationsChanged() override;
};

class RegistryAssociations final : public IFileAssociations {
  public:
    // `programFolder`: the folder of iconwright.exe, as Windows writes it ("C:\Tools\Iconwright").
    RegistryAssociations(IRegistry& registry, std::string programFolder);

    // Under HKEY_CURRENT_USER, each key created and then its default value set:
    //   Software\Classes\.ico                               Quorvale.Iconwright.Icon
    //   Software\Classes\Quorvale.Iconwright.Icon           Icon
    //   ...\DefaultIcon                                     %1
    //   ...\Shell, ...\Shell\Open                           (created only)
    //   ...\Shell\Open\Command                              <folder>\iconwright.exe %1
    // then the shell is told that associations changed.
    bool Register(const FileType& type) override;
    // Reads the four default values in HKEY_CLASSES_ROOT: the extension's names the program
    // id, the program id's type name in capitals is the check name, "DefaultIcon" is "%1"
    // and the open command is ours. Names and paths compare without regard to case.
    bool IsDefault(const FileType& type) override;

    // "<folder>\iconwright.exe %1".
    std::string OpenCommand() const;

  private:
    IRegistry& registry_;
    std::string programFolder_;
};

}  // namespace iw
