#pragma once
// The icon list's context menu and the mode menu's image commands: add a format, remove an
// image, change an image's attributes, move an image up or down. None of them can be
// undone: each marks the set modified, and the undo stacks are reset whenever the image
// being edited changes its size, depth or identity.
//
// Choices made here:
// - A new image is blank (transparent); the inspector's "Copy Image" fix can then scale a
//   drawn image into it. In an icon it goes to its place in the standard order, in a
//   cursor or an animated cursor (whose frames keep the user's order) to the end, with the
//   first frame's rate. It becomes the image being edited.
// - Removing asks nothing (the list's menu item reads "Remove Icon"); the last image of a
//   set is never removed.
// - Changing attributes crops or pads at the right and bottom rather than scaling.
// - Moving and removing frames renumbers an animated cursor's sequence to follow them.

#include <optional>
#include <string_view>

#include "document/model/IconSet.h"
#include "editor/ImageAttributes.h"
#include "services/core/MessageService.h"

namespace iw {

// What the commands ask of the editor that holds them.
class IImageListHost {
  public:
    virtual ~IImageListHost() = default;
    virtual int CurrentIcon() const = 0;
    // Before the set changes: what floats above the image goes into it.
    virtual void FinishEditing() = 0;
    // The set changed; `current` is the image to edit now. `sameImage`: it is the image
    // edited before, with its size and depth, perhaps at another place.
    virtual void ImagesEdited(int current, bool sameImage) = 0;
};

class ImageListCommands {
  public:
    ImageListCommands(IconSet& set, MessageService& messages, IImageListHost& host)
        : set_(set), messages_(messages), host_(host) {}

    // Enabled states. Add Format and Change Attributes are offered whenever there is an
    // image (adding to a full set says "IconLimit").
    bool CanRemove() const { return set_.Count() > 1; }
    bool CanMoveUp(int index) const { return index >= 1 && index < set_.Count(); }
    bool CanMoveDown(int index) const { return index >= 0 && index + 1 < set_.Count(); }
    // The attributes dialog's values for an image.
    std::optional<ImageAttributes> Attributes(int index) const;
    // A side typed into the dialog: 1..256, else "Please enter an integer between 1 and
    // 256." and nothing.
    std::optional<int> SideEntry(std::string_view text);

    // "IconLimit" at 175 images; "AddDuplicateIcon" (Yes/No) when an image of that size
    // and depth is there already.
    bool AddFormat(const ImageAttributes& attributes);
    bool Remove(int index);
    // "ChangeAttributes" (Yes/No) first; for an animated cursor "AttributesANI" before it,
    // and every frame takes the attributes. False when nothing would change.
    bool ChangeAttributes(int index, const ImageAttributes& attributes);
    bool MoveUp(int index) { return CanMoveUp(index) && Swap(index - 1, index); }
    bool MoveDown(int index) { return CanMoveDown(index) && Swap(index, index + 1); }

  private:
    bool Swap(int first, int second);

    IconSet& set_;
    MessageService& messages_;
    IImageListHost& host_;
};

// Renumbers an animated cursor's sequence ("2,0,1,") after its frames moved:
// newIndex[old frame] is the frame's new index, or -1 when it was removed (its steps go).
std::string RenumberSequence(std::string_view sequence, const std::vector<int>& newIndex);

}  // namespace iw
