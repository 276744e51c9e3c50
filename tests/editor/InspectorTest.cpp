// The inspector: each state, the order of precedence, when it looks at all, and the fixes.
#include <gtest/gtest.h>

#include "EditorFakes.h"
#include "editor/EditorTexts.h"
#include "editor/IconFormats.h"
#include "editor/Inspector.h"

namespace iw {
namespace {

TemplateEntry Entry(int side, int bits) {
    TemplateEntry entry;
    entry.widthMinus1 = static_cast<std::int16_t>(side - 1);
    entry.heightMinus1 = static_cast<std::int16_t>(side - 1);
    entry.bits = static_cast<std::int16_t>(bits);
    return entry;
}

// Adds an image; drawn images get one opaque pixel.
int Add(IconSet& set, int side, int bits, bool drawn) {
    const int index = set.AddIcon(side - 1, side - 1, bits);
    IconImage& image = set.Image(index);
    for (int x = 0; x < side; ++x) {
        for (int y = 0; y < side; ++y)
            image.Color(x, y) = TransparentColor;
    }
    if (drawn) {
        image.Color(0, 0) = PackColor(10, 20, 30);
        image.Alpha(0, 0) = 255;
    }
    return index;
}

const InspectorRules kRules{{Entry(32, 32), Entry(16, 32)}, false};

InspectorState Examine(const IconSet& set, const InspectorRules& rules = kRules) {
    return ExamineSet(set, rules);
}

TEST(IconFormats, BlankMeansTransparentMarkerOrZeroAlphaIn32Bit) {
    IconSet set;
    const int deep = set.AddIcon(3, 3, 32);  // cleared planes: alpha 0 everywhere
    EXPECT_TRUE(IsBlank(set.Image(deep)));
    set.Image(deep).Color(1, 1) = PackColor(1, 1, 1);
    EXPECT_TRUE(IsBlank(set.Image(deep)));  // colour under zero alpha
    set.Image(deep).Alpha(1, 1) = 1;
    EXPECT_FALSE(IsBlank(set.Image(deep)));
    // Plane 1 means nothing at 8 bits: black pixels with alpha 0 are drawn.
    const int flat = set.AddIcon(3, 3, 8);
    EXPECT_FALSE(IsBlank(set.Image(flat)));
}

TEST(IconFormats, StandardOrderIsLargestFirstThenDeepest) {
    EXPECT_TRUE(ComesBefore({48, 48, 4}, {32, 32, 32}));
    EXPECT_TRUE(ComesBefore({32, 32, 32}, {32, 32, 8}));
    EXPECT_FALSE(ComesBefore({32, 32, 8}, {32, 32, 8}));
    IconSet set;
    Add(set, 16, 32, true);
    Add(set, 32, 8, true);
    Add(set, 32, 32, true);
    EXPECT_FALSE(InStandardOrder(set));
    const auto moved = SortIntoStandardOrder(set);
    EXPECT_TRUE(InStandardOrder(set));
    EXPECT_EQ(moved, (std::vector<int>{2, 1, 0}));
    EXPECT_EQ(set.Info(0).bitCount, 32);
    EXPECT_EQ(set.Info(0).Width(), 32);
}

TEST(InspectorStates, EachProblemGivesItsState) {
    IconSet ok;
    Add(ok, 32, 32, true);
    Add(ok, 16, 32, true);
    EXPECT_EQ(Examine(ok), InspectorState::Correct);

    IconSet missing;
    Add(missing, 32, 32, true);
    EXPECT_EQ(Examine(missing), InspectorState::MissingFormats);

    IconSet unneeded;
    Add(unneeded, 32, 32, true);
    Add(unneeded, 16, 32, true);
    Add(unneeded, 16, 8, true);
    EXPECT_EQ(Examine(unneeded), InspectorState::UnneededFormats);

    IconSet duplicate;
    Add(duplicate, 32, 32, true);
    Add(duplicate, 16, 32, true);
    Add(duplicate, 16, 32, true);
    EXPECT_EQ(Examine(duplicate), InspectorState::DuplicateFormats);

    IconSet unsorted;
    Add(unsorted, 16, 32, true);
    Add(unsorted, 32, 32, true);
    EXPECT_EQ(Examine(unsorted), InspectorState::NotSorted);

    IconSet allBlank;
    Add(allBlank, 32, 32, false);
    Add(allBlank, 16, 32, false);
    EXPECT_EQ(Examine(allBlank), InspectorState::AllBlank);

    IconSet someBlank;
    Add(someBlank, 32, 32, true);
    Add(someBlank, 16, 32, false);
    EXPECT_EQ(Examine(someBlank), InspectorState::SomeBlank);
}

TEST(InspectorStates, PrecedenceFollowsTheCheckOrder) {
    // Missing before unneeded.
    IconSet both;
    Add(both, 32, 32, true);
    Add(both, 48, 32, true);
    EXPECT_EQ(Examine(both), InspectorState::MissingFormats);
    // Unneeded before duplicates and order.
    IconSet extra;
    Add(extra, 16, 32, true);
    Add(extra, 32, 32, true);
    Add(extra, 8, 32, true);
    Add(extra, 8, 32, true);
    EXPECT_EQ(Examine(extra), InspectorState::UnneededFormats);
    // Unsorted with a blank image reports the order first.
    IconSet unsortedBlank;
    Add(unsortedBlank, 16, 32, false);
    Add(unsortedBlank, 32, 32, true);
    EXPECT_EQ(Examine(unsortedBlank), InspectorState::NotSorted);
}

TEST(InspectorStates, CustomSetsSkipMissingAndUnneeded) {
    IconSet custom;
    Add(custom, 48, 32, true);
    Add(custom, 24, 32, true);
    const InspectorRules rules{kRules.required, true};
    EXPECT_EQ(Examine(custom, rules), InspectorState::Correct);
    Inspector inspector;
    ASSERT_TRUE(inspector.Check(custom, rules));
    EXPECT_EQ(inspector.Panel().text, "Your custom icon is in the correct order.");
    EXPECT_TRUE(inspector.Panel().checkVisible);
    EXPECT_FALSE(inspector.Panel().fixVisible);
}

TEST(InspectorPanel, ShowsTextsAndCaptionsOfEachState) {
    Inspector inspector;
    IconSet missing;
    Add(missing, 32, 32, true);
    ASSERT_TRUE(inspector.Check(missing, kRules));
    EXPECT_EQ(inspector.Panel().text, "Your icon is missing required formats.");
    EXPECT_EQ(inspector.Panel().fixCaption, "Add Icons");
    EXPECT_TRUE(inspector.Panel().execVisible);
    EXPECT_FALSE(inspector.Panel().checkVisible);

    IconSet allBlank;
    Add(allBlank, 32, 32, false);
    Add(allBlank, 16, 32, false);
    inspector.Check(allBlank, kRules);
    EXPECT_EQ(inspector.Panel().text, "All your icons are blank.");
    EXPECT_EQ(inspector.Panel().fixCaption, "Fix");

    IconSet ok;
    Add(ok, 32, 32, true);
    Add(ok, 16, 32, true);
    inspector.Check(ok, kRules);
    EXPECT_EQ(inspector.Panel().text,
              "Your icon contains all required formats and is in the correct order.");
}

TEST(InspectorScope, CursorsAndLargeSetsAreNotExaminedAndKeepThePanel) {
    Inspector inspector;
    IconSet missing;
    Add(missing, 32, 32, true);
    inspector.Check(missing, kRules);

    IconSet large;
    for (int i = 0; i < 26; ++i)
        Add(large, 32, 32, true);
    EXPECT_FALSE(inspector.Check(large, kRules));
    EXPECT_EQ(inspector.State(), InspectorState::MissingFormats);

    IconSet limit;
    for (int i = 0; i < 25; ++i)
        Add(limit, 32, 32, true);
    EXPECT_TRUE(inspector.Check(limit, kRules));  // LastIcon 24 is still examined

    IconSet cursor;
    Add(cursor, 32, 32, true);
    cursor.mode = FileMode::CUR;
    inspector.Check(missing, kRules);
    EXPECT_FALSE(inspector.Check(cursor, kRules));
    cursor.mode = FileMode::ANI;
    EXPECT_FALSE(inspector.Check(cursor, kRules));
    EXPECT_EQ(inspector.State(), InspectorState::MissingFormats);
}

struct InspectorFixes : ::testing::Test {
    test::EditorFixture f;
    Editor& editor = f.editor;
    void SetUp() override { editor.SetRequiredFormats(kRules.required); }
};

TEST_F(InspectorFixes, AddIconsInsertsBlankFormatsInOrderThenCopyImageFillsThem) {
    IconSet& set = editor.Set();
    set.Clear();
    const int drawn = Add(set, 32, 32, false);
    for (int x = 0; x < 32; ++x) {
        for (int y = 0; y < 32; ++y) {
            set.Image(drawn).Color(x, y) = PackColor(200, 0, 0);
            set.Image(drawn).Alpha(x, y) = 255;
        }
    }
    editor.SetRequiredFormats({Entry(48, 32), Entry(32, 32), Entry(16, 32)});
    editor.RunInspector();
    ASSERT_EQ(editor.InspectorView().state, InspectorState::MissingFormats);
    EXPECT_TRUE(editor.FixInspectorProblem());
    ASSERT_EQ(set.Count(), 3);
    EXPECT_EQ(set.Info(0).Width(), 48);
    EXPECT_EQ(set.Info(2).Width(), 16);
    EXPECT_EQ(editor.InspectorView().state, InspectorState::SomeBlank);
    EXPECT_FALSE(editor.Unmodified());

    EXPECT_TRUE(editor.FixInspectorProblem());
    EXPECT_EQ(editor.InspectorView().state, InspectorState::Correct);
    EXPECT_EQ(set.Image(0).Color(47, 47), PackColor(200, 0, 0));
    EXPECT_EQ(set.Image(0).Alpha(47, 47), 255);
    EXPECT_EQ(set.Image(2).Color(0, 0), PackColor(200, 0, 0));
}

TEST_F(InspectorFixes, SortKeepsTheCurrentImageCurrent) {
    IconSet& set = editor.Set();
    set.Clear();
    Add(set, 16, 32, true);
    Add(set, 32, 32, true);
    editor.SelectImage(0);
    editor.RunInspector();
    ASSERT_EQ(editor.InspectorView().state, InspectorState::NotSorted);
    EXPECT_TRUE(editor.FixInspectorProblem());
    EXPECT_EQ(editor.State().CurrentIcon, 1);
    EXPECT_EQ(editor.CurrentImage().info.Width(), 16);
    EXPECT_EQ(editor.InspectorView().state, InspectorState::Correct);
}

TEST_F(InspectorFixes, RemoveAsksFirstAndOnlyYesDeletes) {
    IconSet& set = editor.Set();
    set.Clear();
    Add(set, 32, 32, true);
    Add(set, 24, 32, true);
    Add(set, 16, 32, true);
    editor.RunInspector();
    ASSERT_EQ(editor.InspectorView().state, InspectorState::UnneededFormats);

    f.presenter.answer = MessageAnswer::No;
    EXPECT_FALSE(editor.FixInspectorProblem());
    EXPECT_EQ(set.Count(), 3);
    EXPECT_EQ(editor.InspectorView().state, InspectorState::UnneededFormats);
    ASSERT_EQ(f.presenter.shown.size(), 1u);
    EXPECT_EQ(f.presenter.shown[0].key, "ExtraFormats");
    EXPECT_EQ(f.presenter.shown[0].text,
              "You are about to delete icons from your file.  This action cannot be undone.  "
              "Continue?");
    EXPECT_EQ(f.presenter.shown[0].title, "Quorvale Iconwright");
    EXPECT_EQ(f.presenter.shown[0].buttons, MessageButtons::YesNo);

    f.presenter.answer = MessageAnswer::Yes;
    EXPECT_TRUE(editor.FixInspectorProblem());
    EXPECT_EQ(set.Count(), 2);
    EXPECT_EQ(editor.InspectorView().state, InspectorState::Correct);
}

TEST_F(InspectorFixes, ShowPointsAtTheDuplicates) {
    IconSet& set = editor.Set();
    set.Clear();
    Add(set, 32, 32, true);
    Add(set, 32, 32, true);
    Add(set, 16, 32, true);
    editor.RunInspector();
    ASSERT_EQ(editor.InspectorView().state, InspectorState::DuplicateFormats);
    EXPECT_FALSE(editor.FixInspectorProblem());
    EXPECT_EQ(editor.HighlightedImages(), (std::vector<int>{0, 1}));
    EXPECT_EQ(editor.State().CurrentIcon, 1);
}

}  // namespace
}  // namespace iw
