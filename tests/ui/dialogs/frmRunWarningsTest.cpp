#include "tests/ui/MainWindowHarness.h"
#include "ui/dialogs/frmRunWarnings.h"
#include "ui/model/dialogs/RunWarningsModel.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::DriveModal;
using fakes::Find;
using fakes::Type;

class RunWarningsForm : public testing::Test {
 protected:
  RunWarningsForm() {
    harness.Start();
    for (const char* name : {"a#.jpg", "b.jpg", "gone.jpg"}) harness.AddPhotograph(name);
    std::filesystem::remove(harness.folder.Path() / "gone.jpg");
    generation::SetIndexFile(order, "T:\\out\\index.htm");
  }

  /// Shows only the form. Returns whether it was accepted.
  bool Open(const std::function<void(QWidget&)>& drive) {
    generation::RunForecast forecast(harness.model->CurrentProject(), order, harness.model->Ports());
    RunWarningsModel model(forecast, harness.model->CurrentProject(), harness.model->Images());
    frmRunWarnings form(model, harness.window.get());
    DriveModal([&] { form.exec(); }, drive);
    return form.result() == QDialog::Accepted;
  }
  static void Rename(QWidget& form, const QString& name) {
    DriveModal([&] { Click(form, "RenameButton"); },
               [&](QWidget& dialog) {
                 Type(Find<QLineEdit>(dialog, "textNameBase"), name);
                 Click(dialog, "OKButton");
               });
  }
  /// Creates the gallery from the main window. Returns whether the warnings were shown, which `button` then closed.
  bool CreateAndClick(const char* button) {
    bool warned = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
      QWidget* form = QApplication::activeModalWidget();
      if (form == nullptr || form->objectName() != "frmRunWarnings") return;
      warned = true;
      Click(*form, button);
    });
    watch.start(5);
    DriveModal([&] { harness.Trigger("menuActionsCreate"); },
               [](QWidget& dialog) {
                 Type(Find<QLineEdit>(dialog, "textCreateFilePath"), "T:\\out\\index.htm");
                 Click(dialog, "OKButton");
               });
    return warned;
  }
  [[nodiscard]] bool Exists(const char* name) const { return std::filesystem::exists(harness.folder.Path() / name); }
  [[nodiscard]] const std::string& Name(std::size_t position) const {
    return harness.model->CurrentProject().images.Entry(position).ImageName;
  }

  fakes::MainWindowHarness harness;
  generation::RunOrder order;
};

TEST_F(RunWarningsForm, ListsTheWarningsWithTheFirstChosenAndCancelAsDefault) {
  Open([](QWidget& form) {
    EXPECT_EQ(form.windowTitle(), "Before This Gallery Is Made");
    auto& list = Find<QListWidget>(form, "listWarnings");
    ASSERT_EQ(list.count(), 2);
    EXPECT_EQ(list.currentRow(), 0);
    EXPECT_TRUE(list.hasFocus());
    EXPECT_TRUE(list.item(0)->text().startsWith("Image 1, \"a#.jpg\": Links to "));
    EXPECT_EQ(list.item(1)->text(), "Image 3, \"gone.jpg\": The file \"T:\\gone.jpg\" cannot be read.");
    EXPECT_TRUE(Find<QPushButton>(form, "CancelButton").isDefault());
    EXPECT_EQ(Find<QPushButton>(form, "CreateButton").text(), "Create &Anyway");
    EXPECT_EQ(Find<QLabel>(form, "lblWarnings").buddy(), &list);
  });
}

TEST_F(RunWarningsForm, RenameIsEnabledForWarningsThatANameCanResolve) {
  Open([](QWidget& form) {
    auto& list = Find<QListWidget>(form, "listWarnings");
    EXPECT_TRUE(Find<QPushButton>(form, "RenameButton").isEnabled());
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_FALSE(Find<QPushButton>(form, "RenameButton").isEnabled());
    QTest::keyClick(&list, Qt::Key_Up);
    EXPECT_TRUE(Find<QPushButton>(form, "RenameButton").isEnabled());
  });
}

TEST_F(RunWarningsForm, ANewNameResolvesAWarning) {
  Open([](QWidget& form) {
    Rename(form, "a");
    EXPECT_EQ(Find<QListWidget>(form, "listWarnings").count(), 1);
    EXPECT_FALSE(Find<QPushButton>(form, "RenameButton").isEnabled());
    EXPECT_TRUE(Find<QPushButton>(form, "CancelButton").isDefault()) << "one warning is left";
  });
  EXPECT_EQ(Name(1), "a");
}

TEST_F(RunWarningsForm, ACancelledRenamingKeepsTheWarning) {
  Open([](QWidget& form) {
    DriveModal([&] { Click(form, "RenameButton"); }, [](QWidget& dialog) { Click(dialog, "CancelButton"); });
    EXPECT_EQ(Find<QListWidget>(form, "listWarnings").count(), 2);
  });
  EXPECT_EQ(Name(1), "a#.jpg");
}

TEST_F(RunWarningsForm, WithoutWarningsLeftReturnCreatesTheGallery) {
  harness.folder.Write("gone.jpg", harness.folder.Read("b.jpg"));
  EXPECT_TRUE(Open([](QWidget& form) {
    Rename(form, "a");
    EXPECT_EQ(Find<QListWidget>(form, "listWarnings").count(), 0);
    EXPECT_EQ(Find<QPushButton>(form, "CreateButton").text(), "Cr&eate");
    QTest::keyClick(&form, Qt::Key_Return);
  }));
}

TEST_F(RunWarningsForm, ReturnAndEscapeCancel) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
    EXPECT_FALSE(Open([&](QWidget& form) { QTest::keyClick(&form, key); }));
  }
  EXPECT_TRUE(Open([](QWidget& form) { Click(form, "CreateButton"); }));
}

TEST_F(RunWarningsForm, CancelCreatesNothingAndCreateAnywayCreatesTheGallery) {
  harness.folder.Write("gone.jpg", harness.folder.Read("b.jpg"));
  EXPECT_TRUE(CreateAndClick("CancelButton"));
  EXPECT_FALSE(Exists("out"));
  EXPECT_TRUE(CreateAndClick("CreateButton"));
  EXPECT_TRUE(Exists("out/a#.jpg.htm"));
  EXPECT_TRUE(harness.boxes.boxes.empty());
}

TEST_F(RunWarningsForm, IsNotShownWithoutWarnings) {
  harness.folder.Write("gone.jpg", harness.folder.Read("b.jpg"));
  harness.model->CurrentProject().images.Rename(1, "a");
  EXPECT_FALSE(CreateAndClick("CancelButton"));
  EXPECT_TRUE(Exists("out/index.htm"));
}

}  // namespace
}  // namespace vantorium::ui
