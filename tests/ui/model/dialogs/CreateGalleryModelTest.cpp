#include "publish/ServerListFile.h"
#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/ScriptedFileBrowser.h"
#include "tests/fakes/ScriptedFolderBrowser.h"
#include "tests/fakes/TemporaryFolder.h"
#include "ui/model/dialogs/CreateGalleryModel.h"

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

const publish::ServerProfile kOne = {"One", "one.example.org", "me", "a/b", "start.htm", 0, "www"};
const publish::ServerProfile kTwo = {"Two", "two.example.org", "Anonymous", "", "index.htm", 0, ""};

class CreateGalleryModelTest : public testing::Test {
 protected:
  [[nodiscard]] std::filesystem::path File() const { return publish::ServerListFileName(program.Path()); }
  void OpenWith(const std::vector<publish::ServerProfile>& profiles, std::optional<std::size_t> selected = 0) {
    publish::WriteServerList(profiles, selected, File());
    model.ComeUp();
  }
  void OpenWithIndex(const std::string& indexFile) {
    program.Write("vantorium.pub",
                  "[PUBLISH]\r\nServerCount=\"1\"\r\nPreferredServer=\"1\"\r\nServerURL1=\"host\"\r\n"
                  "UserName1=\"me\"\r\nIndexFile1=\"" +
                      indexFile + "\"\r\nJumpTo1=\"\"\r\n");
    model.ComeUp();
  }
  std::string LeftFilePath(const std::string& typed) {
    model.EditFilePath(typed);
    model.LeaveFilePath();
    return model.FilePath();
  }
  /// The order for `option` after the dialog is closed by its button.
  generation::RunOrder Applied(generation::GenerationMode option) {
    model.Choose(option);
    EXPECT_EQ(model.Apply(), ApplyResult::Done);
    return model.Order().value_or(generation::RunOrder{.Mode = generation::GenerationMode::Preview});
  }
  void ExpectBox(const std::string& title, const std::string& text) const {
    ASSERT_EQ(boxes.boxes.size(), 1U);
    EXPECT_EQ(boxes.boxes[0].kind, env::BoxKind::Critical);
    EXPECT_EQ(boxes.boxes[0].title, title);
    EXPECT_EQ(boxes.boxes[0].text, text);
  }

  fakes::TemporaryFolder program;
  env::Preferences preferences;
  env::PathMap paths{{{'C', "/home/me"}}};
  fakes::RecordingMessageBox boxes;
  CreateGalleryModel model{preferences, File(), paths, boxes};
};

TEST_F(CreateGalleryModelTest, NothingIsRemovedWithoutOnlyChanges) {
  using generation::RunOrder;
  model.ComeUp();
  EXPECT_FALSE(model.IsChecked(&RunOrder::OnlyChanges) || model.CanRemoveUnused());
  model.Check(&RunOrder::RemoveUnused, true);
  EXPECT_FALSE(Applied(generation::GenerationMode::Create).RemoveUnused);
  model.Check(&RunOrder::OnlyChanges, true);
  EXPECT_TRUE(model.CanRemoveUnused());
  for (const auto mode : {generation::GenerationMode::Create, generation::GenerationMode::Publish}) {
    const RunOrder order = Applied(mode);
    EXPECT_TRUE(order.OnlyChanges && order.RemoveUnused);
  }
}

// Folder paths

TEST(NormalizeFolderPath, AFolderOnADriveEndsInABackslash) {
  const std::vector<std::pair<std::string, std::string>> cases = {{"C:", "C:\\"},
                                                                  {"C:\\", "C:\\"},
                                                                  {"C:\\photos", "C:\\photos\\"},
                                                                  {"C:\\photos\\", "C:\\photos\\"},
                                                                  {"C:\\photos\\\\", "C:\\photos\\"},
                                                                  {"x:\\a:", "x:\\a:\\"}};
  for (const auto& [typed, normal] : cases) {
    fakes::RecordingMessageBox boxes;
    std::string path = typed;
    EXPECT_TRUE(NormalizeFolderPath(path, boxes)) << typed;
    EXPECT_EQ(path, normal) << typed;
    EXPECT_TRUE(boxes.boxes.empty()) << typed;
  }
}

TEST(NormalizeFolderPath, AFolderWithoutADriveIsRefused) {
  const std::vector<std::pair<std::string, std::string>> cases = {{"photos", "photos\\"},
                                                                  {"photos\\", "photos\\"},
                                                                  {"", "\\"},
                                                                  {"\\\\server\\share", "\\\\server\\share\\"},
                                                                  {"C:photos", "C:photos\\"}};
  for (const auto& [typed, normal] : cases) {
    fakes::RecordingMessageBox boxes;
    std::string path = typed;
    EXPECT_FALSE(NormalizeFolderPath(path, boxes)) << typed;
    EXPECT_EQ(path, normal) << typed;
    ASSERT_EQ(boxes.boxes.size(), 1U) << typed;
    EXPECT_EQ(boxes.boxes[0].title, "Invalid Path");
    EXPECT_EQ(boxes.boxes[0].text, "You must specify an absolute Path.");
    EXPECT_EQ(boxes.boxes[0].kind, env::BoxKind::Critical);
  }
}

TEST(PathKey, ATypedSlashBecomesABackslashUnlessThePathIsNative) {
  EXPECT_EQ(PathKey("C:", "/"), "\\");
  EXPECT_EQ(PathKey("C:\\web", "/"), "\\");
  EXPECT_EQ(PathKey("", "/"), "/");
  EXPECT_EQ(PathKey("/home", "/"), "/");
  EXPECT_EQ(PathKey("C:", "a"), "a");
  EXPECT_EQ(PathKey("C:", "\\"), "\\");
  EXPECT_EQ(PathKey("C:", ""), "");
}

// Opening

TEST_F(CreateGalleryModelTest, OpensWithTheLastTarget) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"", "start.htm"}, {"D:\\web", "D:\\web\\start.htm"}, {"D:\\web\\", "D:\\web\\start.htm"}};
  preferences.GalleryIndexFileName = "start.htm";
  for (const auto& [folder, file] : cases) {
    preferences.CreateFolder = folder;
    model.ComeUp();
    EXPECT_EQ(model.FilePath(), file) << folder;
  }
}

TEST_F(CreateGalleryModelTest, TheSourceFolderIsTheFolderOfTheLastTarget) {
  preferences.CreateFolder = "D:\\web\\one\\";
  model.ComeUp();
  EXPECT_EQ(model.SourceFolder(), "D:\\web\\one\\");
  preferences.CreateFolder = "D:\\web\\one";
  model.ComeUp();
  EXPECT_EQ(model.SourceFolder(), "D:\\web\\");
}

TEST_F(CreateGalleryModelTest, WithoutServersTheDestinationsAreEmpty) {
  OpenWith({kOne});
  ASSERT_EQ(model.PublishDestination(), "one.example.org/a/b/start.htm");
  const std::string head = "[PUBLISH]\r\n";
  for (const std::string& text :
       {std::string(), head + "ServerCount=\"0\"\r\nPreferredServer=\"0\"\r\n", head + "ServerCount=\"many\"\r\n",
        head + "ServerCount=\"-1\"\r\nPreferredServer=\"1\"\r\n",
        head + "ServerCount=\"1\"\r\nPreferredServer=\"1\"\r\nServerURL1=\"host\"\r\n"}) {
    program.Write("vantorium.pub", text);
    model.ComeUp();
    EXPECT_EQ(model.PublishDestination(), "") << text;
    EXPECT_EQ(model.UploadDestination(), "") << text;
    EXPECT_EQ(Applied(generation::GenerationMode::Publish).ServerAddress, "") << text;
  }
  std::filesystem::remove(File());
  model.ComeUp();
  EXPECT_EQ(model.PublishDestination(), "");
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(CreateGalleryModelTest, OpensWithThePreferredServer) {
  OpenWith({kTwo, kOne}, 1);
  EXPECT_EQ(model.PublishDestination(), "one.example.org/a/b/start.htm");
  EXPECT_EQ(model.UploadDestination(), "one.example.org/a/b/");
  const generation::RunOrder order = Applied(generation::GenerationMode::Publish);
  EXPECT_EQ(order.ServerAddress, "one.example.org");
  EXPECT_EQ(order.UserName, "me");
  EXPECT_EQ(order.RemoteFolder, "a/b/");
  EXPECT_EQ(order.RemoteIndexFileName, "start.htm");
  EXPECT_EQ(order.BaseDirectory, "www");
  EXPECT_EQ(order.Port, 21);
}

TEST_F(CreateGalleryModelTest, APreferenceOutsideTheListMeansTheFirstServer) {
  for (const char* preferred : {"0", "-3", "3"}) {
    publish::WriteServerList({kOne, kTwo}, 0, File());
    std::string text = program.Read("vantorium.pub");
    text.replace(text.find("PreferredServer=\"1\""), 19, "PreferredServer=\"" + std::string(preferred) + "\"");
    program.Write("vantorium.pub", text);
    model.ComeUp();
    EXPECT_EQ(model.UploadDestination(), "one.example.org/a/b/") << preferred;
  }
}

TEST_F(CreateGalleryModelTest, TheIndexFileIsSplitAtItsLastSlashOrBackslash) {
  const std::vector<std::array<std::string, 3>> cases = {
      {"index.htm", "host/index.htm", "host/"},
      {"/index.htm", "host/index.htm", "host/"},
      {"gallery/index.htm", "host/gallery/index.htm", "host/gallery/"},
      {"a\\b\\start.htm", "host/a/b/start.htm", "host/a/b/"},
      {"a//start.htm", "host/a/start.htm", "host/a/"},
      {"gallery/", "host/gallery/", "host/gallery/"},
      {"", "host/", "host/"}};
  for (const auto& [index, publish, upload] : cases) {
    OpenWithIndex(index);
    EXPECT_EQ(model.PublishDestination(), publish) << index;
    EXPECT_EQ(model.UploadDestination(), upload) << index;
  }
}

TEST_F(CreateGalleryModelTest, ThePasswordIsHiddenUnlessTheUserIsAnonymous) {
  EXPECT_TRUE(model.IsPasswordHidden());
  OpenWith({kOne, kTwo}, 1);
  EXPECT_FALSE(model.IsPasswordHidden());
  OpenWith({kOne, kTwo}, 0);
  EXPECT_TRUE(model.IsPasswordHidden());
}

TEST_F(CreateGalleryModelTest, OpensWithTheLastOptionAndSwitchesButWithoutThePassword) {
  OpenWith({kOne});
  EXPECT_EQ(model.Chosen(), generation::GenerationMode::Create);
  EXPECT_TRUE(model.IsChecked(&generation::RunOrder::CreateImages) &&
              model.IsChecked(&generation::RunOrder::CreateThumbnails) &&
              model.IsChecked(&generation::RunOrder::CreateHTML) && model.IsChecked(&generation::RunOrder::Overwrite));
  model.Choose(generation::GenerationMode::Publish);
  model.Check(&generation::RunOrder::Overwrite, false);
  model.EditPassword("secret");
  EXPECT_EQ(model.Apply(), ApplyResult::Done);
  EXPECT_EQ(model.Order().value().Password, "secret");
  model.ComeUp();
  EXPECT_EQ(model.Password(), "");
  EXPECT_EQ(model.Chosen(), generation::GenerationMode::Publish);
  EXPECT_FALSE(model.IsChecked(&generation::RunOrder::Overwrite));
  EXPECT_TRUE(model.Cancelled);
}

// Switches

TEST_F(CreateGalleryModelTest, AnUploadOfAFolderProducesNothing) {
  for (const generation::GenerationMode option :
       {generation::GenerationMode::Create, generation::GenerationMode::Publish}) {
    model.Choose(option);
    EXPECT_TRUE(model.Produces());
    EXPECT_TRUE(model.CanOverwrite());
  }
  model.Choose(generation::GenerationMode::Upload);
  EXPECT_FALSE(model.Produces());
  EXPECT_FALSE(model.CanOverwrite());
}

TEST_F(CreateGalleryModelTest, OverwriteAppliesToImagesAndThumbnails) {
  for (const bool images : {true, false}) {
    for (const bool thumbnails : {true, false}) {
      model.Check(&generation::RunOrder::CreateImages, images);
      model.Check(&generation::RunOrder::CreateThumbnails, thumbnails);
      EXPECT_EQ(model.CanOverwrite(), images || thumbnails);
    }
  }
}

// The file of a local gallery

TEST_F(CreateGalleryModelTest, ATypedFolderBecomesItsIndexFile) {
  preferences.CreateFolder = "C:\\gallery\\";
  const std::vector<std::pair<std::string, std::string>> cases = {{"D:", "D:\\index.htm"},
                                                                  {"D:\\", "D:\\index.htm"},
                                                                  {"D:\\web", "D:\\web\\index.htm"},
                                                                  {"D:\\web\\", "D:\\web\\index.htm"},
                                                                  {"D:\\web\\page.html", "D:\\web\\page.html"},
                                                                  {"D:/web/page.html", "D:\\web\\page.html"},
                                                                  {"D:\\a.b\\c", "D:\\a.b\\c"},
                                                                  {"web\\page.html", "C:\\gallery\\index.htm"},
                                                                  {"", "C:\\gallery\\index.htm"},
                                                                  {"/home/me/web/page.html", "C:\\web\\page.html"},
                                                                  {"/home/me/web", "C:\\web\\index.htm"},
                                                                  {"/srv/web", "C:\\gallery\\index.htm"}};
  for (const auto& [typed, file] : cases) EXPECT_EQ(LeftFilePath(typed), file) << typed;
  preferences.CreateFolder = "D:\\web";
  EXPECT_EQ(LeftFilePath("page.html"), "D:\\web\\index.htm");
}

TEST_F(CreateGalleryModelTest, BrowsingForTheFileBeginsAtTheLastTarget) {
  preferences.CreateFolder = "D:\\web\\";
  preferences.GalleryIndexFileName = "start.htm";
  model.ComeUp();
  model.EditFilePath("E:\\other.htm");
  fakes::ScriptedFileBrowser browser;
  model.BrowseFilePath(browser);
  EXPECT_EQ(model.FilePath(), "E:\\other.htm") << "the dialog was cancelled";
  browser.answer.result = "F:\\new.htm";
  model.BrowseFilePath(browser);
  EXPECT_EQ(model.FilePath(), "F:\\new.htm");
  const FileDialogRequest& request = browser.requests.at(1);
  EXPECT_FALSE(request.open);
  EXPECT_EQ(request.title, "Select Location and File Name for Gallery Index File");
  EXPECT_EQ(request.initialFolder, "D:\\web\\");
  EXPECT_EQ(request.fileName, "start.htm");
  EXPECT_EQ(request.filter,
            "All Files (*.*)|*.*|HTML Files (*.htm,*.html)|*.htm;*.html|SHTML Files (*.shtm,*.shtml)|*.shtm;*.shtml");
}

// The folder to be uploaded

TEST_F(CreateGalleryModelTest, BrowsingForTheSourceFolderBeginsAtTheCurrentFolder) {
  fakes::ScriptedFolderBrowser browser;
  model.EditSourceFolder("D:\\web\\gallery");
  EXPECT_FALSE(model.BrowseSourceFolder(browser));
  EXPECT_EQ(model.SourceFolder(), "D:\\web\\gallery");
  browser.answers = {"E:\\photos"};
  EXPECT_TRUE(model.BrowseSourceFolder(browser));
  EXPECT_EQ(model.SourceFolder(), "E:\\photos");
  EXPECT_EQ(browser.asked, std::vector<std::string>(2, "Select Source Folder: D:\\web\\"));
}

TEST_F(CreateGalleryModelTest, ANativeSourceFolderBecomesPathText) {
  model.EditSourceFolder("/home/me/photos");
  model.LeaveSourceFolder();
  EXPECT_EQ(model.SourceFolder(), "C:\\photos");
  model.EditSourceFolder("photos");
  model.LeaveSourceFolder();
  EXPECT_EQ(model.SourceFolder(), "photos") << "Apply refuses it";
}

// Servers and their password

TEST_F(CreateGalleryModelTest, AChosenServerIsApplied) {
  OpenWith({kTwo});
  model.TakeServer(kOne);
  EXPECT_EQ(model.PublishDestination(), "one.example.org/a/b/start.htm");
  EXPECT_EQ(model.UploadDestination(), "one.example.org/a/b");
  model.TakeServer(kTwo);
  EXPECT_EQ(model.PublishDestination(), "two.example.org/index.htm");
  EXPECT_EQ(model.UploadDestination(), "two.example.org/");
  std::ignore = model.Apply();
  const generation::RunOrder order = Applied(generation::GenerationMode::Publish);
  EXPECT_EQ(order.ServerAddress, "two.example.org");
  EXPECT_EQ(order.UserName, "Anonymous");
  EXPECT_EQ(order.RemoteFolder, "");
  EXPECT_EQ(order.RemoteIndexFileName, "index.htm");
  EXPECT_EQ(order.BaseDirectory, "");
}

TEST_F(CreateGalleryModelTest, AChangeOfTheDestinationClearsThePassword) {
  OpenWith({kOne});
  const std::vector<std::pair<std::string, std::function<void()>>> changes = {
      {"another server", [this] { model.TakeServer(kTwo); }},
      {"the dialog of the servers was left", [this] { model.LeaveServers(kOne); }},
      {"a gallery's destination by hand", [this] { model.EditPublishDestination("x"); }},
      {"a folder's destination by hand", [this] { model.EditUploadDestination("x"); }}};
  for (const auto& [name, change] : changes) {
    model.EditPassword("secret");
    change();
    EXPECT_EQ(model.Password(), "") << name;
  }
}

struct TypedCase {
  const char* typed;
  const char* host;
  const char* path;
  const char* file;
};

TEST_F(CreateGalleryModelTest, AGalleryIsSentToTheTypedDestination) {
  for (const auto& [typed, host, path, file] :
       {TypedCase{"other.example.org/web/new/page.html", "other.example.org", "web/new/", "page.html"},
        TypedCase{"other.example.org/page.html", "other.example.org", "", "page.html"},
        TypedCase{"other.example.org/web/", "other.example.org", "web/", "index.htm"},
        TypedCase{"other.example.org/", "other.example.org", "", "index.htm"},
        TypedCase{"other.example.org//web\\page.html", "other.example.org", "web/", "page.html"},
        TypedCase{"one.example.org/a/b/other.htm", "one.example.org", "a/b/", "other.htm"}}) {
    OpenWith({kOne});
    model.EditPublishDestination(typed);
    const generation::RunOrder order = Applied(generation::GenerationMode::Publish);
    EXPECT_EQ(order.ServerAddress, host) << typed;
    EXPECT_EQ(order.RemoteFolder, path) << typed;
    EXPECT_EQ(order.RemoteIndexFileName, file) << typed;
    EXPECT_EQ(order.UserName, "me") << typed;
    EXPECT_EQ(order.BaseDirectory, "www") << typed;
  }
}

TEST_F(CreateGalleryModelTest, AFolderIsSentToTheTypedDestination) {
  for (const auto& [typed, host, path, file] :
       {TypedCase{"other.example.org/web/new", "other.example.org", "web/new/", ""},
        TypedCase{"other.example.org/web/", "other.example.org", "web/", ""},
        TypedCase{"other.example.org/", "other.example.org", "", ""}}) {
    OpenWith({kOne});
    model.EditSourceFolder("D:\\photos");
    model.EditUploadDestination(typed);
    const generation::RunOrder order = Applied(generation::GenerationMode::Upload);
    EXPECT_EQ(order.ServerAddress, host) << typed;
    EXPECT_EQ(order.RemoteFolder, path) << typed;
    EXPECT_EQ(order.RemoteIndexFileName, file) << typed;
    EXPECT_EQ(order.UserName, "me") << typed;
  }
}

TEST_F(CreateGalleryModelTest, ATypedDestinationIsForOneRunAndDoesNotChangeTheServers) {
  OpenWith({kOne});
  const std::string servers = program.Read("vantorium.pub");
  model.Choose(generation::GenerationMode::Publish);
  model.EditPublishDestination("other.example.org/x.htm");
  EXPECT_EQ(model.Apply(), ApplyResult::Done);
  EXPECT_EQ(program.Read("vantorium.pub"), servers);
  model.ComeUp();
  EXPECT_EQ(model.PublishDestination(), "one.example.org/a/b/start.htm");
  EXPECT_EQ(model.Apply(), ApplyResult::Done);
  EXPECT_EQ(model.Order().value().ServerAddress, "one.example.org");
  EXPECT_EQ(model.Order().value().RemoteIndexFileName, "start.htm");
}

TEST_F(CreateGalleryModelTest, AnUnchangedDestinationIsThatOfTheServer) {
  for (const char* index : {"a//b//start.htm", "", "start.htm", "a/b/"}) {
    OpenWithIndex(index);
    const generation::RunOrder before = Applied(generation::GenerationMode::Publish);
    for (const generation::GenerationMode option :
         {generation::GenerationMode::Publish, generation::GenerationMode::Upload}) {
      model.Choose(option);
      model.EditSourceFolder("D:\\photos");
      const std::string publish = model.PublishDestination();
      const std::string upload = model.UploadDestination();
      model.EditPublishDestination("elsewhere");
      model.EditUploadDestination("elsewhere");
      model.EditPublishDestination(publish);
      model.EditUploadDestination(upload);
      const generation::RunOrder order = Applied(option);
      EXPECT_EQ(order.ServerAddress, before.ServerAddress) << index;
      EXPECT_EQ(order.RemoteFolder, before.RemoteFolder) << index;
      if (option == generation::GenerationMode::Publish) {
        EXPECT_EQ(order.RemoteIndexFileName, before.RemoteIndexFileName) << index;
      }
    }
  }
}

TEST_F(CreateGalleryModelTest, AServerChosenLaterReplacesATypedDestination) {
  OpenWith({kOne});
  model.Choose(generation::GenerationMode::Publish);
  model.EditPublishDestination("other.example.org/x.htm");
  model.TakeServer(kTwo);
  EXPECT_EQ(model.Apply(), ApplyResult::Done);
  EXPECT_EQ(model.Order().value().ServerAddress, "two.example.org");
  EXPECT_EQ(model.Order().value().RemoteIndexFileName, "index.htm");
}

TEST_F(CreateGalleryModelTest, AnInvalidDestinationIsReportedBeforeTheRun) {
  for (const char* typed :
       {"", "x", "gallery.htm", "/gallery/index.htm", "http://host/a", "host:2121/a", "me@host/a"}) {
    OpenWith({kOne});
    boxes.boxes.clear();
    model.Choose(generation::GenerationMode::Publish);
    model.EditPublishDestination(typed);
    EXPECT_EQ(model.Apply(), ApplyResult::NoDestination) << typed;
    EXPECT_EQ(model.Order(), std::nullopt) << typed;
    ExpectBox("Invalid Destination",
              "Please give Server, Folder and Index File, such as \"ftp.example.org/gallery/index.htm\".");
    boxes.boxes.clear();
    model.Choose(generation::GenerationMode::Upload);
    model.EditSourceFolder("D:\\photos");
    model.EditUploadDestination(typed);
    EXPECT_EQ(model.Apply(), ApplyResult::NoDestination) << typed;
    ExpectBox("Invalid Destination", "Please give Server and Folder, such as \"ftp.example.org/gallery\".");
    model.EditUploadDestination("host/" + std::string(typed));
    EXPECT_EQ(model.Apply(), ApplyResult::Done) << typed;
  }
}

TEST_F(CreateGalleryModelTest, OnlyTheDestinationOfTheChosenOptionIsChecked) {
  OpenWith({kOne});
  model.EditPublishDestination("x");
  EXPECT_EQ(model.Apply(), ApplyResult::Done) << "a local gallery";
  model.Choose(generation::GenerationMode::Upload);
  model.EditSourceFolder("D:\\photos");
  EXPECT_EQ(model.Apply(), ApplyResult::Done) << "a folder";
  EXPECT_EQ(model.Order().value().ServerAddress, "one.example.org");
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(CreateGalleryModelTest, ClosingTheServersHidesThePasswordUnlessTheUserIsAnonymous) {
  model.LeaveServers(kTwo);
  EXPECT_FALSE(model.IsPasswordHidden());
  model.LeaveServers(kOne);
  EXPECT_TRUE(model.IsPasswordHidden());
}

// Apply

TEST_F(CreateGalleryModelTest, AGalleryWithNothingCheckedIsRefused) {
  for (const generation::GenerationMode option :
       {generation::GenerationMode::Create, generation::GenerationMode::Publish}) {
    boxes.boxes.clear();
    model.ComeUp();
    model.Choose(option);
    for (const auto box : {&generation::RunOrder::CreateImages, &generation::RunOrder::CreateThumbnails,
                           &generation::RunOrder::CreateHTML}) {
      model.Check(box, false);
    }
    EXPECT_EQ(model.Apply(), ApplyResult::Refused);
    ExpectBox("Cannot create Gallery", "Please make sure you have one of the Options checked!");
    EXPECT_EQ(model.Order(), std::nullopt);
    model.Check(&generation::RunOrder::CreateHTML, true);
    EXPECT_EQ(model.Apply(), ApplyResult::Done);
    EXPECT_EQ(model.Order().value().Mode, option);
  }
}

TEST_F(CreateGalleryModelTest, AFolderIsUploadedEvenWithNothingChecked) {
  model.Choose(generation::GenerationMode::Upload);
  for (const auto box : {&generation::RunOrder::CreateImages, &generation::RunOrder::CreateThumbnails,
                         &generation::RunOrder::CreateHTML}) {
    model.Check(box, false);
  }
  model.EditSourceFolder("C:\\photos");
  EXPECT_EQ(model.Apply(), ApplyResult::Done);
  EXPECT_TRUE(boxes.boxes.empty());
  EXPECT_EQ(model.Order().value().Mode, generation::GenerationMode::Upload);
  EXPECT_EQ(model.Order().value().OutputFolder, "C:\\photos\\");
}

TEST_F(CreateGalleryModelTest, AFolderWithoutADriveIsNotUploaded) {
  model.Choose(generation::GenerationMode::Upload);
  model.EditSourceFolder("photos");
  EXPECT_EQ(model.Apply(), ApplyResult::NoSourceFolder);
  EXPECT_EQ(model.SourceFolder(), "photos\\");
  ExpectBox("Invalid Path", "You must specify an absolute Path.");
  EXPECT_EQ(model.Order(), std::nullopt);
}

TEST_F(CreateGalleryModelTest, TheSourceFolderIsNotCheckedForAGallery) {
  model.EditSourceFolder("photos");
  EXPECT_EQ(model.Apply(), ApplyResult::Done);
  EXPECT_EQ(model.SourceFolder(), "photos");
}

TEST_F(CreateGalleryModelTest, APathIsCompletedWhenReturnAppliesFromItsBox) {
  model.EditFilePath("D:");
  EXPECT_EQ(model.Apply(), ApplyResult::Done);
  EXPECT_EQ(model.Order().value().OutputFolder, "D:\\");
  EXPECT_EQ(model.Order().value().IndexFileName, "index.htm");
  model.Choose(generation::GenerationMode::Upload);
  model.EditSourceFolder("/home/me/photos");
  EXPECT_EQ(model.Apply(), ApplyResult::Done);
  EXPECT_EQ(model.Order().value().OutputFolder, "C:\\photos\\");
}

TEST_F(CreateGalleryModelTest, CancelDoesNotStartARun) {
  EXPECT_EQ(model.Apply(), ApplyResult::Done);
  EXPECT_FALSE(model.Cancelled);
  model.Cancel();
  EXPECT_TRUE(model.Cancelled);
  EXPECT_EQ(model.Order(), std::nullopt);
}

TEST_F(CreateGalleryModelTest, TheOptionsOfTheServerApplyAndItsCertificateIsForItsHostOnly) {
  publish::ServerProfile profile = kOne;
  profile.Passive = profile.Encrypted = true;
  profile.Fingerprint = "0F";
  for (int byte = 1; byte < 32; ++byte) profile.Fingerprint += ":0F";
  OpenWith({profile});
  model.Choose(generation::GenerationMode::Publish);
  const auto options = [this] {
    EXPECT_EQ(model.Apply(), ApplyResult::Done);
    return model.Order().value().ServerOptions;
  };
  EXPECT_EQ(options(), publish::OptionsOf(profile));
  model.EditPublishDestination("ONE.example.org/elsewhere/index.htm");
  EXPECT_EQ(options(), publish::OptionsOf(profile));
  model.EditPublishDestination("two.example.org/a/index.htm");
  EXPECT_EQ(options(), (publish::FTPOptions{.passive = true, .encrypted = true, .fingerprint = {}}));
  model.TakeServer(kTwo);
  EXPECT_EQ(options(), publish::FTPOptions());
}

// Native paths, for a user with the usual drives

TEST_F(CreateGalleryModelTest, ANativePathOfTheIndexFileIsCompletedLikePathText) {
  paths = env::PathMap({}, "/home/me");
  preferences.CreateFolder = "C:\\gallery\\";
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"/home/me/tour/start.htm", "/home/me/tour/start.htm"},
      {"~/tour/start.htm", "/home/me/tour/start.htm"},
      {"/home/me/tour/", "/home/me/tour/index.htm"},
      {"/home/me/tour", "/home/me/tour/index.htm"},
      {"/home/me", "/home/me/index.htm"},
      {"~", "/home/me/index.htm"},
      {"/", "/index.htm"},
      {"/srv/x/../www", "/srv/www/index.htm"},
      {"C:\\tour", "/home/me/tour/index.htm"},
      {"Z:", "/index.htm"},
      {"tour/start.htm", "/home/me/gallery/index.htm"},
      {"~you/start.htm", "/home/me/gallery/index.htm"},
      {"start.htm", "/home/me/gallery/index.htm"},
      {"", "/home/me/gallery/index.htm"},
      {"D:\\tour\\start.htm", "D:\\tour\\start.htm"},
  };
  for (const auto& [typed, shown] : cases) EXPECT_EQ(paths.Surface(LeftFilePath(typed)), shown) << typed;
}

TEST_F(CreateGalleryModelTest, AFolderThatExistsIsNoIndexFileWhateverItsName) {
  paths = env::PathMap({}, program.Path());
  std::filesystem::create_directory(program.Path() / "my.site");
  program.Write("start.page", "");
  const std::string home = program.Path().string();
  EXPECT_EQ(paths.Surface(LeftFilePath(home + "/my.site")), home + "/my.site/index.htm");
  EXPECT_EQ(paths.Surface(LeftFilePath(home + "/your.site")), home + "/your.site");
  EXPECT_EQ(paths.Surface(LeftFilePath(home + "/start.page")), home + "/start.page");
}

TEST_F(CreateGalleryModelTest, ANativeSourceFolderMustBeAbsolute) {
  paths = env::PathMap({}, "/home/me");
  model.Choose(generation::GenerationMode::Upload);
  for (const auto& [typed, shown] :
       std::vector<std::pair<std::string, std::string>>{{"/home/me", "/home/me/"},
                                                        {"/home/me/site", "/home/me/site/"},
                                                        {"/srv/site/", "/srv/site/"},
                                                        {"~/site", "/home/me/site/"},
                                                        {"/", "/"}}) {
    model.EditSourceFolder(typed);
    EXPECT_EQ(model.Apply(), ApplyResult::Done) << typed;
    EXPECT_EQ(paths.Surface(model.SourceFolder()), shown) << typed;
  }
  EXPECT_TRUE(boxes.boxes.empty());
  for (const char* typed : {"site", "home/me/site", "~me", ""}) {
    model.EditSourceFolder(typed);
    EXPECT_EQ(model.Apply(), ApplyResult::NoSourceFolder) << typed;
  }
}

}  // namespace
}  // namespace vantorium::ui
