// The inspector: each state, the order of precedence, when it looks at all, and the fixes.
#include <gtest/gtest.h>

#include "EditorFakes.h"
#include "editor/IconFormats.h"
#include "editor/Inspector.h"

namespace iw {
namespace {

using enum InspectorState;

TemplateEntry Entry(int side, int bits) {
    TemplateEntry entry;
    entry.widthMinus1 = static_cast<std::int16_t>(side - 1);
    entry.heightMinus1 = static_cast<std::int16_t>(side - 1);
    entry.bits = static_cast<std::int16_t>(bits);
    return entry;
}

// Adds a transparent image; drawn images get one opaque pixel.
int Add(IconSet& set, int side, int bits, bool drawn = true) {
    const int index = set.InsertIcon(
        set.Count(), test::MakeImage(
                         side, side, bits, [](int, int) { return TransparentColor; }, 0));
    if (drawn) {
        set.Image(index).Color(0, 0) = PackColor(10, 20, 30);
        set.Image(index).Alpha(0, 0) = 255;
    }
    return index;
}

// A set of 32-bit images of the given sides; a negative side is a blank image.
IconSet Set(std::initializer_list<int> sides) {
    IconSet set;
    for (int side : sides)
        Add(set, std::abs(side), 32, side > 0);
    return set;
}

const InspectorRules kRules{{Entry(32, 32), Entry(16, 32)}, false};

TEST(IconFormats, BlankMeansTransparentMarkerOrZeroAlphaIn32Bit) {
    IconSet set;
    const int deep = set.AddIcon(3, 3, 32);  // cleared planes: alpha 0 everywhere
    set.Image(deep).Color(1, 1) = PackColor(1, 1, 1);
    EXPECT_TRUE(IsBlank(set.Image(deep)));  // colour under zero alpha
    set.Image(deep).Alpha(1, 1) = 1;
    EXPECT_FALSE(IsBlank(set.Image(deep)));
    // Plane 1 means nothing at 8 bits: black pixels with alpha 0 are drawn.
    EXPECT_FALSE(IsBlank(set.Image(set.AddIcon(3, 3, 8))));
}

TEST(IconFormats, StandardOrderIsLargestFirstThenDeepest) {
    EXPECT_TRUE(ComesBefore({48, 48, 4}, {32, 32, 32}));
    EXPECT_TRUE(ComesBefore({32, 32, 32}, {32, 32, 8}));
    EXPECT_FALSE(ComesBefore({32, 32, 8}, {32, 32, 8}));
    IconSet set;
    Add(set, 16, 32);
    Add(set, 32, 8);
    Add(set, 32, 32);
    EXPECT_FALSE(InStandardOrder(set));
    EXPECT_EQ(SortIntoStandardOrder(set), (std::vector<int>{2, 1, 0}));
    EXPECT_TRUE(InStandardOrder(set));
}

TEST(InspectorStates, EachProblemGivesItsStateInTheOrderOfTheChecks) {
    const std::pair<IconSet, InspectorState> cases[] = {
        {Set({32, 16}), Correct},
        {Set({32}), MissingFormats},
        {Set({32, 16, 8}), UnneededFormats},
        {Set({32, 16, 16}), DuplicateFormats},
        {Set({16, 32}), NotSorted},
        {Set({-32, -16}), AllBlank},
        {Set({32, -16}), SomeBlank},
        // Precedence: missing before unneeded, unneeded before duplicates and order,
        // order before blank images.
        {Set({32, 48}), MissingFormats},
        {Set({16, 32, 8, 8}), UnneededFormats},
        {Set({-16, 32}), NotSorted},
    };
    for (const auto& [set, state] : cases)
        EXPECT_EQ(ExamineSet(set, kRules), state) << static_cast<int>(state);
    // A custom set skips missing and unneeded formats.
    EXPECT_EQ(ExamineSet(Set({48, 24}), {kRules.required, true}), Correct);
}

TEST(InspectorPanel, CursorsAndLargeSetsAreNotExaminedAndKeepThePanel) {
    Inspector inspector;
    inspector.Check(Set({32}), kRules);
    IconSet large;
    for (int i = 0; i < 26; ++i)
        Add(large, 32, 32);
    EXPECT_FALSE(inspector.Check(large, kRules));
    EXPECT_EQ(inspector.State(), MissingFormats);
    large.RemoveIcon(25);
    EXPECT_TRUE(inspector.Check(large, kRules));  // LastIcon 24 is still examined

    inspector.Check(Set({32}), kRules);
    IconSet cursor = Set({32, 16});
    for (const FileMode mode : {FileMode::CUR, FileMode::ANI}) {
        cursor.mode = mode;
        EXPECT_FALSE(inspector.Check(cursor, kRules));
        EXPECT_EQ(inspector.State(), MissingFormats);
    }
}

struct InspectorFixes : ::testing::Test {
    test::EditorFixture f;
    Editor& editor = f.editor;
    InspectorController& inspector = editor.Inspector();
    const IconSet& set = editor.Set();
    // Opens `opened` in the editor and checks it against `required`.
    InspectorState Check(const IconSet& opened,
                         std::vector<TemplateEntry> required = kRules.required) {
        f.Open(opened);
        inspector.SetRequiredFormats(std::move(required));
        return inspector.Panel().state;
    }
};

TEST_F(InspectorFixes, AddIconsInsertsBlankFormatsInOrderThenCopyImageFillsThem) {
    ASSERT_EQ(Check(test::SolidSet(32, 32, PackColor(200, 0, 0)),
                    {Entry(48, 32), Entry(32, 32), Entry(16, 32)}),
              MissingFormats);
    EXPECT_TRUE(inspector.Fix());
    ASSERT_EQ(set.Count(), 3);
    EXPECT_EQ(std::pair(set.Info(0).Width(), set.Info(2).Width()), std::pair(48, 16));
    EXPECT_EQ(inspector.Panel().state, SomeBlank);
    EXPECT_FALSE(editor.Document().Unmodified());

    EXPECT_TRUE(inspector.Fix());
    EXPECT_EQ(inspector.Panel().state, Correct);
    EXPECT_EQ(std::tuple(set.Image(0).Color(47, 47), set.Image(0).Alpha(47, 47),
                         set.Image(2).Color(0, 0)),
              std::tuple(PackColor(200, 0, 0), 255, PackColor(200, 0, 0)));
}

TEST_F(InspectorFixes, SortKeepsTheCurrentImageCurrentAndShowPointsAtDuplicates) {
    ASSERT_EQ(Check(Set({16, 32})), NotSorted);
    editor.SelectImage(0);
    EXPECT_TRUE(inspector.Fix());
    EXPECT_EQ(editor.CurrentIcon(), 1);
    EXPECT_EQ(editor.CurrentImage().info.Width(), 16);
    EXPECT_EQ(inspector.Panel().state, Correct);

    // Duplicates cannot be fixed: Show points at them.
    ASSERT_EQ(Check(Set({32, 32, 16})), DuplicateFormats);
    EXPECT_FALSE(inspector.Fix());
    EXPECT_EQ(inspector.HighlightedImages(), (std::vector<int>{0, 1}));
    EXPECT_EQ(editor.CurrentIcon(), 1);
}

TEST_F(InspectorFixes, RemoveAsksFirstAndOnlyYesDeletes) {
    ASSERT_EQ(Check(Set({32, 24, 16})), UnneededFormats);
    f.presenter.answer = MessageAnswer::No;
    EXPECT_FALSE(inspector.Fix());
    EXPECT_EQ(set.Count(), 3);
    EXPECT_EQ(inspector.Panel().state, UnneededFormats);
    EXPECT_EQ(f.presenter.Keys(), std::vector<std::string>{"ExtraFormats"});
    EXPECT_EQ(f.presenter.shown[0].buttons, MessageButtons::YesNo);

    f.presenter.answer = MessageAnswer::Yes;
    EXPECT_TRUE(inspector.Fix());
    EXPECT_EQ(set.Count(), 2);
    EXPECT_EQ(inspector.Panel().state, Correct);
}

}  // namespace
}  // namespace iw
