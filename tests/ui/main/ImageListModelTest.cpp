#include "ui/main/ImageListModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

namespace vantorium::ui {
namespace {

void Add(core::ImageList& images, const std::string& name) {
  images.Insert(images.Count() + 1, {.ImageName = name,
                                     .SourcePath = "C:\\" + name,
                                     .SizeKey = {},
                                     .DateKey = {},
                                     .ImageDescription = {},
                                     .ThumbnailDescription = {}});
}

class ListModel : public testing::Test {
 protected:
  ListModel() {
    Add(images, "a");
    model.Refresh();
  }

  core::ImageList images;
  env::PathMap paths{{{'C', "/home/me"}}};
  ImageListModel model{images, paths};
  QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(ListModel, GrowsAndShrinksOnlyByRefresh) {
  Add(images, "b");
  Add(images, "c");
  EXPECT_EQ(model.rowCount(), 1);
  model.Refresh();
  EXPECT_EQ(model.rowCount(), 3);
  images.Clear();
  EXPECT_EQ(model.rowCount(), 3);
  model.Refresh();
  EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(ListModel, RemovedRowsHaveNoText) {
  images.Clear();
  EXPECT_FALSE(model.index(0, 0).data().isValid());
}

TEST_F(ListModel, TextsAreAlwaysCurrent) {
  images.Rename(1, "z");
  EXPECT_EQ(model.index(0, 0).data().toString(), "z");
  EXPECT_EQ(model.index(0, 1).data().toString(), "C:\\a");
}

TEST_F(ListModel, WithoutDrivesASourceIsShownAsANativePath) {
  const env::PathMap usual({}, "/home/me");
  images.Insert(2, {"b", "D:\\b", "", "", "", ""});
  const ImageListModel shown(images, usual);
  for (const int role : {Qt::DisplayRole, Qt::ToolTipRole}) {
    EXPECT_EQ(shown.index(0, 1).data(role).toString(), "/home/me/a");
    EXPECT_EQ(shown.index(1, 1).data(role).toString(), "D:\\b") << "it has no place on this system";
  }
}

TEST_F(ListModel, RefreshReportsThatTextsMayHaveChanged) {
  const QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
  const QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
  model.Refresh();
  EXPECT_EQ(changed.count(), 1);
  EXPECT_EQ(reset.count(), 0);
}

TEST_F(ListModel, RowsCanBeDraggedAndAcceptDrops) {
  const Qt::ItemFlags flags = model.index(0, 0).flags();
  EXPECT_TRUE(flags & Qt::ItemIsDragEnabled);
  EXPECT_TRUE(flags & Qt::ItemIsDropEnabled);
  EXPECT_FALSE(model.flags({}) & Qt::ItemIsDragEnabled);
  EXPECT_EQ(model.supportedDropActions(), Qt::MoveAction);
}

}  // namespace
}  // namespace vantorium::ui
