#include "tests/fakes/FailureOf.h"
#include "tests/ui/model/BrowserFakes.h"
#include "ui/model/dialogs/BrowserList.h"

namespace vantorium::ui {
namespace {

constexpr const char* kDuplicateTitle = "Duplicate Browser Name";
constexpr const char* kDuplicateText = "A Browser with this Name already exists in the Browser List. Please rename it.";

class BrowserListTest : public testing::Test {
 protected:
  BrowserList ListOf(const Browsers& browsers, std::optional<std::size_t> selected = std::nullopt) {
    BrowserList list(browsers, dialog, boxes);
    list.Select(selected);
    return list;
  }

  fakes::ScriptedEntryDialog dialog;
  fakes::RecordingMessageBox boxes;
};

TEST_F(BrowserListTest, OpeningReversesTheOrder) {
  const BrowserList once = ListOf({{"a", "1"}, {"b", "2"}, {"c", "3"}});
  EXPECT_EQ(once.Entries(), (Browsers{{"c", "3"}, {"b", "2"}, {"a", "1"}}));
  EXPECT_EQ(once.Selected(), std::nullopt);
  EXPECT_EQ(ListOf(once.Entries()).Entries(), (Browsers{{"a", "1"}, {"b", "2"}, {"c", "3"}})) << "opened again";
  EXPECT_TRUE(ListOf({}).Entries().empty());
}

TEST_F(BrowserListTest, BothBrowsersOfOneNameInAFileAreShown) {
  EXPECT_EQ(ListOf({{"a", "1"}, {"a", "2"}, {"", ""}}).Entries(), (Browsers{{"", ""}, {"a", "2"}, {"a", "1"}}));
}

TEST_F(BrowserListTest, AnAddedBrowserIsOnTop) {
  BrowserList list = ListOf({{"a", "1"}});
  dialog.Types("b", "2");
  list.PressAdd();
  EXPECT_EQ(list.Entries(), (Browsers{{"b", "2"}, {"a", "1"}}));
  EXPECT_EQ(dialog.shown, std::vector<std::string>{"Add Browser: , "});
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(BrowserListTest, TheEntryDialogIsEmptyEachTime) {
  BrowserList list = ListOf({});
  dialog.Types("a", "1");
  list.PressAdd();
  list.PressAdd();
  EXPECT_EQ(dialog.shown, (std::vector<std::string>{"Add Browser: , ", "Add Browser: , "}));
}

TEST_F(BrowserListTest, ACancelledEntryAddsNothing) {
  BrowserList list = ListOf({{"a", "1"}});
  dialog.Cancels();
  list.PressAdd();
  EXPECT_EQ(list.Entries(), (Browsers{{"a", "1"}}));
}

TEST_F(BrowserListTest, WithEightEntriesAddRefusesBeforeTheDialogOpens) {
  BrowserList list = ListOf(Numbered(8));
  list.PressAdd();
  EXPECT_TRUE(dialog.shown.empty());
  ExpectOneBox(boxes, "Reached Browser Limit", "You cannot list more than 8 Browsers.");
  EXPECT_EQ(list.Entries().size(), 8U);
}

TEST_F(BrowserListTest, WithSevenEntriesOneMoreCanBeAdded) {
  BrowserList list = ListOf(Numbered(7));
  dialog.Types("x", "y");
  list.PressAdd();
  EXPECT_EQ(list.Entries().size(), 8U);
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(BrowserListTest, ForADuplicateNameTheDialogOpensAgainWithTheSameTexts) {
  BrowserList list = ListOf({{"a", "1"}});
  dialog.Types("a", "2");
  dialog.script.emplace_back([](BrowserEntry& entry) {
    entry.ChangeName("b");
    entry.PressOK();
  });
  list.PressAdd();
  ExpectOneBox(boxes, kDuplicateTitle, kDuplicateText);
  EXPECT_EQ(dialog.shown, (std::vector<std::string>{"Add Browser: , ", "Add Browser: a, 2"}));
  EXPECT_EQ(list.Entries(), (Browsers{{"b", "2"}, {"a", "1"}}));
}

TEST_F(BrowserListTest, ADuplicateNameIsRefusedEachTimeUntilTheUserCancels) {
  BrowserList list = ListOf({{"a", "1"}});
  for (int i = 0; i < 3; ++i) dialog.Types("a", "2");
  dialog.Cancels();
  list.PressAdd();
  EXPECT_EQ(boxes.boxes.size(), 3U);
  EXPECT_EQ(dialog.shown.size(), 4U);
  EXPECT_EQ(list.Entries(), (Browsers{{"a", "1"}}));
}

TEST_F(BrowserListTest, NamesThatDifferInCaseAreDifferent) {
  BrowserList list = ListOf({{"a", "1"}});
  dialog.Types("A", "2");
  list.PressAdd();
  EXPECT_TRUE(boxes.boxes.empty());
  EXPECT_EQ(list.Entries().size(), 2U);
}

TEST_F(BrowserListTest, TheSelectionStaysWithItsEntry) {
  BrowserList list = ListOf({{"a", "1"}, {"b", "2"}}, 1);
  dialog.Types("c", "3");
  list.PressAdd();
  EXPECT_EQ(list.Selected(), 2U);
  EXPECT_EQ(list.Entries()[2].Name, "a");
}

TEST_F(BrowserListTest, EditingRequiresASelection) {
  BrowserList list = ListOf({{"a", "1"}});
  list.PressEdit();
  EXPECT_TRUE(dialog.shown.empty());
  ExpectOneBox(boxes, "No Browser selected", "Please select one of the Browsers in the List first.");
}

TEST_F(BrowserListTest, WithTheSameNameOnlyTheLocationIsUpdated) {
  BrowserList list = ListOf({{"a", "1"}, {"b", "2"}}, 1);
  dialog.Types("a", "9");
  list.PressEdit();
  EXPECT_EQ(dialog.shown, std::vector<std::string>{"Edit Browser: a, 1"});
  EXPECT_EQ(list.Entries(), (Browsers{{"b", "2"}, {"a", "9"}}));
  EXPECT_EQ(list.Selected(), 1U);
}

TEST_F(BrowserListTest, AChangedNameMakesANewEntryOnTopAndTheOldOneStays) {
  BrowserList list = ListOf({{"a", "1"}, {"b", "2"}}, 1);
  dialog.Types("c", "9");
  list.PressEdit();
  EXPECT_EQ(list.Entries(), (Browsers{{"c", "9"}, {"b", "2"}, {"a", "1"}}));
  EXPECT_EQ(list.Selected(), 2U) << "the old entry";
}

TEST_F(BrowserListTest, ACancelledEditChangesNothing) {
  BrowserList list = ListOf({{"a", "1"}}, 0);
  dialog.script.emplace_back([](BrowserEntry& entry) {
    entry.ChangeLocation("9");
    entry.PressCancel();
  });
  list.PressEdit();
  EXPECT_EQ(list.Entries(), (Browsers{{"a", "1"}}));
}

TEST_F(BrowserListTest, ForTheNameOfAnotherEntryTheDialogOpensAgain) {
  BrowserList list = ListOf({{"a", "1"}, {"b", "2"}}, 1);
  dialog.Types("b", "9");
  dialog.Cancels();
  list.PressEdit();
  ExpectOneBox(boxes, kDuplicateTitle, kDuplicateText);
  EXPECT_EQ(dialog.shown, (std::vector<std::string>{"Edit Browser: a, 1", "Edit Browser: b, 9"}));
  EXPECT_EQ(list.Entries(), (Browsers{{"b", "2"}, {"a", "1"}}));
}

TEST_F(BrowserListTest, AfterARefusalTheOldNameIsAccepted) {
  BrowserList list = ListOf({{"a", "1"}, {"b", "2"}}, 1);
  dialog.Types("b", "9");
  dialog.Types("a", "9");
  list.PressEdit();
  EXPECT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(list.Entries(), (Browsers{{"b", "2"}, {"a", "9"}}));
}

TEST_F(BrowserListTest, TheLimitDoesNotApplyToEdits) {
  BrowserList list = ListOf(Numbered(8), 0);
  dialog.Types("x", "y");
  list.PressEdit();
  EXPECT_TRUE(boxes.boxes.empty());
  EXPECT_EQ(list.Entries().size(), 9U);
  list.PressAdd();
  EXPECT_EQ(boxes.boxes.size(), 1U) << "even beyond the limit";
}

TEST_F(BrowserListTest, RemovingSelectsTheNextEntry) {
  BrowserList list = ListOf(Numbered(3), 1);
  list.PressRemove();
  EXPECT_EQ(list.Entries(), (Browsers{{"3", "C:\\3"}, {"1", "C:\\1"}}));
  EXPECT_EQ(list.Selected(), 1U);
}

TEST_F(BrowserListTest, RemovingTheLastEntrySelectsTheNewLast) {
  BrowserList list = ListOf(Numbered(3), 2);
  list.PressRemove();
  EXPECT_EQ(list.Entries(), (Browsers{{"3", "C:\\3"}, {"2", "C:\\2"}}));
  EXPECT_EQ(list.Selected(), 1U);
}

TEST_F(BrowserListTest, RemovingTheOnlyEntryLeavesNoSelection) {
  BrowserList list = ListOf(Numbered(1), 0);
  list.PressRemove();
  EXPECT_TRUE(list.Entries().empty());
  EXPECT_EQ(list.Selected(), std::nullopt);
}

TEST_F(BrowserListTest, RemovingWithoutASelectionDoesNothingSilently) {
  BrowserList list = ListOf(Numbered(2));
  list.PressRemove();
  EXPECT_EQ(list.Entries().size(), 2U);
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(BrowserListTest, AnEntryBeyondTheListCannotBeSelected) {
  BrowserList list = ListOf(Numbered(2), 1);
  for (const std::size_t index : {std::size_t{2}, std::size_t{100}, ~std::size_t{0}}) {
    EXPECT_EQ(fakes::FailureOf([&] { list.Select(index); }), env::FailureKind::IndexOutOfBounds) << index;
  }
  EXPECT_EQ(list.Selected(), 1U);
  list.Select(std::nullopt);
  EXPECT_EQ(list.Selected(), std::nullopt);
}

}  // namespace
}  // namespace vantorium::ui
