// The associations of the desktop the program runs on.
#include "platform/Shell.h"
#include "services/desktop/FileAssociations.h"
#include "services/desktop/FreedesktopAssociations.h"
#include "services/desktop/RegistryAssociations.h"

namespace iw {
namespace {

// The registry backend with the system's registry it works on.
class WindowsAssociations final : public IFileAssociations {
  public:
    explicit WindowsAssociations(const std::filesystem::path& program)
        : associations_(registry_, Utf8(program.parent_path())) {}
    bool Register(const FileType& type) override { return associations_.Register(type); }
    bool IsDefault(const FileType& type) override { return associations_.IsDefault(type); }

  private:
    static std::string Utf8(const std::filesystem::path& path) {
        const std::u8string text = path.u8string();
        return std::string(text.begin(), text.end());
    }

    SystemRegistry registry_;
    RegistryAssociations associations_;
};

}  // namespace

std::unique_ptr<IFileAssociations> MakeSystemAssociations(const std::filesystem::path& program) {
    if (platform::CurrentDesktopShell() == platform::DesktopShell::Windows)
        return std::make_unique<WindowsAssociations>(program);
    return std::make_unique<FreedesktopAssociations>(XdgDirsFromEnvironment(), program);
}

}  // namespace iw
