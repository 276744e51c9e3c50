#include "services/core/OverwriteQuestion.h"

#include "services/core/TextCatalog.h"

namespace iw {

bool ConfirmOverwrite(MessageService& messages, const std::filesystem::path& file) {
    std::error_code ec;
    if (!std::filesystem::exists(file, ec)) return true;
    return messages.ShowMessage(texts::OverwriteConfirmation.key,
                                GetText(texts::OverwriteConfirmation),
                                GetText(texts::OverwriteConfirmationTitle), MessageType::Question,
                                true, MessageButtons::YesNo) == MessageAnswer::Yes;
}

}  // namespace iw
