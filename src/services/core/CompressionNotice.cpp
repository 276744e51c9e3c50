#include "services/core/CompressionNotice.h"

#include "services/core/TextCatalog.h"

namespace iw {

bool ReportMissingCompressionLibrary(MessageService& messages, bool zlibLoaded) {
    if (zlibLoaded) return false;
    const std::string text = GetText(texts::ZlibMissing) + "\n\n" + GetText(texts::ZlibReinstall);
    messages.ShowMessage(texts::ZlibMissing.key, text, texts::kProgramTitle, MessageType::Critical,
                         false);
    return true;
}

}  // namespace iw
