#pragma once
// How a window follows the editor: it registers an IEditorObserver and repaints or re-reads
// what an event names. Every event is a plain notification; what changed is read back from
// the editor's parts afterwards.

#include <algorithm>
#include <vector>

namespace iw {

class IEditorObserver {
  public:
    virtual ~IEditorObserver() = default;
    virtual void CaptionChanged() {}       // Document().Caption()
    virtual void ModeChanged() {}          // the file mode: Document().ModeMenuCaption()
    virtual void SetChanged() {}           // images added, removed or reordered, or a new set
    virtual void CurrentImageChanged() {}  // another image is edited
    virtual void ImageChanged() {}         // the pixels of the image being edited
    virtual void ColorsChanged() {}        // ForeColor, BackColor, CurrentAlpha
    virtual void ToolChanged() {}          // the current tool or one of its options
    virtual void ViewChanged() {}          // PixelSize, FitInWindow, ShowGrid, the canvas size
    virtual void UndoStateChanged() {}     // whether Undo and Repeat are offered
    virtual void InspectorChanged() {}     // the inspector panel and the highlighted images
    virtual void RecentFilesChanged() {}   // the recent-files menu
    // The floating selection appeared, moved, was dropped or thrown away, or the rubber band
    // changed: Canvas().FloatingSelection(), Canvas().RubberBand().
    virtual void SelectionChanged() {}
    // The hotspot moved, or setting it began or ended: Hotspot().Position(), Setting().
    virtual void HotspotChanged() {}
    // An edit request began or ended: Document().EditRequest(), EditRequestText().
    virtual void EditRequestChanged() {}
};

// The observers of one editor. Observers may come and go while an event is delivered.
class EditorEvents {
  public:
    using Event = void (IEditorObserver::*)();

    void Add(IEditorObserver& observer) { observers_.push_back(&observer); }
    void Remove(IEditorObserver& observer) { std::erase(observers_, &observer); }
    void Notify(Event event) const {
        const std::vector<IEditorObserver*> now = observers_;
        for (IEditorObserver* observer : now) {
            if (std::find(observers_.begin(), observers_.end(), observer) != observers_.end())
                (observer->*event)();
        }
    }

  private:
    std::vector<IEditorObserver*> observers_;
};

}  // namespace iw
