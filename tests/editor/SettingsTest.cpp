// Settings defaults and bad values, and the recent-files orders.
#include <gtest/gtest.h>

#include "editor/EditorSettings.h"
#include "editor/RecentFiles.h"

namespace iw {
namespace {

TEST(Settings, AnEmptyStoreGivesEveryDefault) {
    XmlStore store;
    EditorState state;
    state.ShowGrid = true;
    state.PixelSize = 5;
    state.FitInWindow = false;
    WindowSettings window;
    window.showInspector = false;
    window.previewBackground = PreviewBackground::White;
    LoadSettings(store, state, window);
    LoadStartupSettings(store, window);
    EXPECT_FALSE(state.ShowGrid);
    EXPECT_EQ(state.PixelSize, 32);
    EXPECT_TRUE(state.FitInWindow);
    EXPECT_EQ(window.previewBackground, PreviewBackground::Grid);
    EXPECT_TRUE(window.showInspector);
    EXPECT_TRUE(window.Maximised());
    EXPECT_EQ(window.widthTwips, 8000);
    EXPECT_EQ(window.heightTwips, 8000);
    EXPECT_TRUE(window.splash);
    EXPECT_FALSE(window.useFont);
    EXPECT_EQ(window.startup, 0);
    EXPECT_EQ(window.blankIcon, 0);
}

TEST(Settings, PixelsizeThatIsNotNumericOrTooLargeReadsAs48) {
    EXPECT_EQ(ParsePixelSize("12"), 12);
    EXPECT_EQ(ParsePixelSize("48"), 48);
    EXPECT_EQ(ParsePixelSize("49"), 48);
    EXPECT_EQ(ParsePixelSize("100000"), 48);
    EXPECT_EQ(ParsePixelSize("big"), 48);
    EXPECT_EQ(ParsePixelSize(""), 48);
    EXPECT_EQ(ParsePixelSize("12.5"), 12);
    EXPECT_EQ(ParsePixelSize("0"), 1);
    EXPECT_EQ(ParsePixelSize("-7"), 1);
}

TEST(Settings, BadValuesGiveDefaults) {
    XmlStore store;
    store.SetValue("Settings\\Grid", "perhaps");
    store.SetValue("Settings\\FitInWindow", "0");
    store.SetValue("Settings\\PreviewBackground", "7");
    store.SetValue("Settings\\ShowInspector", "0");
    store.SetValue("Settings\\State", "maximised");
    store.SetValue("Settings\\Width", "-50");
    store.SetValue("Settings\\Height", "99999999999");
    store.SetValue("Settings\\Startup", "1.5");
    EditorState state;
    WindowSettings window;
    LoadSettings(store, state, window);
    LoadStartupSettings(store, window);
    EXPECT_FALSE(state.ShowGrid);
    EXPECT_FALSE(state.FitInWindow);
    EXPECT_EQ(window.previewBackground, PreviewBackground::Grid);
    EXPECT_FALSE(window.showInspector);
    EXPECT_TRUE(window.Maximised());
    EXPECT_EQ(window.widthTwips, 8000);
    EXPECT_EQ(window.heightTwips, 8000);
    EXPECT_EQ(window.startup, 0);
}

TEST(Settings, StateZeroRestoresTheDefaultSizeWhenNoneWasSaved) {
    XmlStore store;
    store.SetValue("Settings\\State", "0");
    WindowSettings window;
    LoadStartupSettings(store, window);
    EXPECT_FALSE(window.Maximised());
    EXPECT_EQ(window.widthTwips, 8000);
    EXPECT_EQ(window.heightTwips, 8000);
    EXPECT_EQ(TwipsToPixels(8000), 533);
}

TEST(Settings, SaveWritesEveryKeyAndLoadsBack) {
    XmlStore store;
    EditorState state;
    state.ShowGrid = true;
    state.PixelSize = 17;
    state.FitInWindow = false;
    WindowSettings window;
    window.windowState = 0;
    window.widthTwips = 9000;
    window.heightTwips = 7000;
    window.previewBackground = PreviewBackground::Transparent;
    window.showInspector = false;
    SaveSettings(store, state, window);
    EXPECT_EQ(store.GetValue("Settings\\State", ""), "0");
    EXPECT_EQ(store.GetValue("Settings\\Width", ""), "9000");
    EXPECT_EQ(store.GetValue("Settings\\Height", ""), "7000");
    EXPECT_EQ(store.GetValue("Settings\\Grid", ""), "True");
    EXPECT_EQ(store.GetValue("Settings\\FitInWindow", ""), "False");
    EXPECT_EQ(store.GetValue("Settings\\PreviewBackground", ""), "2");
    EXPECT_EQ(store.GetValue("Settings\\ShowInspector", ""), "0");
    EXPECT_EQ(store.GetValue("Settings\\Pixelsize", ""), "17");

    EditorState loaded;
    WindowSettings loadedWindow;
    LoadSettings(store, loaded, loadedWindow);
    LoadStartupSettings(store, loadedWindow);
    EXPECT_TRUE(loaded.ShowGrid);
    EXPECT_EQ(loaded.PixelSize, 17);
    EXPECT_FALSE(loaded.FitInWindow);
    EXPECT_EQ(loadedWindow.previewBackground, PreviewBackground::Transparent);
    EXPECT_FALSE(loadedWindow.showInspector);
    EXPECT_EQ(loadedWindow.widthTwips, 9000);
}

void Fill(XmlStore& store) {
    for (const char* path : {"a", "b", "c", "d"})
        AddRecentFile(store, path);  // leaves d, c, b, a
}

using Files = std::array<std::string, 4>;

TEST(RecentFiles, StartAsNAAndAddToTheTop) {
    XmlStore store;
    EXPECT_EQ(RecentFiles(store), (Files{"NA", "NA", "NA", "NA"}));
    EXPECT_TRUE(LoadRecentList(store).empty());
    AddRecentFile(store, "one");
    EXPECT_EQ(RecentFiles(store), (Files{"one", "NA", "NA", "NA"}));
    ASSERT_EQ(LoadRecentList(store).size(), 1u);
    EXPECT_EQ(LoadRecentList(store)[0].path, "one");
}

TEST(RecentFiles, ReorderExactlyByWhichEntryIsOpened) {
    XmlStore store;
    Fill(store);
    ASSERT_EQ(RecentFiles(store), (Files{"d", "c", "b", "a"}));
    AddRecentFile(store, "d");
    EXPECT_EQ(RecentFiles(store), (Files{"d", "c", "b", "a"}));
    AddRecentFile(store, "c");
    EXPECT_EQ(RecentFiles(store), (Files{"c", "d", "b", "a"}));
    AddRecentFile(store, "b");  // entry 3 goes to the top: 3, 1, 2, 4
    EXPECT_EQ(RecentFiles(store), (Files{"b", "c", "d", "a"}));
    AddRecentFile(store, "new");  // entry 4 is dropped
    EXPECT_EQ(RecentFiles(store), (Files{"new", "b", "c", "d"}));
    AddRecentFile(store, "d");  // entry 4 again: everything moves down
    EXPECT_EQ(RecentFiles(store), (Files{"d", "new", "b", "c"}));
}

TEST(RecentFiles, MenuItemsTwoToFourMoveTheirEntryUpFirst) {
    XmlStore store;
    Fill(store);
    EXPECT_EQ(MoveRecentFileToTop(store, 3), "b");
    EXPECT_EQ(RecentFiles(store), (Files{"b", "d", "c", "a"}));
    EXPECT_EQ(MoveRecentFileToTop(store, 4), "a");
    EXPECT_EQ(RecentFiles(store), (Files{"a", "b", "d", "c"}));
    XmlStore sparse;
    AddRecentFile(sparse, "x");
    EXPECT_EQ(MoveRecentFileToTop(sparse, 3), "NA");
    EXPECT_EQ(RecentFiles(sparse), (Files{"x", "NA", "NA", "NA"}));
}

}  // namespace
}  // namespace iw
