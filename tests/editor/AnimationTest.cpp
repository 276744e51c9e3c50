// An animated cursor's own windows without the windows: the rates in jiffies and seconds,
// the sequence editor's film strip and what its OK stores, the player, the properties with
// the default rate, and the notices at open, through the real writer and reader.
#include <gtest/gtest.h>

#include "EditorFakes.h"
#include "document/io/AnimatedCursor.h"
#include "editor/AnimationCommands.h"

namespace iw {
namespace {

// An animated cursor of `rates.size()` 16 x 16 frames with these rates.
IconSet Frames(const std::vector<int>& rates, std::string sequence = "", bool inUse = false) {
    IconSet set;
    set.mode = FileMode::ANI;
    for (int rate : rates)
        set.Info(set.AddIcon(15, 15, 32)).rate = static_cast<std::int16_t>(rate);
    set.properties.sequence = std::move(sequence);
    set.animation.sequenceInUse = inUse;
    return set;
}

TEST(AnimationRates, JiffiesAndSecondsBothWays) {
    struct Case {
        int jiffies;
        const char* seconds;
    };
    for (const Case& c : {Case{0, "0"}, Case{10, "0.167"}, Case{30, "0.5"}, Case{60, "1"},
                          Case{61, "1.017"}, Case{kMaxRate, "546.117"}}) {
        EXPECT_EQ(RateText(c.jiffies, RateUnit::Seconds), c.seconds);
    }
    // Every rate comes back unchanged through either unit's text.
    for (int jiffies = 0; jiffies <= kMaxRate; ++jiffies) {
        for (RateUnit unit : {RateUnit::Jiffies, RateUnit::Seconds})
            ASSERT_EQ(RateFromText(RateText(jiffies, unit), unit), jiffies) << jiffies;
    }
    // Typed seconds round to the nearest jiffy, halves to even.
    EXPECT_EQ(RateFromText(" 0.1 ", RateUnit::Seconds), 6);
    EXPECT_EQ(RateFromText("0.025", RateUnit::Seconds), 2);  // 1.5 jiffies
    EXPECT_EQ(RateFromText("0.0083", RateUnit::Seconds), 0);
    for (const char* bad : {"", "abc", "-1", "32768", "1.5", "1e3", "10 0"})
        EXPECT_FALSE(RateFromText(bad, RateUnit::Jiffies)) << bad;
    for (const char* bad : {"", "-0.1", "546.13", "1e9", "1,5", "nan", "inf"})
        EXPECT_FALSE(RateFromText(bad, RateUnit::Seconds)) << bad;
}

TEST(SequenceEditor, TheFilmStripStartsFromTheSequenceOrFromEveryFrame) {
    test::MessageFixture m;
    EXPECT_EQ(SequenceEditor(Frames({1, 1, 1}), m.service).Steps(), (std::vector<int>{0, 1, 2}));
    // Frames that are not there, and what is no number, are left out.
    const SequenceEditor kept(Frames({1, 1, 1}, "2,7,x,0,2,", true), m.service);
    EXPECT_EQ(kept.Steps(), (std::vector<int>{2, 0, 2}));
    EXPECT_EQ(SequenceEditor(Frames({1, 1}, "9,", true), m.service).Steps(),
              (std::vector<int>{0, 1}));
}

TEST(SequenceEditor, InsertMoveAndRemoveWorkOnGaps) {
    test::MessageFixture m;
    enum Op { Insert, Move, Remove };
    struct Case {
        Op op;
        int a, b;
        bool done;
        std::vector<int> after;
    };
    // Each case starts from the film strip 0, 1, 2 over three frames.
    const Case cases[] = {
        {Insert, 2, 0, true, {2, 0, 1, 2}}, {Insert, 1, 3, true, {0, 1, 2, 1}},
        {Insert, 0, 1, true, {0, 0, 1, 2}}, {Insert, 3, 0, false, {0, 1, 2}},
        {Insert, 0, 4, false, {0, 1, 2}},   {Insert, -1, 0, false, {0, 1, 2}},
        {Move, 0, 3, true, {1, 2, 0}},      {Move, 2, 0, true, {2, 0, 1}},
        {Move, 0, 2, true, {1, 0, 2}},      {Move, 2, 1, true, {0, 2, 1}},
        {Move, 1, 1, false, {0, 1, 2}},     {Move, 1, 2, false, {0, 1, 2}},
        {Move, 3, 0, false, {0, 1, 2}},     {Move, 0, 4, false, {0, 1, 2}},
        {Remove, 1, 0, true, {0, 2}},       {Remove, 3, 0, false, {0, 1, 2}},
        {Remove, -1, 0, false, {0, 1, 2}},
    };
    for (const Case& c : cases) {
        SequenceEditor editor(Frames({1, 1, 1}), m.service);
        const bool done = c.op == Insert ? editor.Insert(c.a, c.b)
                          : c.op == Move ? editor.Move(c.a, c.b)
                                         : editor.Remove(c.a);
        EXPECT_EQ(done, c.done) << c.op << " " << c.a << " " << c.b;
        EXPECT_EQ(editor.Steps(), c.after) << c.op << " " << c.a << " " << c.b;
    }
}

TEST(SequenceEditor, OkStoresTheFilmStripTheFlagAndTheRateOfEveryStep) {
    test::MessageFixture m;
    SequenceEditor editor(Frames({5, 10, 15}), m.service);
    ASSERT_TRUE(editor.Remove(0));
    ASSERT_TRUE(editor.Insert(1, 2));  // 1, 2, 1
    EXPECT_EQ(editor.Ok(), (SequenceChoice{"1,2,1,", false, "5|10|15"}));
    editor.SetUseSequence(true);
    EXPECT_EQ(editor.Ok(), (SequenceChoice{"1,2,1,", true, "10|15|10"}));
    // An empty film strip plays the frames in order.
    for (int i = 0; i < 3; ++i)
        ASSERT_TRUE(editor.Remove(0));
    EXPECT_EQ(editor.Ok(), (SequenceChoice{"", false, "5|10|15"}));
    EXPECT_TRUE(m.presenter.shown.empty());

    // One frame: the sequence option is refused, playing in order is not.
    SequenceEditor single(Frames({4}), m.service);
    single.SetUseSequence(true);
    EXPECT_EQ(single.Ok(), std::nullopt);
    EXPECT_EQ(m.presenter.Keys(), std::vector<std::string>{"SeqFrame"});
    single.SetUseSequence(false);
    EXPECT_EQ(single.Ok(), (SequenceChoice{"0,", false, "4"}));
}

TEST(AnimationPlayer, PlaysTheSequenceWithEachFramesRateRoundAndRound) {
    const IconSet set = Frames({6, 12, 0}, "2,0,5,1,0,", true);
    EXPECT_EQ(PlayedSteps(set), (std::vector<AnimationStep>{{2, 0}, {0, 6}, {1, 12}, {0, 6}}));
    EXPECT_EQ(PlayedSteps(Frames({6, 12}, "1,", false)),
              (std::vector<AnimationStep>{{0, 6}, {1, 12}}));

    AnimationPlayer player(set);
    EXPECT_TRUE(player.Playing());
    std::vector<std::pair<int, int>> shown;
    for (int i = 0; i < 6; ++i) {
        shown.emplace_back(player.Frame(), player.Milliseconds());
        player.Advance();
    }
    EXPECT_EQ(shown, (std::vector<std::pair<int, int>>{
                         {2, 17}, {0, 100}, {1, 200}, {0, 100}, {2, 17}, {0, 100}}));
    player.StepBack();
    player.StepBack();
    player.StepBack();  // back past the first step to the last
    EXPECT_EQ(player.Step(), 3);
    EXPECT_FALSE(player.Playing());

    AnimationPlayer empty{std::vector<AnimationStep>{}};
    empty.Advance();
    empty.StepBack();
    EXPECT_EQ(empty.Frame(), -1);
    EXPECT_FALSE(empty.Playing());
}

TEST(AnimationProperties, TheDefaultRateCarriesItsFollowersUntilTheyGoTheirOwnWay) {
    test::MessageFixture m;
    IconSet set = Frames({10, 10, 20, 10});
    set.properties.name = "Busy";
    AnimationProperties properties(set, m.service);
    properties.SetRateText(3, "30");
    properties.SetDefaultRateText("1");
    properties.SetDefaultRateText("12");  // typed on: frame 3's own rate stays
    EXPECT_EQ(properties.RateText(3), "30");
    properties.SetRateText(0, "6");  // the first frame's rate is the default rate
    EXPECT_EQ(properties.RateText(1), "6");

    properties.SetUnit(RateUnit::Seconds);
    EXPECT_EQ(properties.DefaultRateText(), "0.1");
    EXPECT_EQ(properties.RateText(2), "0.333");
    properties.SetRateText(2, "0.25");
    properties.SetArtist("Ann");
    const auto values = properties.Ok();
    ASSERT_TRUE(values);
    EXPECT_EQ(*values, (AnimationPropertiesValues{"Busy", "Ann", {6, 6, 15, 30}}));

    // A rate that reads as none survives a change of unit and stops OK at its frame.
    properties.SetRateText(1, "0,5");
    properties.SetUnit(RateUnit::Jiffies);
    EXPECT_EQ(properties.RateText(1), "0,5");
    EXPECT_EQ(properties.RateText(2), "15");
    EXPECT_EQ(properties.Ok(), std::nullopt);
    EXPECT_EQ(properties.InvalidFrame(), 1);
    EXPECT_EQ(m.presenter.Keys(), std::vector<std::string>{"RateJiffies"});
}

TEST(AnimationCommands, OpeningTellsOfSequenceAndInfoAndChangesMarkTheSetModified) {
    test::BasicEditorFixture<FileDocumentStore> f;
    f.editor.RunStartup("", f.folders);
    IconSet set = Frames({5, 10, 15}, "0,1,2,1,", true);
    set.properties.artist = "Ann";
    CoreContext context{f.editor.Settings().Messages(), f.progress, f.log};
    const std::string path = f.PathFor("busy.ani");
    ASSERT_TRUE(WriteAnimatedCursor(path, set, context));
    f.presenter.shown.clear();
    ASSERT_TRUE(f.editor.Document().OpenDocument(path));
    EXPECT_EQ(f.presenter.Keys(), (std::vector<std::string>{"SeqANI", "ANIInfo"}));
    ASSERT_TRUE(f.editor.Animation().Offered());

    // OK without a change changes nothing.
    SequenceEditor sequence = f.editor.Animation().EditSequence();
    EXPECT_FALSE(f.editor.Animation().ApplySequence(*sequence.Ok()));
    EXPECT_TRUE(f.editor.Document().Unmodified());
    ASSERT_TRUE(sequence.Move(3, 0));  // 1, 0, 1, 2
    EXPECT_TRUE(f.editor.Animation().ApplySequence(*sequence.Ok()));
    EXPECT_FALSE(f.editor.Document().Unmodified());
    EXPECT_EQ(f.editor.Set().animation.ratesText, "10|5|10|15");

    AnimationProperties properties = f.editor.Animation().EditProperties();
    properties.SetArtist("");
    properties.SetRateText(2, "20");
    EXPECT_TRUE(f.editor.Animation().ApplyProperties(*properties.Ok()));

    // Saved and opened again: the sequence and rates are what the windows stored, and
    // without name or artist only the sequence is told of.
    ASSERT_TRUE(f.editor.Document().Save());
    f.presenter.shown.clear();
    ASSERT_TRUE(f.editor.Document().OpenDocument(path));
    EXPECT_EQ(f.presenter.Keys(), std::vector<std::string>{"SeqANI"});
    EXPECT_EQ(f.editor.Set().properties.sequence, "1,0,1,2,");
    EXPECT_EQ(f.editor.Set().animation.ratesText, "10|5|10|20");
    EXPECT_EQ(f.editor.Set().Info(2).rate, 20);

    f.editor.Document().SwitchICOMode();
    EXPECT_FALSE(f.editor.Animation().Offered());
}

}  // namespace
}  // namespace iw
