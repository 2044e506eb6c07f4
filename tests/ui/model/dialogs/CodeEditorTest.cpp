#include "tests/fakes/RecordingMessageBox.h"
#include "ui/model/dialogs/CodeEditor.h"

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

using Texts = std::vector<std::string>;

TEST(CodeEditor, CodeThatAFileCanStoreIsAccepted) {
  for (const char* text : {"", "]", ">", "]]", "]] >", "] ]>", "]>]", "a[0]>b]", "<b>Zürich</b>\r\n]]\r\n>"}) {
    fakes::RecordingMessageBox boxes;
    EXPECT_FALSE(FindRefusedCode(Texts{text, text}, boxes)) << text;
    EXPECT_TRUE(boxes.boxes.empty()) << text;
  }
}

TEST(CodeEditor, TheEndOfASectionIsRefusedAnywhere) {
  struct Case {
    std::string text;
    std::size_t position;
  };
  for (const auto& [text, position] : {Case{"]]>", 0}, {"x]]>", 1}, {"]]]>", 1}, {"ü]]> ]]>", 2}, {"]>\r\n]]>", 4}}) {
    fakes::RecordingMessageBox boxes;
    const auto refused = FindRefusedCode(Texts{text}, boxes);
    ASSERT_TRUE(refused) << text;
    EXPECT_EQ(refused->position, position) << text;
  }
}

TEST(CodeEditor, ARefusalIsReportedInACriticalMessageBox) {
  fakes::RecordingMessageBox boxes;
  ASSERT_TRUE(FindRefusedCode(Texts{"]]>"}, boxes));
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(boxes.boxes[0].kind, env::BoxKind::Critical);
  EXPECT_EQ(boxes.boxes[0].buttons, env::BoxButtons::Ok);
  EXPECT_EQ(boxes.boxes[0].title, "Invalid Characters found");
  EXPECT_EQ(boxes.boxes[0].text, "Custom code may not contain the string \"]]>\". Please edit your code accordingly.");
}

TEST(CodeEditor, TheSecondTextIsCheckedIfTheFirstIsAccepted) {
  fakes::RecordingMessageBox boxes;
  EXPECT_EQ(FindRefusedCode(Texts{"a]]>", "]]>"}, boxes)->text, 0U);
  EXPECT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(FindRefusedCode(Texts{"a", "]]>"}, boxes)->text, 1U);
}

}  // namespace
}  // namespace vantorium::ui
