// There is no registry outside Windows: nothing is created, set or found.
#include "platform/Registry.h"

namespace iw::platform {

bool CreateRegistryKey(RegistryRoot, const std::string&) {
    return false;
}

bool SetRegistryDefaultValue(RegistryRoot, const std::string&, const std::string&) {
    return false;
}

std::optional<std::string> ReadRegistryDefaultValue(RegistryRoot, const std::string&) {
    return std::nullopt;
}

}  // namespace iw::platform
