#include "ui/model/dialogs/FileNameSettings.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

const NameField& Named(std::string_view control) {
  for (const auto fields : {FileNameFields(), FrameNameFields()}) {
    for (const NameField& name : fields) {
      if (name.control == control) return name;
    }
  }
  throw std::out_of_range(std::string(control));
}

class NameSettings : public testing::Test {
 protected:
  const NameField& folder = Named("textImageSettingsSubFolder");
  const NameField& extension = Named("comboImageWrapperSettingsFileExtension");
  const NameField& frame = Named("comboImageFrameName");
  core::GalleryProject project;
  bool modified = false;
  core::ProjectEditor editor{project, modified};
};

TEST_F(NameSettings, AreSixForFilesAndTwoForFrames) {
  EXPECT_EQ(FileNameFields().size(), 6U);
  EXPECT_EQ(FrameNameFields().size(), 2U);
  int extensions = 0;
  for (const NameField& name : FileNameFields()) extensions += name.isExtension ? 1 : 0;
  EXPECT_EQ(extensions, 2);
}

TEST_F(NameSettings, ListsOfferExtensionsAndBrowserTargets) {
  const std::vector<std::string_view> extensions(extension.offers.begin(), extension.offers.end());
  EXPECT_EQ(extensions, (std::vector<std::string_view>{"htm", "html", "shtm", "shtml"}));
  const std::vector<std::string_view> targets(frame.offers.begin(), frame.offers.end());
  EXPECT_EQ(targets, (std::vector<std::string_view>{"_blank", "_parent", "_self", "_top"}));
}

TEST_F(NameSettings, TypedBlanksBecomeUnderscoresAndInExtensionsDotsDoToo) {
  EXPECT_EQ(NameKey(folder, " "), "_");
  EXPECT_EQ(NameKey(folder, "."), ".");
  EXPECT_EQ(NameKey(frame, " "), "_");
  EXPECT_EQ(NameKey(frame, "."), ".");
  EXPECT_EQ(NameKey(extension, " "), "_");
  EXPECT_EQ(NameKey(extension, "."), "_");
  for (const char* key : {"a", "Ü", "_", "\\", "/", "", "\b", "<"}) EXPECT_EQ(NameKey(extension, key), key);
}

TEST_F(NameSettings, AnExtensionIsShownWithoutItsDot) {
  struct Case {
    const char* stored;
    const char* shown;
  };
  for (const auto& [stored, shown] : {Case{".htm", "htm"}, {"htm", "htm"}, {".", ""}, {"", ""}, {".a.b", "a.b"}}) {
    project.comboImageWrapperSettingsFileExtension = stored;
    EXPECT_EQ(ShownName(extension, project), shown) << stored;
  }
  project.textImageSettingsSubFolder = ".hidden";
  EXPECT_EQ(ShownName(folder, project), ".hidden");
}

TEST_F(NameSettings, AnExtensionIsStoredWithADot) {
  StoreName(extension, "shtml", editor);
  EXPECT_EQ(project.comboImageWrapperSettingsFileExtension, ".shtml");
  EXPECT_TRUE(modified);
  StoreName(extension, "", editor);
  EXPECT_EQ(project.comboImageWrapperSettingsFileExtension, ".");
}

TEST_F(NameSettings, StoringTheSameNamesIsNotAChange) {
  for (const NameField& name : FileNameFields()) StoreName(name, ShownName(name, project), editor);
  for (const NameField& name : FrameNameFields()) StoreName(name, ShownName(name, project), editor);
  EXPECT_FALSE(modified);
}

TEST_F(NameSettings, EveryNameIsStoredUnchanged) {
  for (const char* text : {"", "Images\\Big", "a b", "?*"}) {
    StoreName(folder, text, editor);
    EXPECT_EQ(project.textImageSettingsSubFolder, text);
  }
}

TEST_F(NameSettings, AnEditMarksTheProjectAsModifiedAndStoresNothingYet) {
  MarkEdited(folder, editor);
  EXPECT_TRUE(modified);
  EXPECT_EQ(project.textImageSettingsSubFolder, "Images");
}

}  // namespace
}  // namespace vantorium::ui
