// The whole program's start-up to its first painted frame, with a 9-size icon (16 to 256
// px, the 256 px image PNG-compressed) on the command line: each run starts iconwright on
// Qt's offscreen platform with ICONWRIGHT_QUIT_AFTER_FIRST_PAINT=1 and waits for it to end.
// The same without a file, for the part that is the program starting.
#include <benchmark/benchmark.h>
#include <spawn.h>
#include <sys/wait.h>

#include <chrono>
#include <string>
#include <vector>

#include "BenchIcons.h"

extern char** environ;

namespace {

// Runs the program with `arguments` and the testing environment; true when it ended well.
bool RunProgram(const std::vector<std::string>& arguments, const std::string& dataHome) {
    std::vector<std::string> environment = {"QT_QPA_PLATFORM=offscreen",
                                            "ICONWRIGHT_QUIT_AFTER_FIRST_PAINT=1",
                                            "XDG_DATA_HOME=" + dataHome};
    for (char** e = environ; *e; ++e) {
        const std::string entry(*e);
        if (entry.rfind("QT_QPA_PLATFORM=", 0) != 0 && entry.rfind("XDG_DATA_HOME=", 0) != 0)
            environment.push_back(entry);
    }
    std::vector<char*> envp;
    for (std::string& e : environment)
        envp.push_back(e.data());
    envp.push_back(nullptr);
    std::vector<std::string> args = {IW_PROGRAM};
    args.insert(args.end(), arguments.begin(), arguments.end());
    std::vector<char*> argv;
    for (std::string& a : args)
        argv.push_back(a.data());
    argv.push_back(nullptr);
    pid_t pid = 0;
    if (posix_spawn(&pid, IW_PROGRAM, nullptr, nullptr, argv.data(), envp.data()) != 0)
        return false;
    int status = 0;
    waitpid(pid, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

void Startup(benchmark::State& state, bool withIcon) {
    iw::test::TempDir temp;
    std::vector<std::string> arguments;
    if (withIcon) arguments.push_back(iw::bench::WriteNineSizeIcon(temp));
    RunProgram(arguments, temp.Path().string());  // the settings folder, made once
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        if (!RunProgram(arguments, temp.Path().string())) state.SkipWithError("the program failed");
        state.SetIterationTime(
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
}

void StartupToFirstFrameNineSizeIcon(benchmark::State& state) {
    Startup(state, true);
}
BENCHMARK(StartupToFirstFrameNineSizeIcon)
    ->UseManualTime()
    ->Iterations(15)
    ->Unit(benchmark::kMillisecond);

void StartupToFirstFrameNoFile(benchmark::State& state) {
    Startup(state, false);
}
BENCHMARK(StartupToFirstFrameNoFile)
    ->UseManualTime()
    ->Iterations(15)
    ->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
