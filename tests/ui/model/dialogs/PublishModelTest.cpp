#include "publish/ServerListFile.h"
#include "tests/fakes/FailureOf.h"
#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/TemporaryFolder.h"
#include "ui/model/dialogs/PublishModel.h"

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

const publish::ServerProfile kOne = {"One", "one.example.org", "me", "a/b", "start.htm", 15, "www"};
const publish::ServerProfile kTwo = {"Two", "two.example.org", "anonymous", "", "index.htm", 0, ""};

TEST(ServerKey, TypedBackslashesBecomeSlashesAndBlanksInGalleryPathsAreReplaced) {
  const std::vector<std::tuple<ServerField, std::string, std::string>> cases = {
      {&publish::ServerProfile::ServerURL, "/", " "},
      {&publish::ServerProfile::JumpTo, "/", " "},
      {&publish::ServerProfile::IndexPath, "/", "_"},
      {&publish::ServerProfile::IndexFile, "/", "_"},
      {&publish::ServerProfile::UserName, "\\", " "}};
  for (const auto& [field, backslash, blank] : cases) {
    EXPECT_EQ(ServerKey(field, "\\"), backslash);
    EXPECT_EQ(ServerKey(field, " "), blank);
    EXPECT_EQ(ServerKey(field, "a"), "a");
    EXPECT_EQ(ServerKey(field, ""), "");
  }
}

class PublishModelTest : public testing::Test {
 protected:
  [[nodiscard]] std::filesystem::path File() const { return publish::ServerListFileName(program.Path()); }
  [[nodiscard]] std::string Text() const { return program.Read("vantorium.pub"); }
  PublishModel& Open(const std::vector<publish::ServerProfile>& profiles, std::size_t selected = 0) {
    publish::WriteServerList(profiles, selected, File());
    return Open();
  }
  PublishModel& Open() {
    model = std::make_unique<PublishModel>(File(), boxes);
    return *model;
  }

  fakes::TemporaryFolder program;
  fakes::RecordingMessageBox boxes;
  std::unique_ptr<PublishModel> model;
};

TEST_F(PublishModelTest, OpensWithThePreferredServer) {
  Open({kOne, kTwo}, 1);
  EXPECT_EQ(model->Shown(), kTwo);
  EXPECT_TRUE(model->CanAccept());
  EXPECT_TRUE(model->CanDelete());
  EXPECT_TRUE(model->CanCancel());
  EXPECT_FALSE(model->QueryPublish());
  EXPECT_EQ(model->textTimeout, "0");
}

TEST_F(PublishModelTest, WithoutAFileTheListIsEmptyAndTheNextOpeningHasTheDefault) {
  Open();
  EXPECT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(boxes.boxes[0].title, "File Error");
  EXPECT_FALSE(model->Selected());
  EXPECT_EQ(model->Shown(), publish::ServerProfile());
  EXPECT_FALSE(model->CanAccept());
  EXPECT_FALSE(model->CanDelete());
  model->Edit(&publish::ServerProfile::ServerURL, "typed into nothing");
  EXPECT_FALSE(model->CanAccept());
  Open();
  EXPECT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(model->Shown().ServerName, "Server");
  EXPECT_EQ(model->Shown().IndexPath, "gallery");
}

TEST_F(PublishModelTest, OKRequiresAHost) {
  Open({kOne});
  model->Edit(&publish::ServerProfile::ServerURL, "");
  EXPECT_FALSE(model->CanAccept());
  model->Edit(&publish::ServerProfile::ServerURL, "h");
  EXPECT_TRUE(model->CanAccept());
}

TEST_F(PublishModelTest, EditsChangeTheSelectedServer) {
  Open({kOne, kTwo});
  model->Edit(&publish::ServerProfile::UserName, "somebody");
  model->Select(1);
  EXPECT_EQ(model->Shown(), kTwo);
  model->Select(0);
  EXPECT_EQ(model->Shown().UserName, "somebody");
}

TEST_F(PublishModelTest, TheTimeOutIsNeitherShownNorKept) {
  Open({kOne, kTwo});
  EXPECT_EQ(model->textTimeout, "0");
  for (const auto& change :
       std::vector<std::function<void()>>{[this] { model->Select(1); }, [this] { model->DeleteServer(); },
                                          [this] { EXPECT_TRUE(model->AddNewServer("Three")); }}) {
    model->textTimeout = "30";
    change();
    EXPECT_EQ(model->textTimeout, "0");
  }
  EXPECT_EQ(model->Profiles()[0].TimeOut, 15);
  EXPECT_EQ(model->Profiles()[1].TimeOut, 0);
}

TEST_F(PublishModelTest, TheTimeOutIsTheNumberAtTheStartOfItsText) {
  Open({kOne});
  const std::vector<std::pair<std::string, int>> cases = {{"0", 0},   {"30", 30},  {"12 seconds", 12}, {" 7x", 7},
                                                          {"-5", -5}, {"2.5s", 2}, {"x30", 0},         {"", 0}};
  for (const auto& [text, number] : cases) {
    model->textTimeout = text;
    EXPECT_EQ(model->GetTimeout(), number) << text;
  }
  model->textTimeout = "40000";
  EXPECT_EQ(fakes::FailureOf([this] { std::ignore = model->GetTimeout(); }), env::FailureKind::Overflow);
}

TEST_F(PublishModelTest, ANewServerIsWrittenAtOnceAndCannotBeCancelled) {
  Open({kOne});
  EXPECT_TRUE(model->AddNewServer("Three"));
  EXPECT_EQ(model->Shown(), (publish::ServerProfile{"Three", "", "", "gallery", "index.htm", 0, ""}));
  EXPECT_FALSE(model->CanCancel());
  EXPECT_TRUE(model->CanDelete());
  EXPECT_FALSE(model->CanAccept()) << "the host is missing";
  EXPECT_NE(Text().find("ServerName2=\"Three\""), std::string::npos) << Text();
}

TEST_F(PublishModelTest, ADuplicateNameIsRefused) {
  Open({kOne});
  EXPECT_FALSE(model->AddNewServer("One"));
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(boxes.boxes[0].title, "Name Exists");
  EXPECT_EQ(boxes.boxes[0].text, "A Server with this name has already been defined.  Please use a different name.");
  EXPECT_TRUE(model->CanCancel());
  EXPECT_EQ(model->Profiles().size(), 1U);
  EXPECT_TRUE(model->AddNewServer("one")) << "names that differ in case are different";
}

TEST_F(PublishModelTest, DeletingAServerSelectsTheNextAndOKWritesTheFile) {
  Open({kOne, kTwo});
  const std::string before = Text();
  model->DeleteServer();
  EXPECT_EQ(model->Shown(), kTwo);
  EXPECT_TRUE(model->CanDelete());
  EXPECT_TRUE(model->CanAccept());
  EXPECT_FALSE(model->CanCancel());
  EXPECT_EQ(Text(), before);
  model->DeleteServer();
  EXPECT_FALSE(model->Selected());
  EXPECT_FALSE(model->CanDelete());
  EXPECT_FALSE(model->CanAccept());
}

TEST_F(PublishModelTest, OKCleansUpAndWritesTheList) {
  Open({kOne, kTwo});
  model->Select(1);
  model->Edit(&publish::ServerProfile::ServerURL, "ftp://host/");
  model->Edit(&publish::ServerProfile::IndexPath, "/a//b/");
  model->Edit(&publish::ServerProfile::IndexFile, "");
  EXPECT_TRUE(model->Accept());
  EXPECT_TRUE(model->QueryPublish());
  EXPECT_EQ(model->Shown(), (publish::ServerProfile{"Two", "host/", "anonymous", "a/b", "index.htm", 0, ""}));
  EXPECT_NE(Text().find("PreferredServer=\"2\""), std::string::npos) << Text();
  EXPECT_NE(Text().find("IndexFile2=\"a/b/index.htm\""), std::string::npos) << Text();
}

TEST_F(PublishModelTest, AVisibleIndexFileWithAPathIsRefused) {
  Open({kOne});
  model->Edit(&publish::ServerProfile::IndexFile, "a/start.htm");
  EXPECT_FALSE(model->Accept());
  EXPECT_FALSE(model->QueryPublish());
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(boxes.boxes[0].title, "Invalid Index File Name");
  model->HideIndexFile = true;
  EXPECT_TRUE(model->Accept());
  EXPECT_EQ(model->Shown().IndexFile, "index.htm");
}

TEST_F(PublishModelTest, AFileThatCannotBeWrittenIsReportedAndTheServerIsStillUsed) {
  Open({kOne});
  std::filesystem::remove(File());
  std::filesystem::create_directories(File() / "in the way");
  EXPECT_TRUE(model->Accept());
  EXPECT_TRUE(model->QueryPublish());
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(boxes.boxes[0].title, "File Error");
}

TEST_F(PublishModelTest, CancelSelectsTheInitialServerAgain) {
  Open({kOne, kTwo}, 1);
  const std::string before = Text();
  model->Select(0);
  model->Edit(&publish::ServerProfile::UserName, "somebody");
  model->Cancel();
  EXPECT_EQ(model->Shown(), kTwo);
  EXPECT_FALSE(model->QueryPublish());
  EXPECT_EQ(Text(), before);
}

TEST_F(PublishModelTest, CancelKeepsTheSelectionIfTheInitialServerIsGone) {
  Open({kOne, kTwo});
  model->DeleteServer();
  model->Cancel();
  EXPECT_EQ(model->Shown(), kTwo);
}

TEST_F(PublishModelTest, TheSwitchesChangeTheSelectedProfile) {
  Open({kOne, kTwo}, 1);
  model->Check(&publish::ServerProfile::Passive, true);
  model->Check(&publish::ServerProfile::Encrypted, true);
  EXPECT_TRUE(model->Accept());
  EXPECT_NE(Text().find("Passive2=\"1\"\r\nEncrypted2=\"1\"\r\n"), std::string::npos) << Text();
  model->Check(&publish::ServerProfile::Passive, false);
  model->Check(&publish::ServerProfile::Encrypted, false);
  EXPECT_EQ(model->Shown(), kTwo);
}

TEST_F(PublishModelTest, AnEmptyListHasNoSwitches) {
  Open({});
  model->DeleteServer();
  model->Check(&publish::ServerProfile::Passive, true);
  model->ForgetCertificate();
  EXPECT_EQ(model->Shown(), publish::ServerProfile());
  EXPECT_FALSE(model->CanForgetCertificate());
}

TEST_F(PublishModelTest, ACertificateIsForgottenOnRequestAndWhenTheHostChanges) {
  publish::ServerProfile profile = kOne;
  profile.Encrypted = true;
  profile.Fingerprint = "0F";
  for (int byte = 1; byte < 32; ++byte) profile.Fingerprint += ":0F";
  Open({profile});
  EXPECT_TRUE(model->CanForgetCertificate());
  model->Edit(&publish::ServerProfile::UserName, "another");
  model->Edit(&publish::ServerProfile::ServerURL, kOne.ServerURL);
  EXPECT_TRUE(model->CanForgetCertificate());
  model->ForgetCertificate();
  EXPECT_FALSE(model->CanForgetCertificate());
  EXPECT_TRUE(model->Shown().Encrypted);
  Open({profile});
  model->Edit(&publish::ServerProfile::ServerURL, "elsewhere");
  EXPECT_FALSE(model->CanForgetCertificate());
}

}  // namespace
}  // namespace vantorium::ui
