#include <windows.h>

#include "platform/ChildProcess.h"
#include "platform/WideTextWindows.h"

namespace iw::platform {
namespace {

// One argument quoted the way the C runtime's argument parser reads it back: inside quotes
// a run of backslashes is doubled when a quote or the closing quote follows it.
void AppendQuoted(std::wstring& line, const std::wstring& arg) {
    if (!arg.empty() && arg.find_first_of(L" \t\n\v\"") == std::wstring::npos) {
        line += arg;
        return;
    }
    line += L'"';
    std::size_t backslashes = 0;
    for (wchar_t c : arg) {
        if (c == L'\\') {
            ++backslashes;
            continue;
        }
        line.append(c == L'"' ? backslashes * 2 + 1 : backslashes, L'\\');
        backslashes = 0;
        line += c;
    }
    line.append(backslashes * 2, L'\\');
    line += L'"';
}

}  // namespace

ProgramRun RunProgram(const std::string& program, const std::vector<std::string>& args) {
    ProgramRun run;
    std::wstring line;
    AppendQuoted(line, ToWide(program));
    for (const std::string& arg : args) {
        line += L' ';
        AppendQuoted(line, ToWide(arg));
    }
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr,
                        nullptr, &startup, &process)) {
        return run;
    }
    run.started = true;
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = 0;
    if (GetExitCodeProcess(process.hProcess, &code)) run.exitCode = static_cast<int>(code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return run;
}

}  // namespace iw::platform
