#include "services/core/MessageService.h"

#include <string>

#include "services/core/MessageSuppression.h"
#include "services/core/TextCatalog.h"

namespace iw {

int MessageIconIndex(MessageType type) {
    switch (type) {
        case MessageType::Exclamation:
            return 1;
        case MessageType::Critical:
            return 3;
        case MessageType::Information:
            return 4;
        case MessageType::Question:
            return 2;
    }
    return 1;
}

namespace {

std::string FlagPath(std::string_view key) {
    return "Messages\\" + std::string(key);
}

MessageAnswer DefaultAnswer(MessageButtons buttons) {
    switch (buttons) {
        case MessageButtons::YesNo:
        case MessageButtons::YesNoCancel:
            return MessageAnswer::Yes;
        case MessageButtons::Ok:
        case MessageButtons::OkCancel:
            return MessageAnswer::Ok;
    }
    return MessageAnswer::Ok;
}

}  // namespace

bool MessageService::IsSuppressed(std::string_view key) const {
    return store_.GetBool(FlagPath(key), false);
}

MessageAnswer MessageService::ShowMessage(std::string_view key, std::string_view text,
                                          std::string_view title, MessageType type, bool force,
                                          MessageButtons buttons) {
    if (!force && IsSuppressed(key)) return DefaultAnswer(buttons);
    MessageBoxRequest request;
    request.key = std::string(key);
    request.text = std::string(text);
    request.title = std::string(title);
    request.type = type;
    request.iconIndex = MessageIconIndex(type);
    request.buttons = buttons;
    request.suppressible = IsSuppressibleMessage(key);
    MessageBoxResult result = presenter_.Present(request);
    if (result.suppressInFuture && request.suppressible) store_.SetBool(FlagPath(key), true);
    return result.answer;
}

MessageAnswer MessageService::Show(const TextId& id, MessageType type, MessageButtons buttons,
                                   bool force) {
    return ShowMessage(id.key, GetText(id), texts::kProgramTitle, type, force, buttons);
}

}  // namespace iw
