// The XML stores: paths, defaults, entities, booleans, the file layout and broken files.
#include <gtest/gtest.h>

#include "DesktopTestSupport.h"
#include "services/core/XmlStore.h"
#include "support/TestSupport.h"

namespace iw {
namespace {

TEST(XmlStore, PathsDefaultsAndSiblings) {
    XmlStore store;
    EXPECT_EQ(store.GetValue("Settings\\Width", "8000"), "8000");
    store.SetValue("\\Settings\\Width\\", "1");  // outer backslashes do not count
    store.SetValue("Settings\\Height", "2");
    store.SetValue("Settings\\Width", "3");
    for (const char* unwritable : {"", "\\\\", "Settings\\Bad Name", "Settings\\<evil>"})
        store.SetValue(unwritable, "x");
    EXPECT_EQ(store.ToString(),
              "<XML>\r\n<Settings>\r\n<Width>3</Width>\r\n<Height>2</Height>\r\n</Settings>\r\n"
              "</XML>");
    EXPECT_EQ(store.GetValue("\\Settings\\Height", ""), "2");
    for (const char* missing : {"Settings\\Depth", "Other\\Width", "Settings\\Width\\Deeper", ""})
        EXPECT_EQ(store.GetValue(missing, "d"), "d") << missing;
}

TEST(XmlStore, TheFiveEntitiesRoundTrip) {
    XmlStore store;
    const std::string value = "a&b<c>d\"e'f";
    store.SetValue("Settings\\RecentFile1", value);
    EXPECT_NE(store.ToString().find("a&amp;b&lt;c&gt;d&quot;e&apos;f"), std::string::npos);
    XmlStore again;
    again.LoadFromString(store.ToString());
    EXPECT_EQ(again.GetValue("Settings\\RecentFile1", ""), value);
}

TEST(XmlStore, BooleansReadTrueFalseAndNumbers) {
    XmlStore store;
    store.SetBool("Settings\\A", true);
    store.SetBool("Settings\\B", false);
    store.SetValue("Settings\\C", "-1");
    store.SetValue("Settings\\D", "0");
    store.SetValue("Settings\\E", "maybe");
    EXPECT_EQ(store.GetValue("Settings\\A", "") + store.GetValue("Settings\\B", ""), "TrueFalse");
    for (bool fallback : {false, true}) {
        EXPECT_EQ(
            std::tuple(
                store.GetBool("Settings\\A", fallback), store.GetBool("Settings\\B", fallback),
                store.GetBool("Settings\\C", fallback), store.GetBool("Settings\\D", fallback),
                store.GetBool("Settings\\E", fallback), store.GetBool("Settings\\F", fallback)),
            std::tuple(true, false, true, false, fallback, fallback));
    }
}

TEST(XmlStoreFile, SavesCrLfLayoutAndOnlyWithAPath) {
    test::TempDir dir;
    XmlStore store;
    store.SetValue("Settings\\Grid", "True");
    EXPECT_FALSE(store.Save());
    EXPECT_TRUE(store.Load(dir / "settings.xml"));  // missing: empty
    EXPECT_EQ(store.ToString(), "<XML></XML>");
    store.SetValue("Settings\\Pixelsize", "32");
    ASSERT_TRUE(store.Save());
    EXPECT_EQ(test::ReadText(dir / "settings.xml"),
              "<XML>\r\n<Settings>\r\n<Pixelsize>32</Pixelsize>\r\n</Settings>\r\n</XML>");
    XmlStore reread;
    ASSERT_TRUE(reread.Load(dir / "settings.xml"));
    EXPECT_EQ(reread.GetValue("Settings\\Pixelsize", ""), "32");
    store.Clear();
    ASSERT_TRUE(store.Save());
    EXPECT_EQ(test::ReadText(dir / "settings.xml"), "<XML></XML>");
}

TEST(XmlStoreFile, MalformedFileReadsEmptyAndIsRewrittenOnSave) {
    test::TempDir dir;
    const std::string broken = "<XML><Messages><Bad16Icons>True</Messages>";
    test::WriteFileBytes(dir / "messages.xml", {broken.begin(), broken.end()});
    XmlStore store;
    EXPECT_FALSE(store.Load(dir / "messages.xml"));
    EXPECT_EQ(store.GetValue("Messages\\Bad16Icons", "False"), "False");
    store.SetValue("Messages\\CreateANI", "True");
    ASSERT_TRUE(store.Save());
    XmlStore reread;
    EXPECT_TRUE(reread.Load(dir / "messages.xml"));
    EXPECT_EQ(reread.GetValue("Messages\\CreateANI", ""), "True");
}

}  // namespace
}  // namespace iw
