#include "CliInput.h"

#include <fstream>
#include <iostream>

#include "app/shared/QtPictureDecoder.h"
#include "codec/png/PngCodec.h"
#include "document/io/AnimatedCursor.h"
#include "document/io/IconFileReader.h"
#include "document/io/IconFileWriter.h"
#include "document/io/PictureImport.h"
#include "document/io/PictureLoading.h"
#include "imaging/Resampler.h"
#include "services/core/AtomicFile.h"
#include "services/core/ParseInteger.h"

namespace iw::cli {
namespace {

bool ParseInt(const std::string& text, int low, int high, int& value) {
    const std::optional<int> parsed = ParseInteger<int>(text);
    if (!parsed || *parsed < low || *parsed > high) return false;
    value = *parsed;
    return true;
}

std::string Lower(std::string text) {
    for (char& c : text)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

}  // namespace

bool WritePngFile(const std::string& file, const std::vector<std::uint8_t>& stream) {
    if (stream.empty() || !WriteFileAtomically(file, std::as_bytes(std::span(stream)))) {
        std::cerr << "iconwright-cli: " << file << ": could not be written\n";
        return false;
    }
    return true;
}

bool WritePicturePng(const std::string& file, const RgbaBuffer& picture) {
    std::vector<std::uint8_t> stream;
    if (!EncodePngStream(picture.Width(), picture.Height(), picture.Bytes(), stream)) {
        std::cerr << "iconwright-cli: " << file << ": could not be encoded\n";
        return false;
    }
    return WritePngFile(file, stream);
}

PictureFormat PictureFormatOfFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::vector<std::uint8_t> head(64);
    in.read(reinterpret_cast<char*>(head.data()), static_cast<std::streamsize>(head.size()));
    head.resize(static_cast<std::size_t>(in.gcount()));
    return DetectPictureFormat(head);
}

bool IsPictureFile(const std::string& path) {
    const PictureFormat format = PictureFormatOfFile(path);
    return format != PictureFormat::Unknown && format != PictureFormat::Ico;
}

bool ReportUnreadableInput(const std::string& path, CliContext& context) {
    IconSet probe;
    if (ReadIconFile(path, probe, context.Core())) {
        std::cerr << "iconwright-cli: " << path << ": an icon file, not a picture\n";
    }
    return false;
}

bool LoadPictureInput(const std::string& path, RgbaBuffer& picture, CliContext& context) {
    app::QtPictureDecoder decoder;
    PictureLoadOptions options;
    options.decoder = &decoder;
    options.reportFailure = false;
    switch (LoadPictureFile(path, options, context.Core().messages, picture)) {
        case PictureLoadStatus::Ok:
            return true;
        case PictureLoadStatus::Declined:
            return false;
        default:
            break;
    }
    // A Photoshop file has been reported by its reader; anything else is worded as the
    // icon reader words it, so that every command says the same of one file.
    if (PictureFormatOfFile(path) == PictureFormat::Psd) return false;
    return ReportUnreadableInput(path, context);
}

bool LoadInputSet(const std::string& path, IconSet& set, CliContext& context) {
    if (!IsPictureFile(path)) return ReadIconFile(path, set, context.Core());
    RgbaBuffer picture;
    if (!LoadPictureInput(path, picture, context)) return false;
    if (picture.Width() > IconSet::kMaxSide || picture.Height() > IconSet::kMaxSide) {
        const PixelSize size =
            FitSize(picture.Width(), picture.Height(), IconSet::kMaxSide, IconSet::kMaxSide, false);
        std::cerr << "iconwright-cli: " << path << ": the picture is " << picture.Width() << " x "
                  << picture.Height() << "; resampled to " << size.width << " x " << size.height
                  << " to fit an icon image (at most 256 x 256)\n";
        picture = Resample(picture, size.width, size.height);
    }
    set.Clear();
    return AddRgbaImage(set, picture, 32, false) >= 0;
}

bool ParseOutputOption(const Args& args, std::size_t& i, OutputOptions& options,
                       std::string& error) {
    const std::string& option = args[i];
    if (i + 1 >= args.size()) {
        error = option + " needs a value";
        return false;
    }
    const std::string& value = args[++i];
    if (option == "--index") {
        if (!ParseInt(value, 0, IconSet::kMaxImages - 1, options.index)) {
            error = "--index takes an image number";
            return false;
        }
    } else if (option == "--hotspot") {
        const auto comma = value.find(',');
        int x = 0, y = 0;
        if (comma == std::string::npos || !ParseInt(value.substr(0, comma), 0, 255, x) ||
            !ParseInt(value.substr(comma + 1), 0, 255, y)) {
            error = "--hotspot takes X,Y (0 to 255)";
            return false;
        }
        options.hotspot = {x, y};
    } else if (option == "--rate") {
        int rate = 0;
        if (!ParseInt(value, 0, 32767, rate)) {
            error = "--rate takes jiffies from 0 to 32767";
            return false;
        }
        options.rate = rate;
    } else if (option == "--name") {
        options.name = value;
    } else if (option == "--artist") {
        options.artist = value;
    } else if (option == "--template") {
        options.templateName = value;
    } else if (option == "--group") {
        options.group = value;
    } else if (option == "--language") {
        int language = 0;
        if (!ParseInt(value, 0, 65535, language)) {
            error = "--language takes a language number from 0 to 65535";
            return false;
        }
        options.language = language;
    } else if (option == "--sequence") {
        std::vector<int> frames;
        std::size_t at = 0;
        while (at <= value.size()) {
            std::size_t comma = value.find(',', at);
            if (comma == std::string::npos) comma = value.size();
            int frame = 0;
            const std::string item = value.substr(at, comma - at);
            if (!item.empty()) {
                if (!ParseInt(item, 0, IconSet::kMaxImages - 1, frame)) {
                    error = "--sequence takes frame numbers separated by commas";
                    return false;
                }
                frames.push_back(frame);
            }
            at = comma + 1;
        }
        options.sequence = frames;
    } else {
        error = "unknown option " + option;
        return false;
    }
    ++i;
    return true;
}

bool SplitArguments(const Args& args, std::vector<std::string>& plain, OutputOptions& options,
                    bool& help, std::string& error) {
    help = false;
    for (std::size_t i = 0; i < args.size();) {
        if (IsHelpFlag(args[i])) {
            help = true;
            return true;
        }
        if (args[i].size() > 1 && args[i][0] == '-') {
            if (!ParseOutputOption(args, i, options, error)) return false;
            continue;
        }
        plain.push_back(args[i++]);
    }
    return true;
}

std::string OutputKind(const std::string& path) {
    const std::string lower = Lower(path);
    for (const char* ext : {".ico", ".cur", ".ani"}) {
        if (lower.size() > 4 && lower.compare(lower.size() - 4, 4, ext) == 0) return ext;
    }
    return {};
}

bool WriteOutputSet(const std::string& path, IconSet& set, const OutputOptions& options,
                    CliContext& context) {
    const std::string kind = OutputKind(path);
    if (options.hotspot) {
        set.properties.hotspotX = static_cast<std::int16_t>(options.hotspot->first);
        set.properties.hotspotY = static_cast<std::int16_t>(options.hotspot->second);
    }
    bool ok = false;
    if (kind == ".ico") {
        ok = WriteIconFile(path, set, context.Core());
    } else if (kind == ".cur") {
        if (options.index >= set.Count()) {
            std::cerr << "iconwright-cli: --index " << options.index << ": the set has "
                      << set.Count() << " images\n";
            return false;
        }
        ok = WriteCursorFile(path, set, options.index, set.properties.hotspotX,
                             set.properties.hotspotY, context.Core());
    } else if (kind == ".ani") {
        if (options.rate) {
            for (int i = 0; i < set.Count(); ++i) {
                set.Info(i).rate = static_cast<std::int16_t>(*options.rate);
            }
        }
        if (options.name) set.properties.name = *options.name;
        if (options.artist) set.properties.artist = *options.artist;
        if (options.sequence) {
            for (int frame : *options.sequence) {
                if (frame >= set.Count()) {
                    std::cerr << "iconwright-cli: --sequence names frame " << frame
                              << "; the set has " << set.Count() << " frames\n";
                    return false;
                }
            }
            set.properties.sequence = FormatSequence(*options.sequence);
            set.animation.sequenceInUse = !options.sequence->empty();
        }
        ok = WriteAnimatedCursor(path, set, context.Core());
    }
    if (!ok) std::cerr << "iconwright-cli: " << path << ": could not be written\n";
    return ok;
}

}  // namespace iw::cli
