// Preferences in a file: what is stored outlives the program, and whatever is wrong with the file, the old
// one stays whole and somebody is told why.

#include "PreferencesTest.h"

#include "host/FaultPoints.h"
#include "support/OrdinaryUser.h"
#include "support/TemporaryFolder.h"

#include <csignal>
#include <filesystem>
#include <gmock/gmock.h>
#include <limits>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* sound = "version = 1\npanel = 120 80 640 670\n";

// No file can become longer than that while this lives, as on a disk that is full.
class FullDisk {
  public:
    explicit FullDisk(rlim_t iBytes) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &_before);
        const rlimit limit = {iBytes, _before.rlim_max};
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    }
    ~FullDisk() {
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &_before), 0);
        std::signal(SIGXFSZ, SIG_DFL);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    rlimit _before = {};
};

class FilePreferencesTest : public PreferencesTest {
  protected:
    FilePreferencesTest() { fs::permissions(_folder.Path(), fs::perms::all); }

    std::string File() const { return (_folder.Path() / "preferences").string(); }
    void Keep() { host::Preferences::KeepInFile(File()); }
    // As the next start of the program finds it.
    std::optional<Rectangle> StoredAtNextStart() {
        Keep();
        return Stored();
    }
    // Names of everything in the folder.
    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(_folder.Path()))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }
    // Neither reads nor writes, keeps iContent as it is, and says iReason of the file.
    void ExpectLeftAlone(const std::string& iContent, const std::string& iReason) {
        _folder.Write("preferences", iContent);
        Keep();
        const std::string problem = "The preferences file '" + File() + "' " + iReason + ".";
        EXPECT_EQ(Stored(), std::nullopt) << iContent;
        EXPECT_EQ(host::Preferences::Problem(), problem);
        EXPECT_FALSE(Store({1, 2, 3, 4})) << iContent;
        EXPECT_EQ(host::Preferences::Problem(), problem);
        EXPECT_EQ(_folder.Read("preferences"), iContent);
        EXPECT_EQ(Names(), (std::vector<std::string>{"preferences"}));
    }

    support::TemporaryFolder _folder;
};

using Names = std::vector<std::string>;

TEST_F(FilePreferencesTest, HoldNothingWithoutAFileAndMakeNone) {
    Keep();
    EXPECT_EQ(host::Preferences::Place(), File());
    EXPECT_EQ(Stored(), std::nullopt);
    EXPECT_EQ(host::Preferences::Problem(), "");
    EXPECT_EQ(Names(), ::Names());
}

TEST_F(FilePreferencesTest, OutliveTheProgram) {
    const int most = std::numeric_limits<int>::max();
    const int least = std::numeric_limits<int>::min();
    for (const Rectangle& rectangle :
         {Rectangle{120, 80, 640, 670}, Rectangle{-5, 0, 1, -1}, Rectangle{most, least, most, least}}) {
        Keep();
        EXPECT_TRUE(Store(rectangle));
        EXPECT_EQ(Stored(), rectangle);
        EXPECT_EQ(StoredAtNextStart(), rectangle);
        EXPECT_EQ(host::Preferences::Problem(), "");
    }
    EXPECT_EQ(Names(), ::Names({"preferences"}));
}

TEST_F(FilePreferencesTest, AreAFileThatAPersonCanRead) {
    Keep();
    Store({120, 80, 640, 670});
    EXPECT_EQ(_folder.Read("preferences"), sound);
}

TEST_F(FilePreferencesTest, MakeMissingFoldersForTheUserAlone) {
    const fs::path file = _folder.Path() / "config" / "kelvane" / "preferences";
    host::Preferences::KeepInFile(file.string());
    EXPECT_TRUE(Store({1, 2, 3, 4}));
    EXPECT_EQ(Stored(), (Rectangle{1, 2, 3, 4}));
    EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(fs::status(file.parent_path()).permissions(), fs::perms::owner_all);
    EXPECT_EQ(fs::status(file.parent_path().parent_path()).permissions(), fs::perms::owner_all);
    EXPECT_EQ(fs::status(_folder.Path()).permissions(), fs::perms::all) << "a folder that was there";
}

TEST_F(FilePreferencesTest, StayWhereTheyAreWhenTheProgramGoesElsewhere) {
    const fs::path before = fs::current_path();
    fs::current_path(_folder.Path());
    host::Preferences::KeepInFile("preferences");
    fs::current_path(before);
    EXPECT_EQ(host::Preferences::Place(), File());
    EXPECT_TRUE(Store({1, 2, 3, 4}));
    EXPECT_EQ(StoredAtNextStart(), (Rectangle{1, 2, 3, 4}));
}

TEST_F(FilePreferencesTest, WriteAChangedValueAlone) {
    Keep();
    Store({1, 2, 3, 4});
    struct stat before = {};
    ASSERT_EQ(stat(File().c_str(), &before), 0);
    fs::create_hard_link(File(),
                         _folder.Path() / "same"); // keeps the number of the file from being used again
    EXPECT_TRUE(Store({1, 2, 3, 4}));
    struct stat after = {};
    ASSERT_EQ(stat(File().c_str(), &after), 0);
    EXPECT_EQ(after.st_ino, before.st_ino);
    EXPECT_TRUE(Store({1, 2, 3, 5}));
    ASSERT_EQ(stat(File().c_str(), &after), 0);
    EXPECT_NE(after.st_ino, before.st_ino) << "a new file took its place";
    EXPECT_EQ(_folder.Read("same"), "version = 1\npanel = 1 2 3 4\n") << "the old one was not written to";
}

TEST_F(FilePreferencesTest, ReadLinesThatEndAsOnOtherSystems) {
    _folder.Write("preferences", "version = 1\r\npanel = 120 80 640 670\r\n");
    EXPECT_EQ(StoredAtNextStart(), (Rectangle{120, 80, 640, 670}));
}

TEST_F(FilePreferencesTest, LeaveAFileAloneThatIsCutOffAnywhere) {
    const std::string whole = sound;
    _folder.Write("preferences", whole);
    ASSERT_EQ(StoredAtNextStart(), (Rectangle{120, 80, 640, 670}));
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const std::string cut = whole.substr(0, length);
        const std::string reason = length == 0                         ? "is empty"
                                   : length < sizeof "version = 1" - 1 ? "has no version in line 1"
                                                                       : "is cut off";
        ExpectLeftAlone(cut, reason);
    }
}

TEST_F(FilePreferencesTest, LeaveAFileAloneThatComesFromANewerVersion) {
    const char* const reason = "comes from a newer version of the program";
    ExpectLeftAlone("version = 2\npanel = 120 80 640 670\n", reason);
    ExpectLeftAlone("version = 2147483647\n{\"other\": \"form\"}", reason);
    ExpectLeftAlone("version = 2\n", reason);
}

TEST_F(FilePreferencesTest, LeaveAFileAloneThatMakesNoSense) {
    const char* const version = "has no version in line 1";
    for (const char* content :
         {"\n", "panel = 120 80 640 670\n", "version = 0\npanel = 1 2 3 4\n",
          "version = -1\npanel = 1 2 3 4\n", "version = one\npanel = 1 2 3 4\n",
          "version = 1.0\npanel = 1 2 3 4\n", "version 1\npanel = 1 2 3 4\n",
          "version = 1 1\npanel = 1 2 3 4\n", "version = 99999999999\npanel = 1 2 3 4\n",
          "Version = 1\npanel = 1 2 3 4\n", "\xEF\xBB\xBFversion = 1\npanel = 1 2 3 4\n"})
        ExpectLeftAlone(content, version);
    ExpectLeftAlone(std::string("\0\0\0\0", 4), version);
    const char* const panel = "has no place of a panel in line 2: four whole numbers";
    for (const char* line :
         {"", "panel", "panel =", "panel = 1 2 3", "panel = 1 2 3 4 5", "panel = 1 2 3 four",
          "panel = 1 2 3 4.5", "panel = 1 2 3 2147483648", "panel = -2147483649 2 3 4",
          "panel = 1 2 3 99999999999999999999", "panel = nan inf 3 4", "window = 1 2 3 4", "panel = 1,2,3,4",
          "panel = 0x10 2 3 4", "panel = +1 2 3 4"})
        ExpectLeftAlone(std::string("version = 1\n") + line + "\n", panel);
    ExpectLeftAlone(std::string(sound) + "other = 1\n", "has more lines than it should");
    _folder.Write("preferences", sound);
    EXPECT_EQ(StoredAtNextStart(), (Rectangle{120, 80, 640, 670}));
}

TEST_F(FilePreferencesTest, LeaveAFileAloneThatIsTooLarge) {
    ExpectLeftAlone(std::string(5000, '\n'), "cannot be read: File too large");
}

TEST_F(FilePreferencesTest, ComeBackOnceTheFileIsMended) {
    _folder.Write("preferences", "rubbish");
    Keep();
    EXPECT_EQ(Stored(), std::nullopt);
    EXPECT_NE(host::Preferences::Problem(), "");
    _folder.Write("preferences", sound);
    EXPECT_EQ(Stored(), (Rectangle{120, 80, 640, 670}));
    EXPECT_EQ(host::Preferences::Problem(), "");
    fs::remove(File());
    EXPECT_TRUE(Store({1, 2, 3, 4}));
}

TEST_F(FilePreferencesTest, FailWithAFolderInPlaceOfTheFile) {
    fs::create_directory(File());
    Keep();
    EXPECT_EQ(Stored(), std::nullopt);
    EXPECT_FALSE(Store({1, 2, 3, 4}));
    EXPECT_EQ(host::Preferences::Problem(),
              "The preferences file '" + File() + "' cannot be read: Is a directory.");
    EXPECT_TRUE(fs::is_directory(File()));
}

TEST_F(FilePreferencesTest, DoNotWaitForAPipe) {
    ASSERT_EQ(mkfifo(File().c_str(), 0600), 0);
    Keep();
    EXPECT_EQ(Stored(), std::nullopt);
    EXPECT_FALSE(Store({1, 2, 3, 4}));
    EXPECT_THAT(host::Preferences::Problem(), HasSubstr("cannot be read"));
    EXPECT_TRUE(fs::is_fifo(File()));
}

TEST_F(FilePreferencesTest, FailWithAFileInPlaceOfAFolder) {
    _folder.Write("config", "a file");
    host::Preferences::KeepInFile((_folder.Path() / "config" / "preferences").string());
    EXPECT_EQ(Stored(), std::nullopt);
    EXPECT_FALSE(Store({1, 2, 3, 4}));
    EXPECT_THAT(host::Preferences::Problem(), HasSubstr("Not a directory"));
    EXPECT_EQ(_folder.Read("config"), "a file");
}

TEST_F(FilePreferencesTest, FailWithoutANameForTheFile) {
    host::Preferences::KeepInFile("");
    EXPECT_EQ(Stored(), std::nullopt);
    EXPECT_FALSE(Store({1, 2, 3, 4}));
    EXPECT_THAT(host::Preferences::Problem(), StartsWith("The preferences file ''"));
    host::Preferences::KeepInFile(_folder.Path().string() + "/");
    EXPECT_FALSE(Store({1, 2, 3, 4}));
    EXPECT_THAT(host::Preferences::Problem(), HasSubstr("Is a directory"));
    EXPECT_EQ(Names(), ::Names());
}

TEST_F(FilePreferencesTest, FailWithAFileThatMayNotBeRead) {
    _folder.Write("preferences", sound);
    fs::permissions(File(), fs::perms::none);
    Keep();
    {
        const support::OrdinaryUser user;
        EXPECT_EQ(Stored(), std::nullopt);
        EXPECT_FALSE(Store({1, 2, 3, 4}));
    }
    EXPECT_EQ(host::Preferences::Problem(),
              "The preferences file '" + File() + "' cannot be read: Permission denied.");
    fs::permissions(File(), fs::perms::owner_read);
    EXPECT_EQ(_folder.Read("preferences"), sound);
}

TEST_F(FilePreferencesTest, FailInAFolderThatMayNotBeWritten) {
    constexpr fs::perms writing = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    _folder.Write("preferences", sound);
    fs::permissions(File(), fs::perms::all);
    fs::permissions(_folder.Path(), fs::perms::all & ~writing);
    Keep();
    {
        const support::OrdinaryUser user;
        EXPECT_EQ(Stored(), (Rectangle{120, 80, 640, 670}));
        EXPECT_FALSE(Store({1, 2, 3, 4}));
        EXPECT_EQ(host::Preferences::Problem(),
                  "The preferences file '" + File() + "' cannot be written: Permission denied.");
        EXPECT_EQ(Stored(), (Rectangle{120, 80, 640, 670}));
        host::Preferences::KeepInFile((_folder.Path() / "new" / "preferences").string());
        EXPECT_FALSE(Store({1, 2, 3, 4}));
        EXPECT_THAT(host::Preferences::Problem(), HasSubstr("cannot be written: Permission denied"));
    }
    EXPECT_EQ(_folder.Read("preferences"), sound);
    EXPECT_EQ(Names(), ::Names({"preferences"}));
    fs::permissions(_folder.Path(), fs::perms::all);
}

TEST_F(FilePreferencesTest, KeepTheOldFileWholeOnAFullDisk) {
    _folder.Write("preferences", sound);
    Keep();
    for (const rlim_t room : {rlim_t{0}, rlim_t{10}, rlim_t{25}}) {
        const FullDisk disk(room);
        EXPECT_FALSE(Store({1, 2, 3, 4}));
        EXPECT_EQ(host::Preferences::Problem(),
                  "The preferences file '" + File() + "' cannot be written: File too large.");
        EXPECT_EQ(Stored(), (Rectangle{120, 80, 640, 670}));
        EXPECT_EQ(Names(), ::Names({"preferences"})) << "no rest of the new file";
    }
    EXPECT_EQ(_folder.Read("preferences"), sound);
    EXPECT_TRUE(Store({1, 2, 3, 4})) << "there is room again";
    EXPECT_EQ(StoredAtNextStart(), (Rectangle{1, 2, 3, 4}));
}

TEST_F(FilePreferencesTest, WriteTheFileToWhichALinkLeads) {
    _folder.Write("elsewhere/kept", sound);
    fs::create_symlink("elsewhere/kept", _folder.Path() / "link");
    fs::create_symlink(_folder.Path() / "link", File());
    EXPECT_EQ(StoredAtNextStart(), (Rectangle{120, 80, 640, 670}));
    EXPECT_TRUE(Store({1, 2, 3, 4}));
    EXPECT_TRUE(fs::is_symlink(File()));
    EXPECT_TRUE(fs::is_symlink(_folder.Path() / "link"));
    EXPECT_EQ(_folder.Read("elsewhere/kept"), "version = 1\npanel = 1 2 3 4\n");
    EXPECT_EQ(StoredAtNextStart(), (Rectangle{1, 2, 3, 4}));
}

TEST_F(FilePreferencesTest, MakeTheFileToWhichALinkLeadsInVain) {
    fs::create_symlink("elsewhere/kept", File());
    Keep();
    EXPECT_EQ(Stored(), std::nullopt);
    EXPECT_EQ(host::Preferences::Problem(), "");
    EXPECT_TRUE(Store({1, 2, 3, 4}));
    EXPECT_TRUE(fs::is_symlink(File()));
    EXPECT_EQ(_folder.Read("elsewhere/kept"), "version = 1\npanel = 1 2 3 4\n");
}

TEST_F(FilePreferencesTest, FailWithALinkThatLeadsToItself) {
    fs::create_symlink("preferences", File());
    Keep();
    EXPECT_EQ(Stored(), std::nullopt);
    EXPECT_FALSE(Store({1, 2, 3, 4}));
    EXPECT_THAT(host::Preferences::Problem(), HasSubstr("Too many levels of symbolic links"));
    EXPECT_TRUE(fs::is_symlink(File()));
}

TEST_F(FilePreferencesTest, ShowWhatAnotherProcessHasStored) {
    Keep();
    Store({1, 2, 3, 4});
    _folder.Write("preferences", sound);
    EXPECT_EQ(Stored(), (Rectangle{120, 80, 640, 670}));
    EXPECT_TRUE(Store({1, 2, 3, 4})) << "a value is compared with the file, not with the one stored last";
    EXPECT_EQ(Stored(), (Rectangle{1, 2, 3, 4}));
}

TEST_F(FilePreferencesTest, AreWholeWheneverTwoProcessesStore) {
    constexpr int rounds = 25;
    Keep();
    ASSERT_TRUE(Store({0, 0, 0, 0}));
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        bool stored = true;
        for (int round = 1; round <= rounds; ++round)
            stored = Store({round, round, round, round}) && stored;
        _exit(stored ? 0 : 1);
    }
    for (int round = 1; round <= rounds; ++round) {
        EXPECT_TRUE(Store({-round, -round, -round, -round}));
        const std::optional<Rectangle> seen = Stored();
        ASSERT_TRUE(seen.has_value()) << host::Preferences::Problem();
        EXPECT_EQ(*seen, (Rectangle{(*seen)[0], (*seen)[0], (*seen)[0], (*seen)[0]}));
    }
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(Names(), ::Names({"preferences"}));
}

TEST_F(FilePreferencesTest, KeepTheFileThroughFailingCalls) {
    _folder.Write("preferences", sound);
    Keep();
    for (const int call : {1, 2}) {
        host::FaultPoints::FailCall(call, "preferences");
        EXPECT_EQ(Stored(), std::nullopt);
        host::FaultPoints::FailCall(call, "preferences");
        EXPECT_FALSE(Store({1, 2, 3, 4}));
    }
    host::FaultPoints::Stop();
    EXPECT_EQ(_folder.Read("preferences"), sound);
    EXPECT_EQ(Stored(), (Rectangle{120, 80, 640, 670}));
}

} // namespace
