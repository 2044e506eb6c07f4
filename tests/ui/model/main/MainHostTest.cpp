#include "tests/ui/model/MainFakes.h"

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

using fakes::Calls;

class MainHostTest : public testing::Test {
 protected:
  MainHostTest() { host.Attach(view, windows); }

  Calls calls;
  fakes::RecordingMainView view{calls};
  fakes::RecordingHelperWindows windows{calls};
  fakes::ScriptedCommonDialogs dialogs;
  ColorDialog colors{dialogs};
  core::Project project;
  MainHost host{project, colors, 2121};
};

TEST_F(MainHostTest, TheTitleBarNamesTheProjectFile) {
  project.ProjectFileName = "a [b].gpj";
  host.RefreshTitleBar();
  EXPECT_EQ(calls, (Calls{"title Vantorium 3.0 - [a [b].gpj]"}));
}

TEST_F(MainHostTest, TheNumberOfImagesIsShownWithTheNumberOfPages) {
  project.settings.textThumbnailsTableRows = "1";
  project.settings.textThumbnailsTableColumns = "2";
  for (int i = 0; i < 3; ++i) project.images.Insert(1, {});
  host.RefreshCounts();
  EXPECT_EQ(calls, (Calls{"images: 3 Image(s)", "pages: 3 Images on 2 Pages"}));
  calls.clear();
  host.RefreshPageCount();
  EXPECT_EQ(calls, (Calls{"pages: 3 Images on 2 Pages"}));
}

TEST_F(MainHostTest, PointerAndStatusAreForwardedToTheWindow) {
  host.ShowBusyPointer(true);
  host.ShowBusyPointer(false);
  host.SetStatusText("a");
  EXPECT_EQ(calls, (Calls{"busy", "idle", "status a"}));
}

TEST_F(MainHostTest, ARunUsesTheFTPPortOfTheProgram) {
  windows.order.emplace().ServerAddress = "host";
  const auto order = host.AskWhatToCreate();
  ASSERT_TRUE(order);
  EXPECT_EQ(order->ServerAddress, "host");
  EXPECT_EQ(order->Port, 2121);
}

TEST_F(MainHostTest, ACancelledDialogIsNotAnOrder) {
  EXPECT_FALSE(host.AskWhatToCreate());
}

}  // namespace
}  // namespace vantorium::ui
