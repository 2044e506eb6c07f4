#include "tests/fakes/RecordingMessageBox.h"
#include "ui/model/files/FileNameBox.h"

namespace vantorium::ui {
namespace {

using Names = std::vector<std::string>;

TEST(FileNameBox, TheFlagsFollowTheKindOfDialog) {
  EXPECT_EQ(FileDialogFlags({.open = true}), 0x281004U);
  EXPECT_EQ(FileDialogFlags({.open = true, .multiSelect = true}), 0x281204U);
  EXPECT_EQ(FileDialogFlags({.open = false}), 0x280006U);
  EXPECT_EQ(FileDialogFlags({.open = false, .multiSelect = true}), 0x280206U);
}

TEST(FileNameBox, TheButtonIsNamedAfterTheKindOfDialog) {
  EXPECT_EQ(AcceptButtonText({.open = true, .multiSelect = true, .preview = true}), "Add Images");
  EXPECT_EQ(AcceptButtonText({.open = true, .preview = true}), "Use Image");
  EXPECT_EQ(AcceptButtonText({.open = true}), "Open");
  EXPECT_EQ(AcceptButtonText({.open = true, .multiSelect = true}), "Open");
  EXPECT_EQ(AcceptButtonText({.open = false}), "Save");
}

struct Cut {
  std::string text;
  Names names;
};

TEST(FileNameBox, TheTextIsSplitAtItsQuotes) {
  const std::vector<Cut> cases = {
      {"", {}},
      {"a.jpg", {"a.jpg"}},
      {"my cat.jpg", {"my cat.jpg"}},
      {"\"a.jpg\"", {"a.jpg"}},
      {"\"a.jpg\" \"b.jpg\"", {"a.jpg", "b.jpg"}},
      {"\"a b.jpg\" \"c d.jpg\" \"e.jpg\"", {"a b.jpg", "c d.jpg", "e.jpg"}},
      {"\"a.jpg\"\"b.jpg\"", {"a.jpg", "b.jpg"}},
      {"a.jpg\"b.jpg", {"a.jpg", "b.jpg"}},
      {"\"a.jpg\"  \"b.jpg\"", {"a.jpg", "  ", "b.jpg"}},  // only a single blank is a separator
      {"\"\"\"", {"", ""}},
      {"\"", {}},
      {"Zürich.jpg", {"Zürich.jpg"}},
  };
  for (const Cut& row : cases) EXPECT_EQ(CutFileNames(row.text), row.names) << row.text;
}

TEST(FileNameBox, ASingleNameWithoutAnExtensionIsThatOfTheFileLastSelected) {
  EXPECT_EQ(ChosenFileNames("DSC1", "C:\\photos\\DSC1.jpg"), Names{"DSC1.jpg"});
  EXPECT_EQ(ChosenFileNames("\"DSC1\"", "C:\\photos\\DSC1.jpg"), Names{"DSC1.jpg"});
}

TEST(FileNameBox, OtherNamesAreUnchanged) {
  EXPECT_EQ(ChosenFileNames("a.jpg", "C:\\photos\\b.jpg"), Names{"a.jpg"});
  EXPECT_EQ(ChosenFileNames("\"DSC1\" \"DSC2\"", "C:\\photos\\DSC2.jpg"), (Names{"DSC1", "DSC2"}));
  EXPECT_EQ(ChosenFileNames("DSC1", ""), Names{"DSC1"});
  EXPECT_EQ(ChosenFileNames("", "C:\\photos\\b.jpg"), Names{});
}

TEST(FileNameBox, JoinedNamesAreSplitIntoTheSameNames) {
  EXPECT_EQ(JoinFileNames({"a b.jpg"}), "a b.jpg");
  EXPECT_EQ(JoinFileNames({"a b.jpg", "c.jpg"}), "\"a b.jpg\" \"c.jpg\"");
  EXPECT_EQ(JoinFileNames({}), "");
}

class NameLimit : public testing::Test {
 protected:
  fakes::RecordingMessageBox boxes;
  FileNameLimit limit{boxes};
};

TEST_F(NameLimit, ATextOf1023CharactersIsTooLong) {
  limit.SelectionChanged(1023);
  EXPECT_FALSE(limit.AllowsOk());
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(boxes.boxes[0].kind, env::BoxKind::Information);
  EXPECT_EQ(boxes.boxes[0].buttons, env::BoxButtons::Ok);
  EXPECT_EQ(boxes.boxes[0].title, "File Name Length Limit");
  EXPECT_EQ(boxes.boxes[0].text,
            "You have exceeded the file name length limit. Please deselect some files, insert the rest, and open this "
            "dialog a second time.");
}

TEST_F(NameLimit, ATextOf1022CharactersIsNotTooLong) {
  limit.SelectionChanged(1022);
  EXPECT_TRUE(limit.AllowsOk());
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(NameLimit, ShorteningTheTextTo1022CharactersEnablesOK) {
  limit.SelectionChanged(2000);
  limit.SelectionChanged(1022);
  EXPECT_TRUE(limit.AllowsOk());
  EXPECT_EQ(boxes.boxes.size(), 1U);
}

TEST_F(NameLimit, EachChangeOfTheSelectionIsReported) {
  limit.SelectionChanged(1023);
  limit.SelectionChanged(1024);
  limit.SelectionChanged(1023);
  EXPECT_EQ(boxes.boxes.size(), 3U);
}

TEST_F(NameLimit, TypingIsReportedOnceUntilTheTextIsShortEnough) {
  limit.Typed(1022);
  EXPECT_TRUE(boxes.boxes.empty());
  limit.Typed(1023);
  limit.Typed(1024);
  EXPECT_EQ(boxes.boxes.size(), 1U);
  EXPECT_FALSE(limit.AllowsOk());
  limit.Typed(1022);
  EXPECT_TRUE(limit.AllowsOk());
  limit.Typed(1023);
  EXPECT_EQ(boxes.boxes.size(), 2U);
}

}  // namespace
}  // namespace vantorium::ui
