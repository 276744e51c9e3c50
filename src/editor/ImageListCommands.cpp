#include "editor/ImageListCommands.h"

#include <numeric>
#include <utility>

#include "editor/IconFormats.h"
#include "editor/NumberText.h"
#include "services/core/TextCatalog.h"

namespace iw {
namespace {

// The sequence after the frames moved as `newIndex` says.
void FollowFrames(IconSet& set, const std::vector<int>& newIndex) {
    set.properties.sequence = RenumberSequence(set.properties.sequence, newIndex);
}

std::vector<int> Unmoved(int count) {
    std::vector<int> order(static_cast<std::size_t>(count));
    std::iota(order.begin(), order.end(), 0);
    return order;
}

}  // namespace

std::string RenumberSequence(std::string_view sequence, const std::vector<int>& newIndex) {
    std::string renumbered;
    while (!sequence.empty()) {
        const std::size_t comma = sequence.find(',');
        const std::optional<int> frame = ParseInteger(sequence.substr(0, comma));
        sequence.remove_prefix(comma == std::string_view::npos ? sequence.size() : comma + 1);
        if (!frame || *frame < 0 || static_cast<std::size_t>(*frame) >= newIndex.size()) continue;
        const int moved = newIndex[static_cast<std::size_t>(*frame)];
        if (moved >= 0) renumbered += NumberText(moved) + ",";
    }
    return renumbered;
}

std::optional<ImageAttributes> ImageListCommands::Attributes(int index) const {
    if (index < 0 || index >= set_.Count()) return std::nullopt;
    return AttributesOf(set_.Info(index));
}

std::optional<int> ImageListCommands::SideEntry(std::string_view text) {
    const std::optional<int> side = ParseInteger(text);
    if (side && *side >= 1 && *side <= IconSet::kMaxSide) return side;
    messages_.Show(texts::Integer256From1, MessageType::Exclamation);
    return std::nullopt;
}

bool ImageListCommands::AddFormat(const ImageAttributes& attributes) {
    if (!attributes.Valid() || set_.Empty()) return false;
    if (set_.Full()) {
        messages_.Show(texts::IconLimit, MessageType::Exclamation);
        return false;
    }
    const IconFormat format = FormatOf(attributes.Entry());
    for (int i = 0; i < set_.Count(); ++i) {
        if (FormatOf(set_.Info(i)) != format) continue;
        const MessageAnswer answer =
            messages_.Show(texts::AddDuplicateIcon, MessageType::Question, MessageButtons::YesNo);
        if (answer != MessageAnswer::Yes) return false;
        break;
    }
    host_.FinishEditing();
    IconImage image = BlankImage(attributes.Entry());
    image.info.rate = set_.Info(0).rate;
    const int index = set_.mode == FileMode::ICO ? StandardPosition(set_, format) : set_.Count();
    set_.InsertIcon(index, std::move(image));
    host_.ImagesEdited(index, false);
    return true;
}

bool ImageListCommands::Remove(int index) {
    if (index < 0 || index >= set_.Count() || !CanRemove()) return false;
    host_.FinishEditing();
    const int current = host_.CurrentIcon();
    std::vector<int> newIndex = Unmoved(set_.Count());
    for (int& moved : newIndex)
        moved = moved == index ? -1 : moved - (moved > index ? 1 : 0);
    set_.RemoveIcon(index);
    FollowFrames(set_, newIndex);
    if (index == current) {
        host_.ImagesEdited(std::min(current, set_.LastIcon()), false);
    } else {
        host_.ImagesEdited(newIndex[static_cast<std::size_t>(current)], true);
    }
    return true;
}

bool ImageListCommands::ChangeAttributes(int index, const ImageAttributes& attributes) {
    if (!attributes.Valid() || index < 0 || index >= set_.Count()) return false;
    const bool allFrames = set_.mode == FileMode::ANI;
    bool changes = false;
    for (int i = 0; i < set_.Count(); ++i) {
        if (i == index || allFrames) changes = changes || AttributesOf(set_.Info(i)) != attributes;
    }
    if (!changes) return false;
    if (allFrames) messages_.Show(texts::AttributesANI, MessageType::Information);
    const MessageAnswer answer =
        messages_.Show(texts::ChangeAttributes, MessageType::Question, MessageButtons::YesNo);
    if (answer != MessageAnswer::Yes) return false;
    host_.FinishEditing();
    for (int i = 0; i < set_.Count(); ++i) {
        if (i == index || allFrames) ApplyAttributes(set_.Image(i), attributes);
    }
    const int current = host_.CurrentIcon();
    host_.ImagesEdited(current, !allFrames && index != current);
    return true;
}

bool ImageListCommands::Swap(int first, int second) {
    std::swap(set_.Image(first), set_.Image(second));
    std::vector<int> newIndex = Unmoved(set_.Count());
    std::swap(newIndex[static_cast<std::size_t>(first)],
              newIndex[static_cast<std::size_t>(second)]);
    FollowFrames(set_, newIndex);
    host_.ImagesEdited(newIndex[static_cast<std::size_t>(host_.CurrentIcon())], true);
    return true;
}

}  // namespace iw
