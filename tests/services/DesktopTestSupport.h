#pragma once
// What the desktop services' tests share: small text files, a program runner that records
// its calls, and INI texts built at random.

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "services/desktop/ProgramRunner.h"
#include "support/TestSupport.h"

namespace iw::test {

inline std::string ReadText(const std::filesystem::path& file) {
    const auto bytes = ReadFileBytes(file);
    return {bytes.begin(), bytes.end()};
}

// Writes `text` as the whole file, making its folder when missing.
inline void WriteText(const std::filesystem::path& file, const std::string& text) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << text;
}

// Records each program run (its name, then its arguments) and answers `answer`.
struct RecordingRunner {
    std::vector<std::vector<std::string>> calls;
    platform::ProgramRun answer{true, 0};
    ProgramRunner Runner() {
        return [this](const std::string& program, const std::vector<std::string>& args) {
            calls.push_back({program});
            calls.back().insert(calls.back().end(), args.begin(), args.end());
            return answer;
        };
    }
};

// `count` texts of the INI family built at random (from `seed`) of `fragments` and of pieces
// that stress a line editor: stray brackets and equals signs, every kind of line end,
// blanks, NUL bytes.
inline std::vector<std::string> RandomIniTexts(unsigned seed,
                                               const std::vector<std::string>& fragments,
                                               int count = 2000) {
    static const std::vector<std::string> common = {
        "\r\n", "\n", "\r", "[", "]", "=", " ", "\t", "a", std::string(1, '\0'), "#", ";", "[x]"};
    std::mt19937 random(seed);
    std::vector<std::string> texts;
    for (int i = 0; i < count; ++i) {
        std::string text;
        for (int pieces = static_cast<int>(random() % 40); pieces > 0; --pieces) {
            const auto& from = random() % 2 == 0 ? fragments : common;
            text += from[random() % from.size()];
        }
        texts.push_back(std::move(text));
    }
    return texts;
}

}  // namespace iw::test
