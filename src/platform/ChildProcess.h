#pragma once
// Running another program and waiting for it, without a shell: the arguments reach it as
// they are given, whatever characters they hold. Its output is discarded.

#include <string>
#include <vector>

namespace iw::platform {

struct ProgramRun {
    bool started = false;  // false: the program was not found or could not be started
    int exitCode = -1;     // its exit status once it ended (-1 when it did not end normally)
    bool Succeeded() const { return started && exitCode == 0; }
};

// Runs `program` (a name looked up on the PATH, or a path) with `args` and waits for it.
ProgramRun RunProgram(const std::string& program, const std::vector<std::string>& args);

}  // namespace iw::platform
