#pragma once
// The program's one message routine. Before showing a message it reads the flag
// "Messages\<key>" from the message store: when that flag is True and the call does not
// force the message, nothing is shown.

#include <string_view>

#include "services/core/Texts.h"
#include "services/core/UserInterface.h"
#include "services/core/XmlStore.h"

namespace iw {

// The icon each type shows, as its index among user32.dll's icons.
int MessageIconIndex(MessageType type);

class MessageService {
  public:
    MessageService(XmlStore& messageStore, IMessagePresenter& presenter)
        : store_(messageStore), presenter_(presenter) {}

    // A suppressed message answers as if its default button were pressed: OK, or Yes for
    // questions.
    MessageAnswer ShowMessage(std::string_view key, std::string_view text, std::string_view title,
                              MessageType type, bool force,
                              MessageButtons buttons = MessageButtons::Ok);

    // The text is looked up by its key and section; the title is the program's.
    MessageAnswer Show(const TextId& id, MessageType type,
                       MessageButtons buttons = MessageButtons::Ok, bool force = false);

    bool IsSuppressed(std::string_view key) const;
    // Empties the message store so that every suppressed message shows again.
    void ClearSuppressions() { store_.Clear(); }

    XmlStore& Store() { return store_; }

  private:
    XmlStore& store_;
    IMessagePresenter& presenter_;
};

}  // namespace iw
