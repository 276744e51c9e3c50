#pragma once
// Stand-ins for what the editor reaches through its interfaces: the document store (sets
// kept in memory, with a file on disk so existence checks see it), the main window, and a
// random source with a known sequence.

#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "document/io/IconFileWriter.h"
#include "document/model/IconSet.h"
#include "editor/Airbrush.h"
#include "editor/DocumentStore.h"
#include "editor/Editor.h"
#include "editor/MainWindowView.h"
#include "support/TestImages.h"
#include "support/TestSupport.h"

namespace iw::test {

class FakeDocumentStore : public IDocumentStore {
  public:
    bool Read(const std::string& path, IconSet& set, CoreContext&) override {
        auto it = files.find(path);
        if (it == files.end()) return false;
        set = Copy(it->second);
        set.mode = FileModeFromPath(path);
        return true;
    }
    // The fake keeps one set a file, whatever group is asked for.
    bool ReadProgramGroup(const std::string& path, const GroupChoice&, IconSet& set,
                          CoreContext& context) override {
        return Read(path, set, context);
    }
    bool Write(const std::string& path, const IconSet& set, const DocumentWrite& how,
               CoreContext&) override {
        writes.push_back(path);
        if (failWrites) return false;
        Put(path, set);
        files[path].mode = how.mode;
        return true;
    }
    // Puts a set "on disk" at `path`.
    void Put(const std::string& path, const IconSet& set) {
        files[path] = Copy(set);
        std::ofstream(path) << "icon";
    }
    std::map<std::string, IconSet> files;
    std::vector<std::string> writes;
    bool failWrites = false;

  private:
    static IconSet Copy(const IconSet& from) {
        IconSet to;
        for (int i = 0; i < from.Count(); ++i)
            to.InsertIcon(to.Count(), from.Image(i).Clone());
        to.mode = from.mode;
        to.properties = from.properties;
        to.animation = from.animation;
        return to;
    }
};

class FakeView : public IMainWindowView {
  public:
    void ApplyUseFont(bool use) override { useFont = use; }
    void ShowSplash() override { ++splashes; }
    void RestoreWindow(const WindowSettings& window) override { restored = window; }
    void ShowLogList() override { logShown = true; }
    void ShowEditRequest(const std::string& text) override { editRequestText = text; }
    std::optional<std::string> ChooseSavePath(FileMode, const std::string&) override {
        ++savePathRequests;
        return savePath;
    }
    std::optional<bool> useFont;
    int splashes = 0;
    std::optional<WindowSettings> restored;
    bool logShown = false;
    std::string editRequestText;
    std::optional<std::string> savePath;  // what the Save As dialog answers
    int savePathRequests = 0;
};

// Hands out a fixed sequence of numbers, again from the start at every reseed.
class ScriptedRandom : public IRandomSource {
  public:
    explicit ScriptedRandom(std::vector<double> values) : values_(std::move(values)) {}
    void Reseed() override {
        next_ = 0;
        ++reseeds;
    }
    double NextUnit() override { return values_[next_++ % values_.size()]; }
    int reseeds = 0;

  private:
    std::vector<double> values_;
    std::size_t next_ = 0;
};

// Counts the editor's events by name.
class RecordingObserver : public IEditorObserver {
  public:
    void CaptionChanged() override { ++events["caption"]; }
    void ModeChanged() override { ++events["mode"]; }
    void SetChanged() override { ++events["set"]; }
    void CurrentImageChanged() override { ++events["current"]; }
    void ImageChanged() override { ++events["image"]; }
    void ColorsChanged() override { ++events["colors"]; }
    void ViewChanged() override { ++events["view"]; }
    void UndoStateChanged() override { ++events["undo"]; }
    void InspectorChanged() override { ++events["inspector"]; }
    void RecentFilesChanged() override { ++events["recent"]; }
    void SelectionChanged() override { ++events["selection"]; }
    void HotspotChanged() override { ++events["hotspot"]; }
    void EditRequestChanged() override { ++events["editRequest"]; }
    std::map<std::string, int> events;
};

// An Editor over fakes (and over `Store` for its files), with XDG_DATA_HOME pointed at a
// temporary folder so that no test touches the real home folder.
template <typename Store>
struct BasicEditorFixture {
    BasicEditorFixture() {
        setenv("XDG_DATA_HOME", temp.Path().c_str(), 1);
        folders.dataFolder = temp / "data";
        folders.programTemplates = TestDataPath("../../data/Templates");
        folders.userTemplates = temp / "data" / "Templates";
        std::filesystem::create_directories(folders.userTemplates);
        editor.AddObserver(observer);
    }
    std::string PathFor(const std::string& name) const { return (temp / name).string(); }
    // Opens `set` as the file `name` would be opened.
    bool Open(const IconSet& set, const std::string& name = "open.ico") {
        documents.Put(PathFor(name), set);
        return editor.Document().OpenDocument(PathFor(name));
    }
    // A press, moves through `path` and the release there, with the current tool.
    void Stroke(std::vector<Point> path, MouseButton button = MouseButton::Left) {
        CanvasController& canvas = editor.Canvas();
        canvas.PointerPress(path.front(), button);
        for (std::size_t i = 1; i < path.size(); ++i)
            canvas.PointerMove(path[i]);
        canvas.PointerRelease(path.back());
    }
    // One pixel drawn with the Pencil.
    void Draw(Point at) {
        editor.Tools().SelectTool(ToolId::Pencil);
        Stroke({at});
    }
    // Writes `set` as the real icon file `name` and returns its path.
    std::string WriteIcon(const std::string& name, const IconSet& set) {
        CoreFixture core;
        EXPECT_TRUE(WriteIconFile(PathFor(name), set, core.context));
        return PathFor(name);
    }

    TempDir temp;
    StartupFolders folders;
    RecordingPresenter presenter;
    RecordingProgress progress;
    RecordingLog log;
    Store documents;
    FakeView view;
    ScriptedRandom random{{0.5}};
    Editor editor{EditorServices{presenter, progress, log, documents, view, random}};
    RecordingObserver observer;
};

using EditorFixture = BasicEditorFixture<FakeDocumentStore>;

}  // namespace iw::test
