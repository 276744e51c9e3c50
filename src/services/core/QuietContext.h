#pragma once
// A core context that tells the user nothing: for reading a file only to look at it (a
// picture in a list, a check before using it), where any failure is told later or never.

#include "services/core/CoreContext.h"
#include "services/core/MessageService.h"
#include "services/core/UserInterface.h"
#include "services/core/XmlStore.h"

namespace iw {

class QuietContext {
  public:
    QuietContext() = default;
    QuietContext(const QuietContext&) = delete;
    QuietContext& operator=(const QuietContext&) = delete;

    CoreContext& Context() { return context_; }

  private:
    class SilentPresenter final : public IMessagePresenter {
      public:
        MessageBoxResult Present(const MessageBoxRequest&) override { return {}; }
    };

    XmlStore store_;
    SilentPresenter presenter_;
    MessageService messages_{store_, presenter_};
    NullProgress progress_;
    NullLog log_;
    CoreContext context_{messages_, progress_, log_};
};

}  // namespace iw
