// Edit requests from other programs, on real files: the request file is read, Save writes
// the requested icon, and the answer lands in the request file when the request ends.
#include <gtest/gtest.h>

#include "EditorFakes.h"
#include "document/io/IconFileWriter.h"

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
    void Draw() {
        f.editor.Tools().SelectTool(ToolId::Pencil);
        f.Stroke({{1, 1}});
    }

    test::BasicEditorFixture<FileDocumentStore> f;
    Editor& editor = f.editor;
};

TEST_F(EditRequest, SaveWritesTheRequestedIconAndClosingAnswersSaved) {
    const std::string icon = f.PathFor("app.ico");
    test::MessageFixture messages;
    CoreContext context{messages.service, f.progress, f.log};
    ASSERT_TRUE(WriteIconFile(icon, test::SolidSet(16, 32, PackColor(9, 9, 9)), context));
    const std::string request = Request(icon);

    editor.RunStartup(request, f.folders);
    EXPECT_EQ(f.view.editRequestText, "You are editing an icon for Paint & Co");
    EXPECT_EQ(editor.Document().EditRequestText(), f.view.editRequestText);
    EXPECT_EQ(editor.Document().EditRequest(), request);
    EXPECT_EQ(editor.Document().FileName(), icon);
    Draw();
    ASSERT_TRUE(editor.Document().Save());
    EXPECT_EQ(Answer(request), "- - Paint & Co");  // not answered before the end
    ASSERT_TRUE(editor.QueryClose());
    editor.Shutdown();
    EXPECT_EQ(Answer(request), "Saved " + icon + " Paint & Co");
    EXPECT_EQ(editor.Document().EditRequest(), "");

    IconSet saved;
    ASSERT_TRUE(f.documents.Read(icon, saved, context));
    EXPECT_EQ(saved.Image(0).Color(1, 1), PackColor(0, 0, 0));
}

TEST_F(EditRequest, AMissingIconIsMadeInItsModeAndANewDocumentEndsTheRequestCancelled) {
    const std::string cursor = f.PathFor("new.cur");
    const std::string request = Request(cursor);
    editor.RunStartup(request, f.folders);
    EXPECT_EQ(editor.Document().Mode(), FileMode::CUR);
    EXPECT_EQ(editor.Document().Caption(), "new.cur - Quorvale Iconwright");
    EXPECT_FALSE(std::filesystem::exists(cursor));
    Draw();
    f.observer.events.clear();
    f.presenter.answer = MessageAnswer::No;
    ASSERT_TRUE(editor.Document().NewDocument());
    EXPECT_EQ(f.observer.events["editRequest"], 1);
    EXPECT_EQ(Answer(request), "Cancelled  Paint & Co");
    EXPECT_FALSE(std::filesystem::exists(cursor));
    editor.Shutdown();  // answered once only
    EXPECT_EQ(Answer(request), "Cancelled  Paint & Co");
}

TEST_F(EditRequest, SaveAsElsewhereEndsItAndABadRequestFileIsLeftAlone) {
    const std::string request = Request(f.PathFor("a.ico"));
    ASSERT_TRUE(editor.HandleCommandLine(request));
    ASSERT_TRUE(editor.Document().SaveAs(f.PathFor("a.ico")));
    ASSERT_TRUE(editor.Document().SaveAs(f.PathFor("elsewhere.ico")));
    EXPECT_EQ(Answer(request), "Saved " + f.PathFor("a.ico") + " Paint & Co");
    EXPECT_EQ(editor.Document().EditRequest(), "");

    const std::vector<std::uint8_t> notXml = {'<', 'X', 'M', 'L', '>', '<', '/'};
    test::WriteFileBytes(f.temp / "bad.xml", notXml);
    const std::string noFile = Request("", "nofile.xml");
    for (const std::string& bad : {(f.temp / "bad.xml").string(), noFile, f.PathFor("no.xml")}) {
        f.presenter.shown.clear();
        EXPECT_FALSE(editor.HandleCommandLine(bad));
        ASSERT_EQ(f.presenter.shown.size(), 1u);
        EXPECT_EQ(f.presenter.shown[0].text,
                  "This file cannot be found or the command is invalid.\n" + bad);
    }
    EXPECT_EQ(test::ReadFileBytes(f.temp / "bad.xml"), notXml);
    EXPECT_EQ(Answer(noFile), "- - Paint & Co");
    EXPECT_FALSE(std::filesystem::exists(f.PathFor("no.xml")));
}

}  // namespace
}  // namespace iw
