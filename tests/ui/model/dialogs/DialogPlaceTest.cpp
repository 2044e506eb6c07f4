#include "tests/fakes/TemporaryFolder.h"
#include "ui/model/dialogs/DialogPlace.h"
#include "ui/model/files/Drives.h"

namespace vantorium::ui {
namespace {

class Places : public testing::Test {
 protected:
  Places() {
    disk.Write("photos/2005/a.jpg", "");
    disk.Write("home/note.txt", "");
  }

  fakes::TemporaryFolder disk;
  std::filesystem::path home = disk.Path() / "home";
  env::PathMap paths{{{'C', disk.Path().string()}, {'Q', (disk.Path() / "missing").string()}, {'Z', "/"}}};
};

struct Nearest {
  std::string text;
  std::string folder;  ///< relative to the disk's folder
};

TEST_F(Places, ForAMissingFolderTheNearestParentIsOpened) {
  const std::vector<Nearest> cases = {
      {"C:\\photos\\2005", "photos/2005"},        {"C:\\photos\\2005\\", "photos/2005"},
      {"C:/photos/2005/", "photos/2005"},         {"C:\\photos\\1999\\May", "photos"},
      {"C:\\photos\\2005\\a.jpg", "photos/2005"}, {"C:\\gone", ""},
      {"C:\\photos\\..\\photos", "photos"},       {"Q:\\any", ""},
  };
  for (const Nearest& row : cases) {
    const auto expected = row.folder.empty() ? disk.Path() : disk.Path() / row.folder;
    EXPECT_EQ(NearestFolder(paths, row.text, home), expected) << row.text;
  }
}

TEST_F(Places, APathWithoutAPlaceOpensTheHomeFolder) {
  for (const char* text : {"", "X:\\photos", "\\\\server\\share\\photos"}) {
    EXPECT_EQ(NearestFolder(paths, text, home), home) << text;
  }
}

TEST_F(Places, TheDialogOpensInItsInitialFolderWithTheProposedName) {
  const DialogPlace place = PlaceOf({.initialFolder = "C:\\photos", .fileName = "a.gpj"}, paths, home);
  EXPECT_EQ(place.folder, disk.Path() / "photos");
  EXPECT_EQ(place.fileName, "a.gpj");
}

TEST_F(Places, AFolderInTheNameTakesPrecedenceIfItExists) {
  DialogPlace place = PlaceOf({.initialFolder = "C:\\home", .fileName = "C:\\photos\\2005\\a.jpg"}, paths, home);
  EXPECT_EQ(place.folder, disk.Path() / "photos/2005");
  EXPECT_EQ(place.fileName, "a.jpg");
  place = PlaceOf({.initialFolder = "C:\\photos", .fileName = "C:\\gone\\a.jpg"}, paths, home);
  EXPECT_EQ(place.folder, disk.Path() / "photos");
  EXPECT_EQ(place.fileName, "a.jpg");
}

TEST_F(Places, OnlyDrivesWhoseFoldersExistAreListed) {
  const std::vector<Drive> drives = DriveFolders(paths);
  ASSERT_EQ(drives.size(), 2U);
  EXPECT_EQ(drives[0].letter, 'C');
  EXPECT_EQ(drives[0].folder, disk.Path());
  EXPECT_EQ(drives[1].letter, 'Z');
  EXPECT_EQ(drives[1].folder, "/");
}

}  // namespace
}  // namespace vantorium::ui
