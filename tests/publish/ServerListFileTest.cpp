#include "env/FileInput.h"
#include "env/INIText.h"
#include "env/mINIFileFunctions.h"
#include "publish/ServerListFile.h"
#include "tests/fakes/FailureOf.h"
#include "tests/fakes/FaultInjection.h"
#include "tests/fakes/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace vantorium::publish {
namespace {

namespace fs = std::filesystem;
using fakes::FailureOf;

const ServerProfile kFirst = {"Home", "ftp.example.org", "me", "a/b", "index.htm", 30, "www"};
const ServerProfile kSecond = {"Work", "10.0.0.1", "anonymous", "", "start.html", 0, ""};

class ServerListFile : public testing::Test {
 protected:
  [[nodiscard]] fs::path File() const { return ServerListFileName(program.Path()); }
  [[nodiscard]] std::string Text() const { return program.Read("vantorium.pub"); }

  fakes::TemporaryFolder program;
};

TEST_F(ServerListFile, IsInTheProgramFolder) {
  EXPECT_EQ(ServerListFileName("/home/me/program"), "/home/me/program/vantorium.pub");
}

TEST_F(ServerListFile, HasItsLinesInAFixedOrder) {
  WriteServerList({kFirst, kSecond}, 1, File());
  EXPECT_EQ(Text(),
            "[PUBLISH]\r\n"
            "ServerCount=\"2\"\r\n"
            "PreferredServer=\"2\"\r\n"
            "ServerName1=\"Home\"\r\n"
            "ServerURL1=\"ftp.example.org\"\r\n"
            "UserName1=\"me\"\r\n"
            "IndexFile1=\"a/b/index.htm\"\r\n"
            "TimeOut1=\"30\"\r\n"
            "JumpTo1=\"www\"\r\n"
            "ServerName2=\"Work\"\r\n"
            "ServerURL2=\"10.0.0.1\"\r\n"
            "UserName2=\"anonymous\"\r\n"
            "IndexFile2=\"/start.html\"\r\n"
            "TimeOut2=\"0\"\r\n"
            "JumpTo2=\"\"\r\n");
}

TEST_F(ServerListFile, HasTwoZerosForAnEmptyList) {
  WriteServerList({}, std::nullopt, File());
  EXPECT_EQ(Text(), "[PUBLISH]\r\nServerCount=\"0\"\r\nPreferredServer=\"0\"\r\n");
}

TEST_F(ServerListFile, ReplacesTheOldFileCompletely) {
  program.Write("vantorium.pub", "[OTHER]\r\nKey=\"1\"\r\n" + std::string(1000, 'x'));
  WriteServerList({}, std::nullopt, File());
  EXPECT_EQ(Text(), "[PUBLISH]\r\nServerCount=\"0\"\r\nPreferredServer=\"0\"\r\n");
}

TEST_F(ServerListFile, IsWrittenThroughALink) {
  program.Write("kept/servers", "old");
  std::filesystem::create_directories(File().parent_path());
  std::filesystem::create_symlink(program.Path() / "kept/servers", File());
  WriteServerList({}, std::nullopt, File());
  EXPECT_TRUE(std::filesystem::is_symlink(File()));
  EXPECT_EQ(program.Read("kept/servers"), "[PUBLISH]\r\nServerCount=\"0\"\r\nPreferredServer=\"0\"\r\n");
}

TEST_F(ServerListFile, ItsFolderIsCreatedIfMissing) {
  WriteServerList({kFirst}, 0, program.Path() / "not/yet/vantorium.pub");
  EXPECT_EQ(ServerListValues(program.Path() / "not/yet/vantorium.pub").Text("ServerName1"), "Home");
}

TEST_F(ServerListFile, ALineBreakOrANulInAnyTextIsRefusedAndTheOldFileStays) {
  program.Write("vantorium.pub", "old");
  for (std::string ServerProfile::*text :
       {&ServerProfile::ServerName, &ServerProfile::ServerURL, &ServerProfile::UserName, &ServerProfile::IndexPath,
        &ServerProfile::IndexFile, &ServerProfile::JumpTo, &ServerProfile::Fingerprint}) {
    for (const std::string& part : {std::string("\r"), std::string("\n"), std::string(1, '\0')}) {
      ServerProfile profile = kFirst;
      profile.*text = "a" + part + "b";
      EXPECT_FALSE(FitsServerListFile(profile)) << testing::PrintToString(profile.*text);
      EXPECT_EQ(FailureOf([&] { WriteServerList({kSecond, profile}, 0, File()); }), env::FailureKind::Preferences);
      EXPECT_EQ(Text(), "old");
    }
  }
  EXPECT_TRUE(FitsServerListFile(kFirst));
}

TEST_F(ServerListFile, OnAFullDiskTheOldFileStays) {
  program.Write("vantorium.pub", "old");
  const fakes::FullDisk full(20);
  EXPECT_EQ(FailureOf([&] { WriteServerList({kFirst}, 0, File()); }), env::FailureKind::FileAccess);
  EXPECT_EQ(Text(), "old");
  EXPECT_EQ(std::distance(fs::directory_iterator(program.Path()), fs::directory_iterator()), 1);
}

TEST_F(ServerListFile, AReadOnlyFileIsNotReplaced) {
  program.Write("vantorium.pub", "old");
  for (const auto rights : {0444, 0000}) {
    fs::permissions(File(), static_cast<fs::perms>(rights));
    EXPECT_EQ(FailureOf([&] { WriteServerList({kFirst}, 0, File()); }), env::FailureKind::FileAccess) << rights;
    fs::permissions(File(), fs::perms::owner_read);
    EXPECT_EQ(Text(), "old") << rights;
  }
}

TEST_F(ServerListFile, AQuotationMarkInAValueIsReadBack) {
  ServerProfile profile = kFirst;
  profile.ServerName = R"(the "big" one)";
  WriteServerList({profile}, 0, File());
  EXPECT_EQ(ServerListValues(File()).Text("ServerName1"), profile.ServerName);
}

TEST_F(ServerListFile, AMissingValueOrFileIsAPreferencesFailure) {
  const auto missing = [&] {
    const ServerListValues values(File());
    EXPECT_EQ(FailureOf([&] { std::ignore = values.Text("ServerName1"); }), env::FailureKind::Preferences);
    EXPECT_EQ(FailureOf([&] { std::ignore = values.Integer("ServerCount"); }), env::FailureKind::Preferences);
  };
  missing();
  for (const char* text : {"", "[PUBLISH]", "[PUBLISH]\r\n ServerCount=\"1\"\r\nServerName1 =\"x\"\r\nServerName1"}) {
    SCOPED_TRACE(text);
    program.Write("vantorium.pub", text);
    missing();
  }
  fs::remove(File());
  fs::create_directory(File());
  missing();
}

TEST_F(ServerListFile, ANumberIsADecimalOf32Bits) {
  struct Case {
    const char* value;
    std::optional<env::FailureKind> failure;
  };
  const Case cases[] = {{"\"7\"", {}},
                        {"7", {}},
                        {"\" 7 \"", {}},
                        {"\"2147483647\"", {}},
                        {"\"2147483648\"", env::FailureKind::Overflow},
                        {"\"\"", env::FailureKind::TypeMismatch},
                        {"\"seven\"", env::FailureKind::TypeMismatch}};
  for (const auto& [value, failure] : cases) {
    program.Write("vantorium.pub", std::string("[PUBLISH]\r\nServerCount=") + value + "\r\n");
    EXPECT_EQ(FailureOf([&] { std::ignore = ServerListValues(File()).Integer("ServerCount"); }), failure) << value;
  }
}

/// Covers every case of the reader: sections, keys that occur twice, in other case or in later sections, and unclosed
/// quotation marks.
TEST_F(ServerListFile, IsReadLikeAPreferencesFile) {
  const std::vector<std::string> lines = {"[PUBLISH]", " [publish] ", "[OTHER]", "A=\"1\"", "a=2", "A =3", " A=4",
                                          "B=\"open",  "B=\"",        "b",       "",        "=5",  "B==6", "ServerA=7"};
  unsigned state = 1;
  for (int round = 0; round < 500; ++round) {
    std::string text;
    for (int i = 0; i < 6; ++i) {
      state = state * 1664525U + 1013904223U;
      text += lines[(state >> 16U) % lines.size()] + (i < 5 || round % 2 == 0 ? "\r\n" : "");
    }
    const auto file = program.Write("vantorium.pub", text);
    const ServerListValues values(file);
    for (const char* key : {"A", "b", "ServerA", "C"}) {
      const auto expected = env::FindINIString(text, "PUBLISH", key);
      std::optional<std::string> found;
      FailureOf([&] { found = values.Text(key); });
      ASSERT_EQ(found, expected) << text << "key " << key;
    }
  }
}

TEST_F(ServerListFile, TenThousandProfilesAreReadAsTheyWereWritten) {
  const std::vector<ServerProfile> many(10000, kFirst);
  WriteServerList(many, 0, File());
  const ServerListValues values(File());
  EXPECT_EQ(values.Integer("ServerCount"), 10000);
  EXPECT_EQ(values.Text("JumpTo10000"), "www");
}

ServerProfile SecureProfile() {
  ServerProfile profile = kFirst;
  profile.Passive = profile.Encrypted = true;
  for (int byte = 0; byte < 32; ++byte) profile.Fingerprint += byte > 0 ? ":0F" : "0F";
  return profile;
}

TEST_F(ServerListFile, HasOptionsOnlyForServersThatUseThem) {
  WriteServerList({SecureProfile(), kSecond}, 0, File());
  const std::string text = Text();
  const std::string lines = "JumpTo1=\"www\"\r\nPassive1=\"1\"\r\nEncrypted1=\"1\"\r\nFingerprint1=\"" +
                            SecureProfile().Fingerprint + "\"\r\nServerName2=";
  EXPECT_NE(text.find(lines), std::string::npos) << text;
  for (const char* key : {"Passive2", "Encrypted2", "Fingerprint2"}) EXPECT_EQ(text.find(key), std::string::npos);
}

TEST_F(ServerListFile, InvalidOptionsAreOff) {
  const std::string good = SecureProfile().Fingerprint;
  const std::pair<std::string, ServerProfile> cases[] = {
      {"", {}},
      {"Passive1=\"0\"\r\nEncrypted1=\"yes\"\r\nFingerprint1=\"\"\r\n", {}},
      {"Passive1=\"11\"\r\nEncrypted1=\"\"\r\nFingerprint1=\"0F:0F\"\r\n", {}},
      {"Passive2=\"1\"\r\nFingerprint1=\"" + good + "0\"\r\n", {}},
      {"passive1=1\r\nENCRYPTED1=\"1\"\r\n", {.Passive = true, .Encrypted = true}},
      {"Fingerprint1=\"" + good + "\"\r\n", {.Fingerprint = good}}};
  for (const auto& [lines, expected] : cases) {
    program.Write("vantorium.pub", "[PUBLISH]\r\n" + lines);
    ServerProfile profile;
    ServerListValues(File()).ReadOptions("1", profile);
    EXPECT_EQ(OptionsOf(profile), OptionsOf(expected)) << lines;
  }
}

}  // namespace
}  // namespace vantorium::publish
