#include "CliSupport.h"

#include <cstdio>
#include <iostream>

namespace iw::cli {

MessageBoxResult StderrPresenter::Present(const MessageBoxRequest& request) {
    std::cerr << request.title << ": " << request.text << "\n";
    MessageBoxResult result;
    switch (request.buttons) {
        case MessageButtons::YesNo:
        case MessageButtons::YesNoCancel:
            result.answer = MessageAnswer::Yes;
            break;
        default:
            result.answer = MessageAnswer::Ok;
            break;
    }
    return result;
}

int UsageError(std::string_view what, std::string_view usage) {
    std::cerr << "iconwright-cli: " << what << "\nusage: " << usage << "\n";
    return kExitUsage;
}

bool IsHelpFlag(std::string_view arg) {
    return arg == "--help" || arg == "-h";
}

std::string JsonString(std::string_view text) {
    std::string out = "\"";
    for (unsigned char c : text) {
        switch (c) {
            case '"':
                out += "\\\"";
                break;
            case '\\':
                out += "\\\\";
                break;
            case '\n':
                out += "\\n";
                break;
            case '\r':
                out += "\\r";
                break;
            case '\t':
                out += "\\t";
                break;
            default:
                if (c < 0x20) {
                    char buffer[8];
                    std::snprintf(buffer, sizeof buffer, "\\u%04x", c);
                    out += buffer;
                } else {
                    out += static_cast<char>(c);
                }
        }
    }
    out += '"';
    return out;
}

}  // namespace iw::cli
