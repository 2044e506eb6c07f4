#include "publish/ServerList.h"
#include "publish/ServerListFile.h"
#include "tests/fakes/FailureOf.h"
#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace vantorium::publish {

void PrintTo(const ServerProfile& profile, std::ostream* stream) {
  *stream << profile.ServerName << " | " << profile.ServerURL << " | " << profile.UserName << " | " << profile.IndexPath
          << " | " << profile.IndexFile << " | " << profile.TimeOut << " | " << profile.JumpTo;
}

namespace {

const ServerProfile kDefault = {"Server", "ftp.example.com", "username", "gallery", "index.htm", 0, ""};
const ServerProfile kOne = {"One", "one.example.org", "me", "a/b", "start.htm", 15, "www"};
const ServerProfile kTwo = {"Two", "two.example.org", "anonymous", "", "index.htm", 0, ""};
const ServerProfile kThree = {"Three", "", "", "gallery", "index.htm", -7, "x/y"};

const std::string kReadFailure = "An Error has occurred reading the Server Information File:\r\r";
const std::string kWriteFailure = "An Error has occurred writing the Server Information File:\r\r";
const std::string kNoPreference = "A preference could not be read or written\r\rError #-2147221503";

class ServerListTest : public testing::Test {
 protected:
  [[nodiscard]] std::filesystem::path File() const { return ServerListFileName(program.Path()); }
  [[nodiscard]] std::string Text() const { return program.Read("vantorium.pub"); }
  void Write(const std::string& text) const { program.Write("vantorium.pub", text); }
  void WriteThree(std::size_t selected) const { WriteServerList({kOne, kTwo, kThree}, selected, File()); }
  void Replace(const std::string& old, const std::string& text) const {
    std::string file = Text();
    ASSERT_NE(file.find(old), std::string::npos) << file;
    Write(file.replace(file.find(old), old.size(), text));
  }
  [[nodiscard]] std::string Names() const {
    std::string names;
    for (const auto& profile : list.Profiles()) names += profile.ServerName + " ";
    return names;
  }
  void ExpectBox(std::size_t index, env::BoxKind kind, const std::string& title, const std::string& text) const {
    ASSERT_GT(boxes.boxes.size(), index);
    EXPECT_EQ(boxes.boxes[index].kind, kind);
    EXPECT_EQ(boxes.boxes[index].buttons, env::BoxButtons::Ok);
    EXPECT_EQ(boxes.boxes[index].title, title);
    EXPECT_EQ(boxes.boxes[index].text, text);
  }
  void ExpectReadFailure(const std::string& failure) const {
    EXPECT_EQ(boxes.boxes.size(), 1U);
    ExpectBox(0, env::BoxKind::Plain, "File Error", kReadFailure + failure);
  }

  fakes::TemporaryFolder program;
  fakes::RecordingMessageBox boxes;
  ServerList list{File(), boxes};
};

TEST_F(ServerListTest, IsReadBackAsItWasWritten) {
  WriteThree(1);
  const std::string text = Text();
  list.Open();
  EXPECT_EQ(list.Profiles(), (std::vector{kOne, kTwo, kThree}));
  EXPECT_EQ(list.Selected(), 1U);
  EXPECT_EQ(list.SelectedProfile()->ServerName, "Two");
  EXPECT_EQ(list.NameBefore(), "Two");
  EXPECT_TRUE(list.SaveServerList());
  EXPECT_EQ(Text(), text);
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(ServerListTest, OpeningReadsTheFileAgain) {
  WriteThree(1);
  list.Open();
  list.DeleteServer();
  list.SelectedProfile()->UserName = "edited";
  list.Open();
  EXPECT_EQ(list.Profiles(), (std::vector{kOne, kTwo, kThree}));
}

TEST_F(ServerListTest, AnEmptyListGetsTheDefaultProfileWhichIsWrittenAtOnce) {
  WriteServerList({}, std::nullopt, File());
  list.Open();
  EXPECT_EQ(list.Profiles(), std::vector{kDefault});
  EXPECT_EQ(list.Selected(), 0U);
  EXPECT_EQ(list.NameBefore(), "Server");
  EXPECT_EQ(Text(),
            "[PUBLISH]\r\nServerCount=\"1\"\r\nPreferredServer=\"1\"\r\nServerName1=\"Server\"\r\n"
            "ServerURL1=\"ftp.example.com\"\r\nUserName1=\"username\"\r\nIndexFile1=\"gallery/index.htm\"\r\n"
            "TimeOut1=\"0\"\r\nJumpTo1=\"\"\r\n");
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(ServerListTest, APreferredServerOutsideTheListMeansTheFirst) {
  for (const char* preferred : {"0", "-1", "4", "7", "2147483647"}) {
    WriteThree(2);
    Replace("PreferredServer=\"3\"", std::string("PreferredServer=\"") + preferred + "\"");
    list.Open();
    EXPECT_EQ(list.Selected(), 0U) << preferred;
    EXPECT_EQ(list.NameBefore(), "One") << preferred;
  }
}

TEST_F(ServerListTest, WithoutAFileTheListIsEmptyAndTheNextOpeningGivesTheDefault) {
  list.Open();
  ExpectReadFailure(kNoPreference);
  EXPECT_TRUE(list.Profiles().empty());
  EXPECT_EQ(list.Selected(), std::nullopt);
  EXPECT_EQ(list.SelectedProfile(), nullptr);
  EXPECT_EQ(Text(), "[PUBLISH]\r\nServerCount=\"0\"\r\nPreferredServer=\"0\"\r\n");
  list.Open();
  EXPECT_EQ(list.Profiles(), std::vector{kDefault});
  EXPECT_EQ(boxes.boxes.size(), 1U);
}

TEST_F(ServerListTest, ServersReadBeforeAFailureAreWrittenAndReadAgain) {
  struct Case {
    const char* line;
    const char* instead;
    std::string failure;
    std::size_t read;
  };
  const Case cases[] = {
      {"[PUBLISH]", "[OTHER]", kNoPreference, 0},
      {"ServerCount=", "Count=", kNoPreference, 0},
      {"ServerCount=\"3\"", "ServerCount=\"three\"", "Type mismatch\r\rError #13", 0},
      {"ServerCount=\"3\"", "ServerCount=\"3000000000\"", "Overflow\r\rError #6", 0},
      {"ServerCount=\"3\"", "ServerCount=\"-1\"", "Subscript out of range\r\rError #9", 0},
      {"PreferredServer=\"1\"", "PreferredServer=\"\"", "Type mismatch\r\rError #13", 0},
      {"ServerName1=", "Name1=", kNoPreference, 0},
      {"UserName2=", "", kNoPreference, 1},
      {"TimeOut3=\"-7\"", "TimeOut3=\"soon\"", "Type mismatch\r\rError #13", 2},
      {"JumpTo3=", " JumpTo3=", kNoPreference, 2},
      {"ServerCount=\"3\"", "ServerCount=\"4\"", kNoPreference, 3},
      {"ServerCount=\"3\"", "ServerCount=\"2147483647\"", kNoPreference, 3},
  };
  const std::vector<ServerProfile> all = {kOne, kTwo, kThree};
  for (const auto& [line, instead, failure, read] : cases) {
    SCOPED_TRACE(std::string(line) + " -> " + instead);
    WriteThree(0);
    Replace(line, instead);
    boxes.boxes.clear();
    list.Open();
    ExpectReadFailure(failure);
    const std::vector<ServerProfile> rest(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(read));
    EXPECT_EQ(list.Profiles(), rest);
    ServerList again(File(), boxes);
    again.Open();
    EXPECT_EQ(again.Profiles(), read == 0 ? std::vector{kDefault} : rest);
    EXPECT_EQ(boxes.boxes.size(), 1U) << "the rewritten file is consistent";
  }
}

TEST_F(ServerListTest, AMissingValueIsReadFromALaterSection) {
  WriteThree(0);
  Replace("JumpTo3=\"x/y\"", "[LATER]\r\nJumpTo3=\"later\"");
  list.Open();
  EXPECT_EQ(list.Profiles().at(2).JumpTo, "later");
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(ServerListTest, TwoProfilesOfOneNameInAFileAreBothShown) {
  WriteServerList({kOne, kOne}, 0, File());
  list.Open();
  EXPECT_EQ(Names(), "One One ");
}

TEST_F(ServerListTest, AFileThatCannotBeWrittenIsReported) {
  std::filesystem::create_directory(File());
  list.Open();
  ASSERT_EQ(boxes.boxes.size(), 2U);
  ExpectBox(0, env::BoxKind::Plain, "File Error", kReadFailure + kNoPreference);
  ExpectBox(1, env::BoxKind::Plain, "File Error", kWriteFailure + File().string() + ": Is a directory\r\rError #75");
  EXPECT_FALSE(list.SaveServerList());
  EXPECT_EQ(boxes.boxes.size(), 3U);
}

TEST_F(ServerListTest, AnIndexTextIsSplitAtItsLastSeparator) {
  struct Case {
    const char* text;
    const char* path;
    const char* file;
  };
  const Case cases[] = {
      {"gallery/index.htm", "gallery", "index.htm"},
      {"a\\b\\c.htm", "a/b", "c.htm"},
      {"index.htm", "", "index.htm"},
      {"/index.htm", "", "index.htm"},
      {"/a/index.htm", "a", "index.htm"},
      {"a///index.htm", "a", "index.htm"},
      {"a//b/index.htm", "a//b", "index.htm"},
      {"a/", "a", ""},
      {"/", "", ""},
      {"", "", ""},
      {"//index.htm", "", "index.htm"},
  };
  for (const auto& [text, path, file] : cases) {
    list.AddServerProfile({.ServerName = "x"}, text);
    EXPECT_EQ(list.Profiles().back().IndexPath, path) << text;
    EXPECT_EQ(list.Profiles().back().IndexFile, file) << text;
  }
}

TEST_F(ServerListTest, AnAddedProfileIsTheLastAndIsSelected) {
  WriteThree(0);
  list.Open();
  list.AddServerProfile({.ServerName = " N ", .ServerURL = "ftp://h\\", .UserName = "u", .TimeOut = 9, .JumpTo = "\\j"},
                        "f");
  EXPECT_EQ(list.Selected(), 3U);
  EXPECT_EQ(*list.SelectedProfile(), (ServerProfile{" N ", "ftp://h\\", "u", "", "f", 9, "\\j"}));
}

TEST_F(ServerListTest, AProfileThatTheFileCannotStoreIsNotAdded) {
  list.AddServerProfile(kOne, "a");
  list.AddServerProfile({.ServerName = "two\nlines"}, "a");
  list.AddServerProfile({.ServerName = "x"}, "a\rb/c");
  EXPECT_EQ(Names(), "One ");
  EXPECT_EQ(list.Selected(), 0U);
  ASSERT_EQ(boxes.boxes.size(), 2U);
  ExpectBox(0, env::BoxKind::Plain, "Error adding Server",
            "An Error occurred trying to add a Server: A preference could not be read or written");
}

TEST_F(ServerListTest, ANewServerIsAddedEmptyAndWrittenAtOnce) {
  WriteThree(0);
  list.Open();
  EXPECT_TRUE(list.AddNewServer("Four"));
  EXPECT_EQ(*list.SelectedProfile(), (ServerProfile{"Four", "", "", "gallery", "index.htm", 0, ""}));
  EXPECT_EQ(list.NameBefore(), "One");
  ServerList again(File(), boxes);
  again.Open();
  EXPECT_EQ(again.Profiles(), list.Profiles());
  EXPECT_EQ(again.Selected(), 3U);
}

TEST_F(ServerListTest, ANewServerNeedsANameThatDiffersFromAllOthers) {
  WriteThree(0);
  list.Open();
  const std::string text = Text();
  EXPECT_FALSE(list.AddNewServer("Two"));
  EXPECT_EQ(boxes.boxes.size(), 1U);
  ExpectBox(0, env::BoxKind::Critical, "Name Exists",
            "A Server with this name has already been defined.  Please use a different name.");
  EXPECT_EQ(Names(), "One Two Three ");
  EXPECT_EQ(Text(), text);
  EXPECT_TRUE(list.AddNewServer("two"));
  EXPECT_TRUE(list.AddNewServer("Two "));
}

TEST_F(ServerListTest, DeletingSelectsTheNextServerOrElseTheLast) {
  WriteThree(1);
  list.Open();
  const std::string text = Text();
  list.DeleteServer();
  EXPECT_EQ(Names(), "One Three ");
  EXPECT_EQ(list.SelectedProfile()->ServerName, "Three");
  list.DeleteServer();
  EXPECT_EQ(list.SelectedProfile()->ServerName, "One");
  list.DeleteServer();
  EXPECT_EQ(list.SelectedProfile(), nullptr);
  EXPECT_EQ(Text(), text) << "only saving changes the file";
  list.DeleteServer();
  EXPECT_TRUE(list.SaveServerList());
  EXPECT_EQ(Text(), "[PUBLISH]\r\nServerCount=\"0\"\r\nPreferredServer=\"0\"\r\n");
}

TEST_F(ServerListTest, SelectingBeyondTheListIsAFailure) {
  WriteThree(1);
  list.Open();
  list.Select(2);
  EXPECT_EQ(list.Selected(), 2U);
  EXPECT_EQ(fakes::FailureOf([&] { list.Select(3); }), env::FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(list.Selected(), 2U);
}

TEST_F(ServerListTest, AnEditOfTheSelectedProfileIsWrittenWithTheStoredTimeOut) {
  WriteThree(0);
  list.Open();
  list.SelectedProfile()->UserName = "you";
  EXPECT_TRUE(list.SaveServerList());
  EXPECT_NE(Text().find("UserName1=\"you\"\r\n"), std::string::npos) << Text();
  EXPECT_NE(Text().find("TimeOut1=\"15\"\r\n"), std::string::npos) << Text();
}

TEST_F(ServerListTest, AnEditWithALineBreakIsNotWritten) {
  WriteThree(0);
  list.Open();
  const std::string text = Text();
  list.SelectedProfile()->JumpTo = "a\r\nServerCount=\"9\"";
  EXPECT_FALSE(list.SaveServerList());
  ExpectBox(0, env::BoxKind::Plain, "File Error", kWriteFailure + kNoPreference);
  EXPECT_EQ(Text(), text);
}

TEST_F(ServerListTest, SettingsAreCleanedUp) {
  struct Case {
    const char* typedPath;
    const char* typedURL;
    const char* path;
    const char* url;
  };
  const Case cases[] = {
      {"/gallery/", "ftp://host/", "gallery", "host/"},
      {"//a//b//", "//host//x", "/a/b/", "/host/x"},
      {"a////b", "ftp:///host", "a//b", "host"},
      {"/", "x://y://z", "", "y:/z"},
      {"", "", "", ""},
      {"plain", "host", "plain", "host"},
  };
  for (const auto& [typedPath, typedURL, path, url] : cases) {
    ServerProfile profile = {.ServerURL = typedURL, .IndexPath = typedPath, .IndexFile = "a.htm"};
    EXPECT_TRUE(ValidateSettings(profile, false, boxes));
    EXPECT_EQ(profile.IndexPath, path) << typedPath;
    EXPECT_EQ(profile.ServerURL, url) << typedURL;
    EXPECT_EQ(profile.IndexFile, "a.htm");
  }
}

TEST_F(ServerListTest, AnEmptyIndexFileGetsTheDefaultName) {
  ServerProfile profile;
  EXPECT_TRUE(ValidateSettings(profile, false, boxes));
  EXPECT_EQ(profile.IndexFile, "index.htm");
}

TEST_F(ServerListTest, AnIndexFileWithAPathIsRefusedInTheDialogAndElseGetsTheDefaultName) {
  ServerProfile profile = {.ServerURL = "//h", .IndexFile = "a/b.htm"};
  EXPECT_FALSE(ValidateSettings(profile, false, boxes));
  EXPECT_EQ(boxes.boxes.size(), 1U);
  ExpectBox(0, env::BoxKind::Critical, "Invalid Index File Name",
            "The Gallery Index File Name may not contain any path specifications.");
  EXPECT_EQ(profile.IndexFile, "a/b.htm");
  EXPECT_EQ(profile.ServerURL, "/h") << "earlier fields are cleaned up";
  EXPECT_TRUE(ValidateSettings(profile, true, boxes));
  EXPECT_EQ(profile.IndexFile, "index.htm");
  EXPECT_EQ(boxes.boxes.size(), 1U);
}

TEST_F(ServerListTest, AnonymousIsRecognizedInAnyCase) {
  for (const char* name : {"anonymous", "Anonymous", "ANONYMOUS"}) EXPECT_TRUE(IsAnonymous({.UserName = name})) << name;
  for (const char* name : {"", "anonymous ", "me"}) EXPECT_FALSE(IsAnonymous({.UserName = name})) << name;
}

TEST_F(ServerListTest, AnAcceptedCertificateIsRememberedForEncryptedServersOfItsHost) {
  std::string fingerprint = "0F";
  for (int byte = 1; byte < 32; ++byte) fingerprint += ":0F";
  ServerProfile encrypted = kOne;
  encrypted.Encrypted = true;
  ServerProfile elsewhere = kTwo;
  elsewhere.Encrypted = true;
  WriteServerList({kOne, encrypted, elsewhere}, 2, File());
  list.Open();
  list.RememberCertificate("ONE.example.org", fingerprint);
  ServerList again(File(), boxes);
  again.Open();
  EXPECT_EQ(again.Profiles()[0].Fingerprint, "") << "not encrypted";
  EXPECT_EQ(again.Profiles()[1].Fingerprint, fingerprint);
  EXPECT_EQ(again.Profiles()[2].Fingerprint, "") << "another host";
  EXPECT_EQ(again.Selected(), 2U);
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(ServerListTest, ACertificateOfAHostThatIsNotInTheListChangesNoFile) {
  WriteThree(0);
  list.Open();
  Write("untouched");
  list.RememberCertificate("four.example.org", "0F");
  list.RememberCertificate("one.example.org", "0F");
  EXPECT_EQ(Text(), "untouched");
}

}  // namespace
}  // namespace vantorium::publish
