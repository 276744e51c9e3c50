#pragma once
// The small interfaces through which the core reaches the user. The GUI implements them
// with message boxes, the status bar and the event loop; the CLI prints to stderr; tests
// record what they are given. The core never waits on a window of its own.

#include <string>
#include <string_view>

namespace iw {

// The message routine's type argument. The number chooses the box's icon, which the
// Windows build takes from user32.dll by index (see MessageIconIndex).
enum class MessageType : int {
    Exclamation = 0,
    Critical = 1,
    Information = 2,
    Question = 3,
};

enum class MessageButtons { Ok, OkCancel, YesNo, YesNoCancel };

enum class MessageAnswer { Ok, Cancel, Yes, No };

struct MessageBoxRequest {
    std::string key;    // the message's key in the "Messages" section and its suppression flag
    std::string text;   // final text, placeholders already replaced
    std::string title;  // the program passes "Quorvale Iconwright"
    MessageType type = MessageType::Exclamation;
    int iconIndex = 1;  // icon index in user32.dll for the type
    MessageButtons buttons = MessageButtons::Ok;
    // The window may offer "Don't show this message again" (see MessageSuppression.h).
    bool suppressible = false;
};

struct MessageBoxResult {
    MessageAnswer answer = MessageAnswer::Ok;
    bool suppressInFuture = false;  // the user ticked "do not show this again" (suppressible only)
};

class IMessagePresenter {
  public:
    virtual ~IMessagePresenter() = default;
    virtual MessageBoxResult Present(const MessageBoxRequest& request) = 0;
};

// Status bar text, a progress bar and a chance for the window to repaint.
class IProgressSink {
  public:
    virtual ~IProgressSink() = default;
    virtual void SetStatus(std::string_view text) = 0;
    virtual void SetProgress(int done, int total) = 0;
    // Lets the window process its events between images or columns of long work.
    virtual void Yield() = 0;
};

// The log list shown with "/log": progress tags added by the writers.
class ILogSink {
  public:
    virtual ~ILogSink() = default;
    virtual void AddLogEntry(std::string_view tag) = 0;
};

// Do-nothing implementations for callers that have nowhere to report.
class NullProgress final : public IProgressSink {
  public:
    void SetStatus(std::string_view) override {}
    void SetProgress(int, int) override {}
    void Yield() override {}
};

class NullLog final : public ILogSink {
  public:
    void AddLogEntry(std::string_view) override {}
};

}  // namespace iw
