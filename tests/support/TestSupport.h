#pragma once
// Shared helpers for the test suites: recorders for the core's user interfaces, paths to
// test data and a temporary folder that cleans itself up.

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "services/core/CoreContext.h"
#include "services/core/MessageService.h"
#include "services/core/UserInterface.h"
#include "services/core/XmlStore.h"

namespace iw::test {

// Records every message box and answers with a preset answer.
class RecordingPresenter : public IMessagePresenter {
  public:
    MessageBoxResult Present(const MessageBoxRequest& request) override {
        shown.push_back(request);
        return {answer, suppressNext};
    }
    // The keys of the messages shown, in order.
    std::vector<std::string> Keys() const {
        std::vector<std::string> keys;
        for (const MessageBoxRequest& request : shown)
            keys.push_back(request.key);
        return keys;
    }
    std::vector<MessageBoxRequest> shown;
    MessageAnswer answer = MessageAnswer::Ok;
    bool suppressNext = false;
};

class RecordingProgress : public IProgressSink {
  public:
    void SetStatus(std::string_view text) override { statuses.emplace_back(text); }
    void SetProgress(int done, int total) override { progress.emplace_back(done, total); }
    void Yield() override { ++yields; }
    std::vector<std::string> statuses;
    std::vector<std::pair<int, int>> progress;
    int yields = 0;
};

class RecordingLog : public ILogSink {
  public:
    void AddLogEntry(std::string_view tag) override { entries.emplace_back(tag); }
    std::vector<std::string> entries;
};

// A message store, a recording presenter and the service over them, ready to pass on.
struct MessageFixture {
    XmlStore store;
    RecordingPresenter presenter;
    MessageService service{store, presenter};
};

// tests/data/<relative> in the checkout. Data that is missing is a fault of the checkout,
// never a reason to skip: a path that does not exist throws, which fails the test.
std::filesystem::path TestDataPath(const std::string& relative);

std::vector<std::uint8_t> ReadFileBytes(const std::filesystem::path& file);
void WriteFileBytes(const std::filesystem::path& file, const std::vector<std::uint8_t>& bytes);

// A fresh folder under the system's temporary folder, removed with everything in it.
class TempDir {
  public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;
    const std::filesystem::path& Path() const { return path_; }
    std::filesystem::path operator/(const std::string& name) const { return path_ / name; }

  private:
    std::filesystem::path path_;
};

// The core's context over recorders, with a scratch folder: what readers, writers and the
// picture commands are given in the tests.
struct CoreFixture : MessageFixture {
    RecordingProgress progress;
    RecordingLog log;
    CoreContext context{service, progress, log};
    TempDir dir;
};

}  // namespace iw::test
