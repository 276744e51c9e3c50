// The user guide has a place for every help topic the tool bar names.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "editor/ToolTable.h"
#include "support/TestSupport.h"

namespace iw::test {
namespace {

std::string ReadText(const std::filesystem::path& file) {
    std::ifstream in(file);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

TEST(HelpGuide, EveryToolsHelpTopicIsAnAnchorOfTheToolsPage) {
    const std::string tools = ReadText(TestDataPath("../../docs/help/tools.htm"));
    int topics = 0;
    for (const ToolInfo& tool : AllTools()) {
        if (tool.helpTopic.empty()) continue;
        ++topics;
        EXPECT_NE(tools.find("id=\"" + std::string(tool.helpTopic) + "\""), std::string::npos)
            << tool.helpTopic;
    }
    EXPECT_GT(topics, 0);
    EXPECT_FALSE(ReadText(TestDataPath("../../docs/help/Animated Cursors.htm")).empty());
}

}  // namespace
}  // namespace iw::test
