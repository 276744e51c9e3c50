#include <gtest/gtest.h>

#include <fstream>

#include "services/core/XmlStore.h"
#include "support/TestSupport.h"

namespace iw {
namespace {

TEST(XmlStore, EmptyStoreAndDefaultsOnEveryMissingStep) {
    XmlStore store;
    EXPECT_EQ(store.ToString(), "<XML></XML>");
    EXPECT_EQ(store.GetValue("Settings\\Width", "8000"), "8000");
    store.SetValue("Settings\\Width", "1234");
    EXPECT_EQ(store.GetValue("Settings\\Height", "8000"), "8000");
    EXPECT_EQ(store.GetValue("Other\\Width", "x"), "x");
    EXPECT_EQ(store.GetValue("Settings\\Width\\Deeper", "d"), "d");
    EXPECT_EQ(store.GetValue("", "e"), "e");
}

TEST(XmlStore, LeadingAndTrailingBackslashesAreIgnored) {
    XmlStore store;
    store.SetValue("\\Settings\\Grid\\", "True");
    EXPECT_EQ(store.GetValue("Settings\\Grid", "False"), "True");
    EXPECT_EQ(store.GetValue("\\Settings\\Grid", "False"), "True");
    EXPECT_EQ(store.ToString(),
              "<XML>\r\n<Settings>\r\n<Grid>True</Grid>\r\n</Settings>\r\n</XML>");
}

TEST(XmlStore, TheFiveEntitiesRoundTrip) {
    XmlStore store;
    const std::string value = "a&b<c>d\"e'f";
    store.SetValue("Settings\\RecentFile1", value);
    const std::string text = store.ToString();
    EXPECT_NE(text.find("a&amp;b&lt;c&gt;d&quot;e&apos;f"), std::string::npos);
    XmlStore again;
    again.LoadFromString(text);
    EXPECT_EQ(again.GetValue("Settings\\RecentFile1", ""), value);
}

TEST(XmlStore, WritingOverwritesAndKeepsSiblings) {
    XmlStore store;
    store.SetValue("Settings\\Width", "1");
    store.SetValue("Settings\\Height", "2");
    store.SetValue("Settings\\Width", "3");
    store.SetValue("Messages\\Bad16Icons", "True");
    EXPECT_EQ(store.GetValue("Settings\\Width", ""), "3");
    EXPECT_EQ(store.GetValue("Settings\\Height", ""), "2");
    EXPECT_EQ(store.GetValue("Messages\\Bad16Icons", ""), "True");
}

TEST(XmlStore, PathsThatCannotBeElementsAreNotWritten) {
    XmlStore store;
    store.SetValue("", "x");
    store.SetValue("\\\\", "x");
    store.SetValue("Settings\\Bad Name", "x");
    store.SetValue("Settings\\<evil>", "x");
    EXPECT_EQ(store.ToString(), "<XML></XML>");
}

TEST(XmlStore, BooleansReadTrueFalseAndNumbers) {
    XmlStore store;
    store.SetBool("Settings\\A", true);
    store.SetBool("Settings\\B", false);
    store.SetValue("Settings\\C", "-1");
    store.SetValue("Settings\\D", "0");
    store.SetValue("Settings\\E", "maybe");
    EXPECT_EQ(store.GetValue("Settings\\A", ""), "True");
    EXPECT_EQ(store.GetValue("Settings\\B", ""), "False");
    EXPECT_TRUE(store.GetBool("Settings\\A", false));
    EXPECT_FALSE(store.GetBool("Settings\\B", true));
    EXPECT_TRUE(store.GetBool("Settings\\C", false));
    EXPECT_FALSE(store.GetBool("Settings\\D", true));
    EXPECT_TRUE(store.GetBool("Settings\\E", true));
    EXPECT_FALSE(store.GetBool("Settings\\E", false));
    EXPECT_TRUE(store.GetBool("Settings\\Missing", true));
}

TEST(XmlStoreFile, MissingFileIsEmptyAndSaveWritesCrLfLayout) {
    test::TempDir dir;
    XmlStore store;
    EXPECT_TRUE(store.Load(dir / "settings.xml"));
    EXPECT_EQ(store.ToString(), "<XML></XML>");
    store.SetValue("Settings\\Pixelsize", "32");
    ASSERT_TRUE(store.Save());
    auto bytes = test::ReadFileBytes(dir / "settings.xml");
    EXPECT_EQ(std::string(bytes.begin(), bytes.end()),
              "<XML>\r\n<Settings>\r\n<Pixelsize>32</Pixelsize>\r\n</Settings>\r\n</XML>");
    XmlStore reread;
    ASSERT_TRUE(reread.Load(dir / "settings.xml"));
    EXPECT_EQ(reread.GetValue("Settings\\Pixelsize", ""), "32");
}

TEST(XmlStoreFile, MalformedFileReadsEmptyAndIsRewrittenOnSave) {
    test::TempDir dir;
    {
        std::ofstream out(dir / "messages.xml");
        out << "<XML><Messages><Bad16Icons>True</Messages>";
    }
    XmlStore store;
    EXPECT_FALSE(store.Load(dir / "messages.xml"));
    EXPECT_EQ(store.GetValue("Messages\\Bad16Icons", "False"), "False");
    store.SetValue("Messages\\CreateANI", "True");
    ASSERT_TRUE(store.Save());
    XmlStore reread;
    EXPECT_TRUE(reread.Load(dir / "messages.xml"));
    EXPECT_EQ(reread.GetValue("Messages\\CreateANI", ""), "True");
}

TEST(XmlStoreFile, StoreWithoutPathIsNotWritten) {
    XmlStore store;
    store.SetValue("Settings\\Grid", "True");
    EXPECT_FALSE(store.Save());
}

TEST(XmlStoreFile, ClearEmptiesTheStoreAndTheFileOnSave) {
    test::TempDir dir;
    XmlStore store;
    store.Load(dir / "messages.xml");
    store.SetValue("Messages\\Bad16Icons", "True");
    store.Save();
    store.Clear();
    ASSERT_TRUE(store.Save());
    auto bytes = test::ReadFileBytes(dir / "messages.xml");
    EXPECT_EQ(std::string(bytes.begin(), bytes.end()), "<XML></XML>");
}

}  // namespace
}  // namespace iw
