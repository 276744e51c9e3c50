#include "document/model/IconSet.h"

#include <algorithm>
#include <cctype>

namespace iw {

std::string UpperExtension3(const std::string& path) {
    if (path.size() < 3) return {};
    std::string tail = path.substr(path.size() - 3);
    for (char& c : tail)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return tail;
}

FileMode FileModeFromPath(const std::string& path) {
    std::string ext = UpperExtension3(path);
    if (ext == "CUR") return FileMode::CUR;
    if (ext == "ANI") return FileMode::ANI;
    return FileMode::ICO;
}

int IconSet::AddIcon(int widthMinus1, int heightMinus1, int bitCount) {
    if (Full()) return -1;
    IconImage image;
    image.info.widthMinus1 = static_cast<std::int16_t>(widthMinus1);
    image.info.heightMinus1 = static_cast<std::int16_t>(heightMinus1);
    image.info.bitCount = static_cast<std::int16_t>(bitCount);
    images_.push_back(std::move(image));
    return LastIcon();
}

int IconSet::InsertIcon(int index, IconImage image) {
    if (Full() || index < 0 || index > Count()) return -1;
    images_.insert(images_.begin() + index, std::move(image));
    return index;
}

void IconSet::RemoveIcon(int index) {
    if (index < 0 || index >= Count()) return;
    images_.erase(images_.begin() + index);
}

void IconSet::Clear() {
    images_.clear();
}

}  // namespace iw
