#pragma once
// What every iconwright-cli command shares: exit codes, the message presenter that prints
// to stderr, and a context for the core's long operations.

#include <string>
#include <string_view>
#include <vector>

#include "services/core/CoreContext.h"
#include "services/core/XmlStore.h"

namespace iw::cli {

inline constexpr int kExitOk = 0;
inline constexpr int kExitFailed = 1;  // a file could not be read or written
inline constexpr int kExitUsage = 2;

// Prints every message to stderr as "Quorvale Iconwright: <text>" and answers questions
// with their default button, since a script cannot answer.
class StderrPresenter final : public IMessagePresenter {
  public:
    MessageBoxResult Present(const MessageBoxRequest& request) override;
};

// The message routine over an in-memory message store (the CLI never persists the
// suppression flags of the desktop program), with no status output and no log.
class CliContext {
  public:
    CliContext() : messages_(store_, presenter_), context_{messages_, progress_, log_} {}
    CoreContext& Core() { return context_; }

  private:
    XmlStore store_;
    StderrPresenter presenter_;
    MessageService messages_;
    NullProgress progress_;
    NullLog log_;
    CoreContext context_;
};

using Args = std::vector<std::string>;

// Prints "iconwright-cli: <what>" and the command's usage line to stderr; returns kExitUsage.
int UsageError(std::string_view what, std::string_view usage);

bool IsHelpFlag(std::string_view arg);

// A JSON string literal of `text` (quoted, escaped).
std::string JsonString(std::string_view text);

}  // namespace iw::cli
