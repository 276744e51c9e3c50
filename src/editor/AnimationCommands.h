#pragma once
// The animated cursor's own commands: the sequence editor, the properties window and the
// preview, offered in animated cursor mode. Their windows work on the presenters made here
// and hand back what OK gives; storing it is not undone (like the image list's commands)
// but marks the set modified when something changed.

#include "document/model/IconSet.h"
#include "editor/AnimationPlayer.h"
#include "editor/AnimationProperties.h"
#include "editor/EditorObserver.h"
#include "editor/SequenceEditor.h"
#include "services/core/MessageService.h"

namespace iw {

class DocumentSession;

class AnimationCommands {
  public:
    AnimationCommands(IconSet& set, MessageService& messages, DocumentSession& session,
                      EditorEvents& events)
        : set_(set), messages_(messages), session_(session), events_(events) {}

    // The set is an animated cursor with at least one frame.
    bool Offered() const { return set_.mode == FileMode::ANI && !set_.Empty(); }

    SequenceEditor EditSequence() const { return SequenceEditor(set_, messages_); }
    AnimationProperties EditProperties() const { return AnimationProperties(set_, messages_); }
    AnimationPlayer Play() const { return AnimationPlayer(set_); }

    // What OK gave. False when nothing changed (or the frames no longer match).
    bool ApplySequence(const SequenceChoice& choice);
    bool ApplyProperties(const AnimationPropertiesValues& values);

  private:
    void Changed();

    IconSet& set_;
    MessageService& messages_;
    DocumentSession& session_;
    EditorEvents& events_;
};

// After an animated cursor is opened: "SeqANI" when it plays a sequence, "ANIInfo" when it
// has a name or an artist.
void ShowAnimationNotices(const IconSet& set, MessageService& messages);

}  // namespace iw
