// Edit requests from other programs, on real files: the request file is read, Save writes
// the requested icon, and the answer lands in the request file when the request ends.
#include <gtest/gtest.h>

#include "EditorFakes.h"

namespace iw {
namespace {

struct EditRequest : ::testing::Test {
    // Writes a request for `icon` and returns its path.
    std::string Request(const std::string& icon, const std::string& name = "request.xml") {
        XmlStore request;
        request.SetFilePath(f.temp / name);
        request.SetValue("Request\\Program", "Paint & Co");
        request.SetValue("Request\\File", icon);
        EXPECT_TRUE(request.Save());
        return (f.temp / name).string();
    }
    // The answer in a request file: Result, then SavedPath, then the program (kept).
    std::string Answer(const std::string& requestFile) {
        XmlStore request;
        request.Load(requestFile);
        return request.GetValue("Request\\Result", "-") + " " +
               request.GetValue("Request\\SavedPath", "-") + " " +
               request.GetValue("Request\\Program", "-");
    }

    test::BasicEditorFixture<FileDocumentStore> f;
    Editor& editor = f.editor;
};

TEST_F(EditRequest, SaveWritesTheRequestedIconAndTheEndOfTheRequestAnswers) {
    const std::string icon = f.WriteIcon("app.ico", test::SolidSet(16, 32, PackColor(9, 9, 9)));
    const std::string request = Request(icon);
    editor.RunStartup(request, f.folders);
    EXPECT_EQ(f.view.editRequestText, "You are editing an icon for Paint & Co");
    EXPECT_EQ(editor.Document().FileName(), icon);
    f.Draw({1, 1});
    ASSERT_TRUE(editor.Document().Save());
    EXPECT_EQ(Answer(request), "- - Paint & Co");  // not answered before the end
    editor.Shutdown();
    EXPECT_EQ(Answer(request), "Saved " + icon + " Paint & Co");
    IconSet saved;
    test::CoreFixture core;
    ASSERT_TRUE(f.documents.Read(icon, saved, core.context));
    EXPECT_EQ(saved.Image(0).Color(1, 1), PackColor(0, 0, 0));

    // A missing file starts in its mode; Save As elsewhere and another document end it.
    const std::string cursor = f.PathFor("new.cur");
    const std::string second = Request(cursor, "second.xml");
    ASSERT_TRUE(editor.HandleCommandLine(second));
    EXPECT_EQ(editor.Document().Caption(), "new.cur - Quorvale Iconwright");
    EXPECT_EQ(editor.Document().Mode(), FileMode::CUR);
    f.observer.events.clear();
    ASSERT_TRUE(editor.Document().SaveAs(f.PathFor("elsewhere.cur")));
    EXPECT_EQ(f.observer.events["editRequest"], 1);
    EXPECT_EQ(Answer(second), "Cancelled  Paint & Co");
    EXPECT_FALSE(std::filesystem::exists(cursor));
    const std::string third = Request(cursor, "third.xml");
    ASSERT_TRUE(editor.HandleCommandLine(third));
    ASSERT_TRUE(editor.Document().SaveAs(cursor));
    ASSERT_TRUE(editor.Document().NewDocument());
    EXPECT_EQ(editor.Document().EditRequest(), "");
    EXPECT_EQ(f.view.editRequestText, "");  // the banner goes with the request
    EXPECT_EQ(Answer(third), "Saved " + cursor + " Paint & Co");
}

TEST_F(EditRequest, AFileThatIsNoRequestIsReportedAndLeftAlone) {
    const std::vector<std::uint8_t> notXml = {'<', 'X', 'M', 'L', '>', '<', '/'};
    test::WriteFileBytes(f.temp / "bad.xml", notXml);
    const std::string noFile = Request("", "nofile.xml");
    for (const std::string& bad : {(f.temp / "bad.xml").string(), noFile, f.PathFor("no.xml")}) {
        f.presenter.shown.clear();
        EXPECT_FALSE(editor.HandleCommandLine(bad));
        ASSERT_EQ(f.presenter.shown.size(), 1u);
        EXPECT_TRUE(f.presenter.shown[0].text.ends_with("\n" + bad));
    }
    EXPECT_EQ(test::ReadFileBytes(f.temp / "bad.xml"), notXml);
    EXPECT_EQ(Answer(noFile), "- - Paint & Co");
}

}  // namespace
}  // namespace iw
