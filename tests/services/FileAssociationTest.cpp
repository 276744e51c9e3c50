// The registry associations against a registry in memory, and the start-up check.
#include <gtest/gtest.h>

#include <map>

#include "services/desktop/AssociationCheck.h"
#include "services/desktop/RegistryAssociations.h"
#include "services/desktop/TextCase.h"
#include "support/TestSupport.h"

namespace iw {
namespace {

using platform::RegistryRoot;

// HKEY_CURRENT_USER and the machine's classes; HKEY_CLASSES_ROOT shows the user's classes
// over the machine's. Names compare without regard to case, as in the registry.
class MemoryRegistry final : public IRegistry {
  public:
    using Keys = std::map<std::string, std::optional<std::string>>;

    bool CreateKey(RegistryRoot root, const std::string& path) override {
        if (root != RegistryRoot::CurrentUser) return false;
        user.try_emplace(Lower(path));
        return true;
    }
    bool SetDefaultValue(RegistryRoot root, const std::string& path,
                         const std::string& value) override {
        const auto key = user.find(Lower(path));
        if (root != RegistryRoot::CurrentUser || key == user.end()) return false;
        key->second = value;
        return true;
    }
    std::optional<std::string> DefaultValue(RegistryRoot root, const std::string& path) override {
        ++reads;
        const Keys& keys = root == RegistryRoot::CurrentUser ? user : machineClasses;
        if (root == RegistryRoot::ClassesRoot) {
            const auto mine = user.find(Lower("Software\\Classes\\" + path));
            if (mine != user.end() && mine->second) return mine->second;
        }
        const auto key = keys.find(Lower(path));
        return key == keys.end() ? std::nullopt : key->second;
    }
    void NotifyAssociationsChanged() override { ++notifications; }

    static std::string Lower(std::string text) {
        for (char& c : text)
            c = LowerAscii(c);
        return text;
    }

    Keys user;
    Keys machineClasses;  // HKEY_LOCAL_MACHINE\Software\Classes
    int reads = 0;
    int notifications = 0;
};

const FileType& Icon() {
    return *FindFileType("ico");
}

TEST(RegistryAssociations, RegisterWritesTheUsersClassesOnceHoweverOftenItRuns) {
    MemoryRegistry registry;
    RegistryAssociations associations(registry, "C:\\Program Files\\Iconwright\\");
    ASSERT_TRUE(associations.Register(*FindFileType("ANI")));
    const MemoryRegistry::Keys expected = {
        {"software\\classes\\.ani", "Quorvale.Iconwright.AnimatedCursor"},
        {"software\\classes\\quorvale.iconwright.animatedcursor", "Animated Cursor"},
        {"software\\classes\\quorvale.iconwright.animatedcursor\\defaulticon", "%1"},
        {"software\\classes\\quorvale.iconwright.animatedcursor\\shell", std::nullopt},
        {"software\\classes\\quorvale.iconwright.animatedcursor\\shell\\open", std::nullopt},
        {"software\\classes\\quorvale.iconwright.animatedcursor\\shell\\open\\command",
         "C:\\Program Files\\Iconwright\\iconwright.exe %1"},
    };
    EXPECT_EQ(registry.user, expected);
    EXPECT_EQ(registry.notifications, 1);
    ASSERT_TRUE(associations.Register(*FindFileType("ani")));
    EXPECT_EQ(registry.user, expected);
    EXPECT_EQ(registry.notifications, 2);
    EXPECT_TRUE(associations.IsDefault(*FindFileType("ani")));
    EXPECT_FALSE(associations.IsDefault(Icon()));
}

TEST(RegistryAssociations, CheckComparesTheFourValuesOfTheMergedView) {
    const std::string command = "C:\\Tools\\iconwright.exe %1";
    struct Case {
        const char* what;
        std::string key;  // under the classes, changed in the machine's
        std::optional<std::string> value;
        bool isDefault;
    };
    const Case cases[] = {
        {"the machine's classes as written", "", std::nullopt, true},
        {"names and paths in another case", "quorvale.iconwright.icon\\shell\\open\\command",
         "c:\\tools\\ICONWRIGHT.EXE %1", true},
        {"type name in small letters", "Quorvale.Iconwright.Icon", "icon", true},
        {"another program id", ".ico", "Other.Icon", false},
        {"another type name", "Quorvale.Iconwright.Icon", "Icon File", false},
        {"another default icon", "Quorvale.Iconwright.Icon\\DefaultIcon", "%1,0", false},
        {"another command", "Quorvale.Iconwright.Icon\\Shell\\Open\\Command",
         "C:\\Other\\iconwright.exe %1", false},
        {"no command", "Quorvale.Iconwright.Icon\\Shell\\Open\\Command", std::nullopt, false},
    };
    for (const Case& c : cases) {
        MemoryRegistry registry;
        registry.machineClasses = {
            {".ico", "Quorvale.Iconwright.Icon"},
            {"quorvale.iconwright.icon", "Icon"},
            {"quorvale.iconwright.icon\\defaulticon", "%1"},
            {"quorvale.iconwright.icon\\shell\\open\\command", command},
        };
        if (!c.key.empty()) registry.machineClasses[MemoryRegistry::Lower(c.key)] = c.value;
        RegistryAssociations associations(registry, "C:\\Tools");
        EXPECT_EQ(associations.IsDefault(Icon()), c.isDefault) << c.what;
    }
}

TEST(RegistryAssociations, TheUsersClassesOverrideTheMachines) {
    MemoryRegistry registry;
    RegistryAssociations associations(registry, "C:\\Tools");
    registry.machineClasses[".ico"] = "Other.Icon";
    associations.Register(Icon());
    EXPECT_TRUE(associations.IsDefault(Icon()));
    registry.user["software\\classes\\.ico"] = "Paint.Icon";
    EXPECT_FALSE(associations.IsDefault(Icon()));
}

// Answers from a table and records what it was asked.
class FakeAssociations final : public IFileAssociations {
  public:
    bool Register(const FileType& type) override {
        registered.emplace_back(type.word);
        return true;
    }
    bool IsDefault(const FileType& type) override {
        checked.emplace_back(type.word);
        return type.word == "cur";  // the program is the default of cursors only
    }
    std::vector<std::string> registered;
    std::vector<std::string> checked;
};

TEST(StartupCheck, AsksForEachTypeThatIsNotOursAndRegistersOnYes) {
    test::MessageFixture f;
    XmlStore settings;
    FakeAssociations associations;
    f.presenter.answer = MessageAnswer::Yes;
    CheckFileAssociations(associations, settings, f.service);
    EXPECT_EQ(associations.checked, (std::vector<std::string>{"ico", "cur", "ani"}));
    EXPECT_EQ(associations.registered, (std::vector<std::string>{"ico", "ani"}));
    EXPECT_EQ(f.presenter.Keys(), (std::vector<std::string>{"ICOFileType", "ANIFileType"}));
    EXPECT_EQ(f.presenter.shown[0].buttons, MessageButtons::YesNo);

    f.presenter.answer = MessageAnswer::No;
    associations.registered.clear();
    CheckFileAssociations(associations, settings, f.service);
    EXPECT_TRUE(associations.registered.empty());
}

TEST(StartupCheck, ATypeSwitchedOffOrATurnedOffQuestionIsLeftAlone) {
    test::MessageFixture f;
    XmlStore settings;
    FakeAssociations associations;
    FileTypePresenter window(settings);
    EXPECT_EQ(window.Load(), (std::array<bool, 3>{true, true, true}));
    window.Save({false, true, true});
    EXPECT_EQ(settings.GetValue("Settings\\CheckICO", ""), "False");
    EXPECT_EQ(window.Load(), (std::array<bool, 3>{false, true, true}));
    f.store.SetBool("Messages\\ANIFileType", true);
    f.presenter.answer = MessageAnswer::Yes;
    CheckFileAssociations(associations, settings, f.service);
    // The icon type is not even read; the animated cursor's question is not shown and, unseen,
    // registers nothing.
    EXPECT_EQ(associations.checked, (std::vector<std::string>{"cur"}));
    EXPECT_TRUE(f.presenter.shown.empty());
    EXPECT_TRUE(associations.registered.empty());
}

TEST(StartupCheck, FileTypesOkRegistersTheCheckedTypesThatAreNotOursYet) {
    XmlStore settings;
    FakeAssociations associations;
    FileTypePresenter window(settings);
    EXPECT_TRUE(window.Ok({true, true, false}, associations));
    EXPECT_EQ(associations.registered, (std::vector<std::string>{"ico"}));
    EXPECT_EQ(window.Load(), (std::array<bool, 3>{true, true, false}));
}

TEST(StartupCheck, WithTheCheckOffTheRegistryIsNotRead) {
    test::MessageFixture f;
    XmlStore settings;
    FileTypePresenter(settings).Save({false, false, false});
    MemoryRegistry registry;
    RegistryAssociations associations(registry, "C:\\Tools");
    CheckFileAssociations(associations, settings, f.service);
    EXPECT_EQ(registry.reads, 0);
    EXPECT_TRUE(f.presenter.shown.empty());
}

}  // namespace
}  // namespace iw
