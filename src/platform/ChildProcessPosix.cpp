#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

#include <cerrno>

#include "platform/ChildProcess.h"

extern char** environ;

namespace iw::platform {

ProgramRun RunProgram(const std::string& program, const std::vector<std::string>& args) {
    ProgramRun run;
    std::vector<char*> argv;
    argv.push_back(const_cast<char*>(program.c_str()));
    for (const std::string& arg : args)
        argv.push_back(const_cast<char*>(arg.c_str()));
    argv.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    if (posix_spawn_file_actions_init(&actions) != 0) return run;
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    const int error =
        posix_spawnp(&child, program.c_str(), &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0) return run;
    run.started = true;

    int status = 0;
    pid_t waited = 0;
    do {
        waited = waitpid(child, &status, 0);
    } while (waited < 0 && errno == EINTR);
    if (waited == child && WIFEXITED(status)) run.exitCode = WEXITSTATUS(status);
    return run;
}

}  // namespace iw::platform
