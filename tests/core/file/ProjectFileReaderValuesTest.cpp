#include "core/file/ProjectFileReaderValues.h"

#include <gtest/gtest.h>

using namespace vantorium;
using namespace vantorium::core;

TEST(ProjectFileReaderValues, EachLineFeedInATextBecomesCrLf) {
  XmlFile file;
  ASSERT_TRUE(file.Parse("<a><b>1\r\n2\n\n3</b></a>"));
  EXPECT_EQ(MultilineText(file.Root().child("b")), "1\r\n2\r\n\r\n3");
  EXPECT_EQ(MultilineText(file.Root().child("c")), "");
}

TEST(ProjectFileReaderValues, AnAbsentAttributeLeavesTheSettingAndAnEmptyOneIsAValue) {
  GalleryProject project;
  bool modified = false;
  ProjectEditor editor(project, modified);
  XmlFile file;
  ASSERT_TRUE(file.Parse("<a EMPTY=''/>"));
  ReadText(editor, file.Root(), "ABSENT", &GalleryProject::textImageSettingsSubFolder);
  EXPECT_EQ(project.textImageSettingsSubFolder, "Images");
  ReadText(editor, file.Root(), "EMPTY", &GalleryProject::textImageSettingsSubFolder);
  EXPECT_EQ(project.textImageSettingsSubFolder, "");
  ReadTextOr(editor, file.Root(), "ABSENT", &GalleryProject::textImageSettingsSubFolder, "absent");
  EXPECT_EQ(project.textImageSettingsSubFolder, "absent");
}

TEST(ProjectFileReaderValues, OnlyTheNumberOneIsOn) {
  for (const char* text : {"1", "01", "1.0", " 1", "+1", "1e0"}) EXPECT_TRUE(IsNumberOne(text)) << text;
  for (const char* text : {"", "0", "2", "-1", "1x", "one", "1.5"}) EXPECT_FALSE(IsNumberOne(text)) << text;
}
