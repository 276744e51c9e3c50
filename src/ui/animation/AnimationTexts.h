#pragma once
// The captions of the animated cursor windows and their menu commands, in one place: the
// sequence editor (frmSequence), the properties (frmANIProperties) and the preview
// (frmPreviewANI). The keys are the controls' names.

#include "services/core/Texts.h"

namespace iw::ui::animation_texts {

inline constexpr std::string_view kSequence = "frmSequence";
inline constexpr std::string_view kProperties = "frmANIProperties";
inline constexpr std::string_view kPreview = "frmPreviewANI";

// Menu commands, under the main window.
inline constexpr TextId SequenceEditor{"mnuSequenceEditor", "frmMain", "&Sequence Editor..."};
inline constexpr TextId SequenceEditorTip{"SequenceEditorTip", "frmMain", "Sequence Editor"};
inline constexpr TextId Properties{"mnuProperties", "frmMain", "P&roperties..."};
inline constexpr TextId PreviewANI{"mnuPreviewANI", "frmMain", "Pre&view Animated Cursor..."};

// The sequence editor.
inline constexpr TextId SequenceCaption{"Caption", kSequence, "Sequence Editor"};
inline constexpr TextId FramesLabel{"lblFrames", kSequence, "&Frames:"};
inline constexpr TextId SequenceLabel{"lblSequence", kSequence, "&Sequence:"};
inline constexpr TextId SequenceHint{
    "lblHint", kSequence,
    "Drag frames into the sequence below.  Drag a step along the sequence to move it, or out "
    "of it to remove it.  By keys: Enter adds the chosen frame, Delete removes the chosen step "
    "and Ctrl with an arrow moves it."};
inline constexpr TextId PlayInOrder{"optOrder", kSequence, "Play the frames in &order"};
inline constexpr TextId PlaySequence{"optSequence", kSequence, "Play the se&quence"};
inline constexpr TextId Help{"cmdHelp", kSequence, "&Help"};

// The properties window (its caption is the shared "ANIProperties").
inline constexpr TextId NameLabel{"lblName", kProperties, "&Name:"};
inline constexpr TextId ArtistLabel{"lblArtist", kProperties, "&Artist:"};
inline constexpr TextId RatesFrame{"fraRates", kProperties, "Rates"};
inline constexpr TextId UnitLabel{"lblUnit", kProperties, "Show rates in:"};
inline constexpr TextId DefaultRateLabel{"lblDefaultRate", kProperties, "&Default rate:"};
inline constexpr TextId DefaultRateHint{
    "lblDefaultHint", kProperties,
    "The first frame's rate.  Frames with the same rate follow it until given their own."};
inline constexpr TextId FrameLabel{"lblFrame", kProperties, "Frame %1:"};
inline constexpr TextId IsDefault{"lblIsDefault", kProperties, "(the default rate)"};
inline constexpr TextId FollowsDefault{"lblFollows", kProperties, "(follows the default)"};

// The preview (its caption is the shared "PreviewANI").
inline constexpr TextId Play{"cmdPlay", kPreview, "&Play"};
inline constexpr TextId Pause{"Pause", kPreview, "&Pause"};
inline constexpr TextId StepBack{"cmdStepBack", kPreview, "< Step &Back"};
inline constexpr TextId Step{"cmdStep", kPreview, "&Step >"};
inline constexpr TextId Close{"cmdClose", kPreview, "&Close"};
inline constexpr TextId StepText{"lblStep", kPreview, "Frame %1, step %2 of %3"};
inline constexpr TextId ActualSize{"fraActual", kPreview, "Actual size"};
inline constexpr TextId Zoomed{"fraZoomed", kPreview, "Zoomed %1x"};

}  // namespace iw::ui::animation_texts
