#pragma once
// How the desktop services run the desktop's own tools (gio, update-desktop-database):
// the platform's RunProgram, or a stand-in that records the calls.

#include <functional>
#include <string>
#include <vector>

#include "platform/ChildProcess.h"

namespace iw {

using ProgramRunner = std::function<platform::ProgramRun(const std::string& program,
                                                         const std::vector<std::string>& args)>;

inline ProgramRunner SystemProgramRunner() {
    return [](const std::string& program, const std::vector<std::string>& args) {
        return platform::RunProgram(program, args);
    };
}

}  // namespace iw
