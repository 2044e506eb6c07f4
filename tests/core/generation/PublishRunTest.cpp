#include "tests/core/generation/PublishFixture.h"

namespace vantorium::generation {
namespace {

using fakes::ScriptedFtpServer;
using Script = ScriptedFtpServer::Script;
using Session = ScriptedFtpServer::Session;
using Texts = std::vector<std::string>;

class PublishRunTest : public PublishFixture {
 protected:
  /// How often the client asked whether a file exists.
  [[nodiscard]] static std::size_t Questions(const ScriptedFtpServer& server) {
    const Texts commands = server.Commands();
    return static_cast<std::size_t>(
        std::ranges::count_if(commands, [](const std::string& line) { return line.starts_with("RNFR "); }));
  }
  /// The commands that the server received, except PORT.
  [[nodiscard]] static Texts Dialogue(const ScriptedFtpServer& server) {
    Texts commands = server.Commands();
    std::erase_if(commands, [](const std::string& line) { return line.starts_with("PORT "); });
    return commands;
  }
};

TEST_F(PublishRunTest, APublishedGalleryEqualsTheCreatedOneFileByFile) {
  for (const char* name : {"a", "b", "c"}) AddPhotograph(name);
  folder.Write("project/back.gif", "GIF");
  project.settings.textThumbnailsPageBackdrop = "back.gif";
  project.settings.ImageHeader = "<VANTORIUM_IMAGE_FILESIZE>";
  ScriptedFtpServer server;
  EXPECT_EQ(Run(PublishTo(server)), RunEnd::Success) << LastBox();
  EXPECT_EQ(Run(OrderToCreate()), RunEnd::Success);

  const auto published = server.Files();
  const auto created = FilesIn("out");
  EXPECT_EQ(published.size(), created.size());
  for (const auto& name : created) {
    const auto file = published.find("web/" + name);
    ASSERT_NE(file, published.end()) << name;
    EXPECT_EQ(file->second, folder.Read("out/" + name)) << name;
  }
}

TEST_F(PublishRunTest, PagesAndThumbnailsAreDeletedLocallyAfterSendingAndImagesStay) {
  AddPhotograph("a");
  ScriptedFtpServer server;
  Run(PublishTo(server));
  EXPECT_EQ(FilesIn("temp"), std::set<std::string>{"a.jpg"});
}

TEST_F(PublishRunTest, TheRunLogsEachStepAndSendsItsCommands) {
  AddPhotograph("a");
  ScriptedFtpServer server;
  RunOrder order = PublishTo(server);
  order.BaseDirectory = "home";
  Run(order);
  EXPECT_TRUE(host.progress.logToFile);
  EXPECT_EQ(host.progress.caption, "Publishing Gallery");
  const Texts firstTexts(host.progress.texts2.begin(), host.progress.texts2.begin() + 4);
  EXPECT_EQ(firstTexts, (Texts{"", "Connecting...", "Logging in...", "Switching to Base Directory..."}));
  EXPECT_EQ(host.progress.log.find("secret"), std::string::npos);
  EXPECT_FALSE(ftp.IsConnected()) << "the connection is closed at the end";
  EXPECT_EQ(ftp.FTPProgress, nullptr);
}

TEST_F(PublishRunTest, WithoutOverwriteFilesOnTheServerAreNotSentAndTheirSizesAreRead) {
  AddPhotograph("a");
  ScriptedFtpServer server;
  server.PutFile("web/Images/a.jpg", std::string(3000, 'x'));
  server.PutFile("web/Thumbs/thumb_a.jpg", "old");
  project.settings.ImageHeader = "<VANTORIUM_IMAGE_FILESIZE>";
  RunOrder order = PublishTo(server);
  order.Overwrite = false;
  EXPECT_EQ(Run(order), RunEnd::Success) << LastBox();
  EXPECT_EQ(server.Files().at("web/Thumbs/thumb_a.jpg"), "old");
  EXPECT_EQ(server.Files().at("web/Images/a.jpg"), std::string(3000, 'x'));
  EXPECT_NE(server.Files().at("web/a.htm").find("\r\n2KB\r\n"), std::string::npos);
}

TEST_F(PublishRunTest, WithoutOverwriteTheServerIsAskedOnceForEachFileAtItsTurnWithAnyNumberOfJobs) {
  for (const char* name : {"a", "b", "c", "d", "e", "f"}) AddPhotograph(name);
  Texts firstDialogue;
  for (unsigned jobs : {1U, 2U, 5U}) {
    ScriptedFtpServer server;
    for (const char* name : {"web/Images/a.jpg", "web/Images/d.jpg", "web/Thumbs/thumb_e.jpg"}) {
      server.PutFile(name, "old");
    }
    // The number of questions before each file was first announced.
    std::map<std::string, std::size_t> questions;
    loop.onTurn = [&](int) {
      const std::string status = host.statuses.empty() ? "" : host.statuses.back();
      if (status.find("File \"") != std::string::npos) questions.emplace(status, Questions(server));
    };
    RunOrder order = PublishTo(server);
    order.Overwrite = false;
    order.CreateHTML = false;
    environment.jobs = jobs;
    host.statuses.clear();
    EXPECT_EQ(Run(order), RunEnd::Success) << LastBox();

    EXPECT_EQ(Questions(server), 12U) << jobs << " jobs";
    for (std::size_t i = 0; i < 6; ++i) {
      const std::string name(1, static_cast<char>('a' + i));
      EXPECT_EQ(questions.at("Copying File \"" + name + "\"..."), i) << jobs << " jobs";
      EXPECT_EQ(questions.at("Creating Thumbnail for File \"" + name + "\"..."), 6 + i) << jobs << " jobs";
    }
    if (firstDialogue.empty()) firstDialogue = Dialogue(server);
    EXPECT_EQ(Dialogue(server), firstDialogue) << jobs << " jobs";
  }
}

TEST_F(PublishRunTest, ASourceRemovedBeforeItsCopyIsNamed) {
  AddEntry("gone", "T:\\photos\\gone.jpg");
  project.settings.checkImageWrapperImageKeepSize = 1;
  ScriptedFtpServer server;
  EXPECT_EQ(Run(PublishTo(server)), RunEnd::Failure);
  EXPECT_EQ(LastBox(), "File Error: Unable to copy the File \"T:\\photos\\gone.jpg\".");
  EXPECT_TRUE(NamesOn(server).empty());
}

TEST_F(PublishRunTest, ATemporaryCopyDoesNotReplaceASource) {
  folder.Write("temp/a.jpg", PlainJpeg(40, 30));
  AddEntry("a", "T:\\temp\\a.jpg");
  const std::string photograph = folder.Read("temp/a.jpg");
  ScriptedFtpServer server;
  EXPECT_EQ(Run(PublishTo(server)), RunEnd::Failure);
  EXPECT_EQ(LastBox(),
            "File Error: Unable to create temporary Copy of the File \"T:\\temp\\a.jpg\".  It would replace "
            "\"T:\\temp\\a.jpg\", which this Gallery is made from.");
  EXPECT_EQ(folder.Read("temp/a.jpg"), photograph);
  EXPECT_TRUE(NamesOn(server).empty());

  project.settings.checkImageWrapperImageKeepSize = 1;
  EXPECT_EQ(Run(PublishTo(server)), RunEnd::Success) << "sent without a copy";
  EXPECT_EQ(folder.Read("temp/a.jpg"), photograph);
}

struct RefusalCase {
  const char* verb;
  const char* reply;
  const char* box;
};

TEST_F(PublishRunTest, EachRefusalOfTheServerEndsTheRunWithItsMessage) {
  AddPhotograph("a");
  for (const RefusalCase& c :
       {RefusalCase{"USER", "530 no\r\n", "FTP Error: Invalid User ID or Password."},
        RefusalCase{"PASS", "530 no\r\n", "FTP Error: Invalid User ID or Password."},
        RefusalCase{"CWD", "550 no\r\n", "FTP Error: Cannot switch to specified base Directory \"home\"."},
        RefusalCase{"STOR", "553 no\r\n", "FTP File Error: Unable to copy the File \"T:\\photos\\a.jpg\"."},
        RefusalCase{"STOR", "125 no\r\n", "FTP File Error: Unable to copy the File \"T:\\photos\\a.jpg\"."}}) {
    boxes.boxes.clear();
    ScriptedFtpServer server(Answering(c.verb, c.reply));
    RunOrder order = PublishTo(server);
    order.BaseDirectory = "home";
    EXPECT_EQ(Run(order), RunEnd::Failure) << c.verb;
    EXPECT_EQ(LastBox(), c.box);
    EXPECT_TRUE(NamesOn(server).empty()) << c.verb;
    EXPECT_FALSE(ftp.IsConnected()) << c.verb;
  }
}

TEST_F(PublishRunTest, AnInvalidGreetingEndsTheRun) {
  AddPhotograph("a");
  Script script;
  script.greet = [](Session& session) { session.Say("421 full\r\n"); };
  ScriptedFtpServer server(script);
  EXPECT_EQ(Run(PublishTo(server)), RunEnd::Failure);
  EXPECT_EQ(LastBox(), "FTP Error: Cannot connect to Server.  Please check your Internet Connection and Server URL.");
}

TEST_F(PublishRunTest, AFolderThatCannotBeEnteredEndsTheRun) {
  AddPhotograph("a");
  ScriptedFtpServer server(Answering("CWD", "550 no\r\n"));
  EXPECT_EQ(Run(PublishTo(server)), RunEnd::Failure);
  EXPECT_EQ(LastBox(), "FTP Directory Error: Unable to create Images Subfolder.");
}

TEST_F(PublishRunTest, AThumbnailFolderThatCannotBeEnteredEndsTheRunBeforeAnythingIsSent) {
  AddPhotograph("a");
  Script script;
  script.on["CWD"] = [](Session& session, const std::string& argument) {
    session.Say(argument == "Thumbs" ? "550 no\r\n" : "250 there\r\n");
  };
  ScriptedFtpServer server(script);
  EXPECT_EQ(Run(PublishTo(server)), RunEnd::Failure);
  EXPECT_EQ(LastBox(), "FTP Directory Error: Unable to create Thumbnails Subfolder.");
  EXPECT_FALSE(server.HasHeard("STOR"));
}

TEST_F(PublishRunTest, OnlyRunsThatSendFilesShowTheirProgress) {
  AddPhotograph("a");
  EXPECT_EQ(Run(OrderToCreate()), RunEnd::Success);
  EXPECT_EQ(Run(OrderToPreview()), RunEnd::Success);
  EXPECT_TRUE(host.progress.filePercentages.empty());
  ScriptedFtpServer server;
  EXPECT_EQ(Run(PublishTo(server)), RunEnd::Success) << LastBox();
  EXPECT_FALSE(host.progress.filePercentages.empty());
}

TEST_F(PublishRunTest, EachPhaseNamesTheFileThatCouldNotBeSent) {
  AddPhotograph("a");
  for (const auto& [refused, box] : {
           std::pair{"web/Thumbs/thumb_a.jpg", "FTP File Error: Unable to create Thumbnail for \"T:\\photos\\a.jpg\"."},
           std::pair{"web/index.htm", "FTP File Error: Unable to create the Gallery Index File."},
           std::pair{"web/thumbpage_1.htm", "FTP File Error: Unable to create the File \"web/thumbpage_1.htm\"."},
           std::pair{"web/a.htm", "FTP File Error: Unable to create the File \"web/a.htm\"."},
       }) {
    boxes.boxes.clear();
    Script script;
    const std::string name = refused;
    script.on["STOR"] = [name](Session& session, const std::string& argument) {
      if (argument == name) return session.Say("553 no\r\n");
      session.Answer("STOR", argument);
    };
    ScriptedFtpServer server(script);
    EXPECT_EQ(Run(PublishTo(server)), RunEnd::Failure) << refused;
    EXPECT_EQ(LastBox(), box);
    EXPECT_EQ(NamesOn(server).count(refused), 0U);
  }
}

TEST_F(PublishRunTest, AListTextThatLeavesTheFolderIsNotSent) {
  folder.Write("photos/x.jpg", PlainJpeg(8, 8));
  AddEntry("../evil", "T:\\photos\\x.jpg");
  ScriptedFtpServer server;
  EXPECT_EQ(Run(PublishTo(server)), RunEnd::Failure);
  EXPECT_EQ(LastBox(), "File Error: Unable to create temporary Copy of the File \"T:\\photos\\x.jpg\".");
  EXPECT_TRUE(NamesOn(server).empty());
  EXPECT_FALSE(std::filesystem::exists(folder.Path() / "evil.jpg"));
}

TEST_F(PublishRunTest, ACancelDuringATransferIsNotReportedAsAFailure) {
  AddPhotograph("a", 400, 300);
  Script script;
  script.on["STOR"] = [](Session& session, const std::string&) {
    session.Say("150 go on\r\n");
    session.OpenData();
    session.StaySilent();
  };
  ScriptedFtpServer server(script);
  folder.Write("photos/a.jpg", PlainJpeg(400, 300) + std::string(32 << 20, 'x'));
  project.settings.checkImageWrapperImageKeepSize = 1;
  loop.onTurn = [&, pressed = false](int) mutable {
    if (pressed || !data->IsConnected() || !data->IsBlocking()) return;
    pressed = true;
    host.openWindow->SetIsCancelled(true);
    std::ignore = cancel.CheckForCancel(*host.openWindow);
  };
  EXPECT_EQ(Run(PublishTo(server)), RunEnd::Cancelled);
  EXPECT_EQ(LastBox(), "Creation cancelled: The User has cancelled Creation of the Gallery");
  EXPECT_EQ(boxes.boxes.size(), 2U);
}

// Upload

TEST_F(PublishRunTest, AnUploadSendsTheFolderWithItsTreeAndFillsTheBar) {
  folder.Write("folder/a.txt", "1");
  folder.Write("folder/sub/b.txt", "22");
  ScriptedFtpServer server;
  EXPECT_EQ(Run(UploadTo(server)), RunEnd::Success) << LastBox();
  const std::map<std::string, std::string> expected = {{"web/a.txt", "1"}, {"web/sub/b.txt", "22"}};
  EXPECT_EQ(server.Files(), expected);
  EXPECT_EQ(host.progress.caption, "Uploading Folder");
  EXPECT_EQ(host.progress.maximum, 5);
  EXPECT_EQ(*(host.progress.values.end() - 2), 5) << "both passes count the same steps";
}

TEST_F(PublishRunTest, AnUploadWithoutARemoteFolderStaysBelowTheBaseDirectory) {
  folder.Write("folder/a.txt", "1");
  folder.Write("folder/sub/b.txt", "22");
  for (const char* remote : {"", "/"}) {
    ScriptedFtpServer server;
    RunOrder order = UploadTo(server);
    order.BaseDirectory = "htdocs";
    order.RemoteFolder = remote;
    EXPECT_EQ(Run(order), RunEnd::Success) << LastBox();
    EXPECT_TRUE(server.HasHeard("CWD htdocs"));
    EXPECT_EQ(NamesOn(server), (std::set<std::string>{"a.txt", "sub/b.txt"})) << remote;
  }
}

TEST_F(PublishRunTest, AGalleryWithoutARemoteFolderStaysBelowTheBaseDirectory) {
  AddPhotograph("a");
  for (const char* remote : {"", "/"}) {
    for (const char* images : {"Images", "", "/Images", "\\Images"}) {
      project.settings.textImageSettingsSubFolder = images;
      ScriptedFtpServer server;
      RunOrder order = PublishTo(server);
      order.BaseDirectory = "htdocs";
      order.RemoteFolder = remote;
      EXPECT_EQ(Run(order), RunEnd::Success) << LastBox();
      EXPECT_TRUE(server.HasHeard("STOR a.htm")) << images;
      EXPECT_TRUE(server.HasHeard("STOR index.htm")) << images;
      EXPECT_FALSE(server.HasHeard("STOR /"))
          << "a remote folder \"" << remote << "\" and images in \"" << images << "\"";
    }
  }
}

TEST_F(PublishRunTest, AnUploadReportsAtItsEndTheFoldersItSkipped) {
  folder.Write("folder/a.txt", "1");
  std::filesystem::create_directory_symlink("/", folder.Path() / "folder/all");
  ScriptedFtpServer server;
  EXPECT_EQ(Run(UploadTo(server)), RunEnd::Success);
  EXPECT_EQ(LastBox(), "Folders left out: These Folders are symbolic Links and were not uploaded:\r\rT:\\folder\\all");
  EXPECT_EQ(NamesOn(server), std::set<std::string>{"web/a.txt"});
}

TEST_F(PublishRunTest, ACancelDuringTheCountEndsTheCount) {
  for (int i = 0; i < 50; ++i) folder.Write("folder/f" + std::to_string(i), "x");
  ScriptedFtpServer server;
  int turns = 0;
  loop.onTurn = [&](int) {
    if (!server.HasHeard("PASS") || ++turns != 10) return;
    host.openWindow->SetIsCancelled(true);
    std::ignore = cancel.CheckForCancel(*host.openWindow);
  };
  EXPECT_EQ(Run(UploadTo(server)), RunEnd::Failure);
  EXPECT_EQ(LastBox(), "Upload cancelled: The User has cancelled Upload of the Gallery");
  EXPECT_FALSE(server.HasHeard("MKD"));
}

TEST_F(PublishRunTest, AnUploadCollectsNothingAndNeedsNoImages) {
  folder.Write("folder/a.txt", "1");
  ScriptedFtpServer server;
  Run(UploadTo(server));
  for (const auto& text : host.statuses) EXPECT_FALSE(text.starts_with("Collecting")) << text;
}

TEST_F(PublishRunTest, AnUploadOfAMissingFolderFailsSilently) {
  ScriptedFtpServer server;
  EXPECT_EQ(Run(UploadTo(server)), RunEnd::Failure);
  EXPECT_TRUE(boxes.boxes.empty()) << LastBox();
  EXPECT_TRUE(server.HasHeard("MKD web"));
  EXPECT_FALSE(server.HasHeard("STOR"));
}

TEST_F(PublishRunTest, AFileThatTheServerRefusesFailsTheUpload) {
  folder.Write("folder/a.txt", "1");
  ScriptedFtpServer server(Answering("STOR", "553 no\r\n"));
  EXPECT_EQ(Run(UploadTo(server)), RunEnd::Failure);
  EXPECT_TRUE(NamesOn(server).empty());
}

TEST_F(PublishRunTest, ACancelledUploadHasItsMessageBoxAndEndsAsAFailure) {
  for (int i = 0; i < 20; ++i) folder.Write("folder/f" + std::to_string(i), "x");
  ScriptedFtpServer server;
  loop.onTurn = [&, pressed = false](int) mutable {
    if (pressed || host.statuses.empty() || !host.statuses.back().ends_with("f3\"...")) return;
    pressed = true;
    host.openWindow->SetIsCancelled(true);  // checked at the next entry
  };
  EXPECT_EQ(Run(UploadTo(server)), RunEnd::Failure);
  EXPECT_EQ(LastBox(), "Upload cancelled: The User has cancelled Upload of the Gallery");
  EXPECT_LT(NamesOn(server).size(), 20U);
}

TEST_F(PublishRunTest, TheRunReportsWhyTheSessionIsNotEncrypted) {
  AddPhotograph("a");
  ScriptedFtpServer server;
  ftp.Options.encrypted = true;
  EXPECT_EQ(Run(PublishTo(server)), RunEnd::Failure);
  EXPECT_EQ(LastBox(), "FTP Error: The server \"127.0.0.1\" offers no encryption (TLS).");
  EXPECT_EQ(server.Commands(), Texts{"AUTH TLS"});
}

}  // namespace
}  // namespace vantorium::generation
