// Settings defaults and bad values, and the recent-files orders.
#include <gtest/gtest.h>

#include <sstream>

#include "editor/EditorSettings.h"
#include "editor/NumberText.h"
#include "editor/RecentFiles.h"

namespace iw {
namespace {

// Every value the two loaders read, in one line.
std::string Describe(const ViewState& s, const WindowSettings& w) {
    std::ostringstream out;
    out << "grid " << s.ShowGrid << ", size " << s.PixelSize << ", fit " << s.FitInWindow
        << ", preview " << static_cast<int>(w.previewBackground) << ", inspector "
        << w.showInspector << ", state " << w.windowState << ", " << w.widthTwips << " x "
        << w.heightTwips << ", splash " << w.splash << ", font " << w.useFont << ", startup "
        << w.startup << ", blank " << w.blankIcon;
    return out.str();
}

// Loads `store` over a state and window that hold anything but the defaults.
std::string Load(const XmlStore& store) {
    ViewState state;
    state.ShowGrid = true;
    state.PixelSize = 5;
    state.FitInWindow = false;
    WindowSettings window{0, 1, 1, PreviewBackground::White, false, true, false, 3, 2};
    LoadSettings(store, state, window);
    LoadStartupSettings(store, window);
    return Describe(state, window);
}

std::string Load(const std::vector<std::pair<std::string, std::string>>& values) {
    XmlStore store;
    for (const auto& [key, value] : values)
        store.SetValue("Settings\\" + key, value);
    return Load(store);
}

TEST(Settings, AnEmptyStoreOrBadValuesGiveTheDefaults) {
    const std::string defaults =
        "grid 0, size 32, fit 1, preview 0, inspector 1, state 2, 8000 x 8000, splash 1, font "
        "0, startup 0, blank 0";
    EXPECT_EQ(Load(XmlStore{}), defaults);
    EXPECT_EQ(Load({{"Grid", "perhaps"},
                    {"FitInWindow", "x"},
                    {"PreviewBackground", "7"},
                    {"ShowInspector", "?"},
                    {"State", "maximised"},
                    {"Width", "-50"},
                    {"Height", "99999999999"},
                    {"Startup", "1.5"}}),
              defaults);
    // State 0 restores the window at the default size when none was saved.
    EXPECT_EQ(Load({{"State", "0"}, {"Grid", "True"}, {"FitInWindow", "0"}}),
              "grid 1, size 32, fit 0, preview 0, inspector 1, state 0, 8000 x 8000, splash 1, "
              "font 0, startup 0, blank 0");
}

TEST(Settings, PixelsizeThatIsNotNumericOrTooLargeReadsAs48) {
    const std::pair<const char*, int> cases[] = {{"12", 12},     {"48", 48},  {"49", 48},
                                                 {"100000", 48}, {"big", 48}, {"", 48},
                                                 {"12.5", 12},   {"0", 1},    {"-7", 1}};
    for (const auto& [text, size] : cases)
        EXPECT_EQ(ParsePixelSize(text), size) << text;
    EXPECT_EQ(Load({{"Pixelsize", "x"}}).substr(0, 16), "grid 0, size 48,");
}

TEST(Settings, SaveWritesEveryKeyAndLoadsBack) {
    XmlStore store;
    ViewState state;
    state.ShowGrid = true;
    state.PixelSize = 17;
    state.FitInWindow = false;
    const WindowSettings window{0, 9000, 7000, PreviewBackground::Transparent, false};
    SaveSettings(store, state, window);
    EXPECT_EQ(store.GetValue("Settings\\Grid", ""), "True");
    EXPECT_EQ(store.GetValue("Settings\\FitInWindow", ""), "False");
    EXPECT_EQ(store.GetValue("Settings\\ShowInspector", ""), "0");
    EXPECT_EQ(Load(store),
              "grid 1, size 17, fit 0, preview 2, inspector 0, state 0, 9000 x 7000, splash 1, "
              "font 0, startup 0, blank 0");
}

using Files = std::array<std::string, 4>;

TEST(RecentFiles, ReorderExactlyByWhichEntryIsOpened) {
    XmlStore store;
    EXPECT_EQ(RecentFiles(store), (Files{"NA", "NA", "NA", "NA"}));
    EXPECT_TRUE(LoadRecentList(store).empty());
    for (const char* path : {"a", "b", "c", "d"})
        AddRecentFile(store, path);
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
    // Menu items 2 to 4 move their entry up first, then open entry 1.
    EXPECT_EQ(MoveRecentFileToTop(store, 3), "b");
    EXPECT_EQ(RecentFiles(store), (Files{"b", "d", "new", "c"}));
    EXPECT_EQ(MoveRecentFileToTop(store, 4), "c");
    EXPECT_EQ(RecentFiles(store), (Files{"c", "b", "d", "new"}));
    ASSERT_EQ(LoadRecentList(store).size(), 4u);
    EXPECT_EQ(LoadRecentList(store)[3].path, "new");

    XmlStore sparse;
    AddRecentFile(sparse, "x");
    EXPECT_EQ(MoveRecentFileToTop(sparse, 3), "NA");
    EXPECT_EQ(RecentFiles(sparse), (Files{"x", "NA", "NA", "NA"}));
}

// Typed and stored whole numbers: blanks round them are trimmed, then the text must be a
// plain integer that fits.
TEST(Settings, IntegerTextsAreTrimmedThenTakenWholeOrNotAtAll) {
    EXPECT_EQ(ParseInteger("\t+7\r\n"), 7);
    for (const char* bad : {"12.5", "1 2", "  ", "2147483648"})
        EXPECT_EQ(ParseInteger(bad), std::nullopt) << bad;
}

}  // namespace
}  // namespace iw
