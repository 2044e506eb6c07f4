// The six settings pages: each control with its field, and how settings show, hide, enable and disable controls.
#include "core/ProjectFields.h"
#include "tests/ui/MainWindowHarness.h"
#include "ui/model/main/ControlRules.h"
#include "ui/model/main/SettingsButtons.h"
#include "ui/widgets/ColorButton.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <set>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::DriveModal;
using fakes::Find;
using fakes::MainWindowHarness;
using fakes::Type;

enum Page { Gallery, Images, Wrappers, Thumbnails, Captions, PageLinks };

struct StartedMainWindow : MainWindowHarness {
  StartedMainWindow() { Start(); }
};

class SettingsOnPages : public testing::Test {
 protected:
  template <typename Control>
  [[nodiscard]] Control& On(Page page, const char* name) {
    harness.GoTo(page);
    return Find<Control>(*harness.window, name);
  }
  [[nodiscard]] bool Shown(const char* name) { return Find<QWidget>(*harness.window, name).isVisible(); }
  [[nodiscard]] bool Usable(const char* name) { return Find<QWidget>(*harness.window, name).isEnabled(); }
  [[nodiscard]] QString Text(const char* name) { return Find<QLabel>(*harness.window, name).text(); }
  void ClickOn(Page page, const char* name) { Click(On<QWidget>(page, name)); }
  /// Chooses the next entry with the arrow key.
  void ChooseNext(Page page, const char* name) {
    auto& list = On<QComboBox>(page, name);
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Down);
  }

  StartedMainWindow harness;
  const core::GalleryProject& settings = harness.Settings();
};

TEST_F(SettingsOnPages, EveryFieldHasAControl) {
  std::set<std::string_view> edited;
  for (const core::ProjectField* field : harness.window->Binder().BoundFields()) {
    EXPECT_TRUE(edited.insert(field->name).second) << field->name << " has two controls";
  }
  const auto add = [&edited](auto member) {
    EXPECT_TRUE(edited.insert(core::FieldOf(member).name).second) << core::FieldOf(member).name;
  };
  for (const auto& row : CodeButtons()) add(row.code);
  for (const auto& row : HeaderFooterButtons()) {
    add(row.header);
    add(row.footer);
  }
  for (const auto& row : ColorsButtons()) {
    for (const auto color :
         {row.colors.background, row.colors.text, row.colors.link, row.colors.visitedLink, row.colors.activeLink}) {
      add(color);
    }
  }
  for (const auto& row : LinkButtons()) add(row.link);
  for (const auto& row : FiltersButtons()) add(row.filters);
  for (const auto& row : WatermarkButtons()) add(row.watermark);

  // The windows of descriptions, file names and frame names edit these.
  for (const char* name :
       {"textHeader", "textFooter", "comboImageDescriptionPlacement", "comboImageDescriptionAlignment",
        "textThumbHeader", "textThumbFooter", "comboThumbnailDescriptionPlacement",
        "comboThumbnailDescriptionAlignment", "textImageSettingsSubFolder", "textThumbnailImageSettingsSubFolder",
        "textThumbnailImageSettingsFilePrefix", "textThumbnailPageSettingsFilePrefix",
        "comboThumbnailPageSettingsFileExtension", "comboImageWrapperSettingsFileExtension", "textThumbnailFrameName",
        "comboImageFrameName"}) {
    edited.insert(name);
  }
  // These two follow textGalleryFrameSize.
  edited.insert("ThumbnailFrameSize");
  edited.insert("ImageFrameSize");

  for (const core::ProjectField& field : core::ProjectFields()) EXPECT_EQ(edited.count(field.name), 1U) << field.name;
  EXPECT_EQ(edited.size(), core::ProjectFields().size());
}

TEST_F(SettingsOnPages, EveryTextBoxSetsItsField) {
  struct Row {
    Page page;
    const char* control;
    std::string core::GalleryProject::*field;
  };
  ClickOn(Wrappers, "checkImageWrapperImageKeepAspectRatio");
  const Row rows[] = {
      {Gallery, "textGalleryTitle", &core::GalleryProject::textGalleryTitle},
      {Gallery, "textGallerySlideShowDelay", &core::GalleryProject::textGallerySlideShowDelay},
      {Wrappers, "textImageWrapperImageWidth", &core::GalleryProject::textImageWrapperImageWidth},
      {Wrappers, "textImageWrapperImageHeight", &core::GalleryProject::textImageWrapperImageHeight},
      {Wrappers, "textImageWrapperBackdrop", &core::GalleryProject::textImageWrapperBackdrop},
      {Thumbnails, "textThumbnailsTableRows", &core::GalleryProject::textThumbnailsTableRows},
      {Thumbnails, "textThumbnailsTableColumns", &core::GalleryProject::textThumbnailsTableColumns},
      {Thumbnails, "textThumbnailsTableBorder", &core::GalleryProject::textThumbnailsTableBorder},
      {Thumbnails, "textThumbnailsTableCellSpacing", &core::GalleryProject::textThumbnailsTableCellSpacing},
      {Thumbnails, "textThumbnailsTableCellPadding", &core::GalleryProject::textThumbnailsTableCellPadding},
      {Thumbnails, "textThumbnailsTableBackdrop", &core::GalleryProject::textThumbnailsTableBackdrop},
      {Thumbnails, "textThumbnailsPageBackdrop", &core::GalleryProject::textThumbnailsPageBackdrop},
      {Thumbnails, "textThumbnailsImageWidth", &core::GalleryProject::textThumbnailsImageWidth},
      {Thumbnails, "textThumbnailsImageHeight", &core::GalleryProject::textThumbnailsImageHeight},
  };
  for (const Row& row : rows) {
    Type(On<QLineEdit>(row.page, row.control), "17");
    EXPECT_EQ(settings.*row.field, "17") << row.control;
    EXPECT_TRUE(harness.model->CurrentProject().IsModified) << row.control;
  }
}

TEST_F(SettingsOnPages, EveryNumberHasASpinner) {
  struct Row {
    Page page;
    const char* text;
    const char* spinner;
    std::string core::GalleryProject::*field;
  };
  ClickOn(Wrappers, "checkImageWrapperImageKeepAspectRatio");
  ClickOn(PageLinks, "checkPageLinksThumbnailDirectLinks");
  const Row rows[] = {
      {Gallery, "textGalleryFrameSize", "udGalleryFrameSize", &core::GalleryProject::textGalleryFrameSize},
      {Gallery, "textGallerySlideShowAutoStartDelay", "udGallerySlideShowAutoStartDelay",
       &core::GalleryProject::textGallerySlideShowAutoStartDelay},
      {Gallery, "textGallerySlideShowDelay", "udGallerySlideShowDelay",
       &core::GalleryProject::textGallerySlideShowDelay},
      {Wrappers, "textImageWrapperImageWidth", "udImageWrapperImageWidth",
       &core::GalleryProject::textImageWrapperImageWidth},
      {Wrappers, "textImageWrapperImageHeight", "udImageWrapperImageHeight",
       &core::GalleryProject::textImageWrapperImageHeight},
      {Thumbnails, "textThumbnailsTableRows", "udThumbnailsTableRows", &core::GalleryProject::textThumbnailsTableRows},
      {Thumbnails, "textThumbnailsTableColumns", "udThumbnailsTableColumns",
       &core::GalleryProject::textThumbnailsTableColumns},
      {Thumbnails, "textThumbnailsTableBorder", "udThumbnailsTableBorder",
       &core::GalleryProject::textThumbnailsTableBorder},
      {Thumbnails, "textThumbnailsTableCellSpacing", "udThumbnailsTableCellSpacing",
       &core::GalleryProject::textThumbnailsTableCellSpacing},
      {Thumbnails, "textThumbnailsTableCellPadding", "udThumbnailsTableCellPadding",
       &core::GalleryProject::textThumbnailsTableCellPadding},
      {Thumbnails, "textThumbnailsImageWidth", "udThumbnailsImageWidth",
       &core::GalleryProject::textThumbnailsImageWidth},
      {Thumbnails, "textThumbnailsImageHeight", "udThumbnailsImageHeight",
       &core::GalleryProject::textThumbnailsImageHeight},
      {PageLinks, "textPageLinksThumbnailMaxDirectLinks", "udPageLinksThumbnailMaxDirectLinks",
       &core::GalleryProject::textPageLinksThumbnailMaxDirectLinks},
  };
  for (const Row& row : rows) {
    harness.GoTo(row.page);
    const int before = std::stoi(settings.*row.field);
    Click(*Find<QWidget>(*harness.window, row.spinner).findChildren<QToolButton*>().at(0));
    EXPECT_EQ(settings.*row.field, std::to_string(before + 1)) << row.spinner;
    EXPECT_EQ(Find<QLineEdit>(*harness.window, row.text).text(), QString::number(before + 1)) << row.text;
  }
}

TEST_F(SettingsOnPages, EveryCheckBoxSetsItsField) {
  struct Row {
    Page page;
    const char* control;
    core::Flag core::GalleryProject::*field;
  };
  const Row rows[] = {
      {Wrappers, "checkImageWrapperImagePhysicalResize", &core::GalleryProject::checkImageWrapperImagePhysicalResize},
      {Wrappers, "checkImageWrapperImageSizesInPercent", &core::GalleryProject::checkImageWrapperImageSizesInPercent},
      {Wrappers, "checkImageWrapperImageSetWidth", &core::GalleryProject::checkImageWrapperImageSetWidth},
      {Wrappers, "checkImageWrapperImageKeepAspectRatio", &core::GalleryProject::checkImageWrapperImageKeepAspectRatio},
      {Wrappers, "checkImageWrapperImageKeepSize", &core::GalleryProject::checkImageWrapperImageKeepSize},
      {Wrappers, "checkImageWrapperSetColors", &core::GalleryProject::checkImageWrapperSetColors},
      {Wrappers, "checkImageWrapperUse", &core::GalleryProject::checkImageWrapperUse},
      {Gallery, "checkGallerySlideShow", &core::GalleryProject::checkGallerySlideShow},
      {Thumbnails, "checkThumbnailsTableUseBGColor", &core::GalleryProject::checkThumbnailsTableUseBGColor},
      {Thumbnails, "checkThumbnailsPageSetColors", &core::GalleryProject::checkThumbnailsPageSetColors},
      {Thumbnails, "checkThumbnailsImageKeepAspectRatio", &core::GalleryProject::checkThumbnailsImageKeepAspectRatio},
      {Thumbnails, "checkThumbnailsImageSetWidth", &core::GalleryProject::checkThumbnailsImageSetWidth},
      {Captions, "checkCaptionsImagesRegular", &core::GalleryProject::checkCaptionsImagesRegular},
      {Captions, "checkCaptionsImagesPopup", &core::GalleryProject::checkCaptionsImagesPopup},
      {Captions, "checkCaptionsThumbnailsRegular", &core::GalleryProject::checkCaptionsThumbnailsRegular},
      {Captions, "checkCaptionsThumbnailsPopup", &core::GalleryProject::checkCaptionsThumbnailsPopup},
      {PageLinks, "checkPageLinksThumbnailDirectLinks", &core::GalleryProject::checkPageLinksThumbnailDirectLinks},
  };
  for (const Row& row : rows) {
    const core::Flag before = settings.*row.field;
    auto& box = On<QCheckBox>(row.page, row.control);
    EXPECT_EQ(box.isChecked(), before == 1) << row.control;
    Click(box);
    EXPECT_EQ(settings.*row.field, 1 - before) << row.control;
    EXPECT_EQ(box.isChecked(), before == 0) << row.control;
  }
}

TEST_F(SettingsOnPages, EveryListSetsItsFieldAndHasItsTexts) {
  struct Row {
    Page page;
    const char* control;
    core::Choice core::GalleryProject::*field;
  };
  ClickOn(Gallery, "checkGallerySlideShow");
  ClickOn(Captions, "checkCaptionsImagesRegular");
  ClickOn(Captions, "checkCaptionsThumbnailsRegular");
  const Row rows[] = {
      {Gallery, "comboGallerySlideShowBeginWith", &core::GalleryProject::comboGallerySlideShowBeginWith},
      {Gallery, "comboGallerySlideShowStartOverWith", &core::GalleryProject::comboGallerySlideShowStartOverWith},
      {Gallery, "comboGallerySlideShowActionAfterImage", &core::GalleryProject::comboGallerySlideShowActionAfterImage},
      {Thumbnails, "comboThumbnailsTableAlignment", &core::GalleryProject::comboThumbnailsTableAlignment},
      {Captions, "comboCaptionsImagesRegularPlacement", &core::GalleryProject::comboCaptionsImagesRegularPlacement},
      {Captions, "comboCaptionsImagesRegularAlignment", &core::GalleryProject::comboCaptionsImagesRegularAlignment},
      {Captions, "comboCaptionsThumbnailsRegularPlacement",
       &core::GalleryProject::comboCaptionsThumbnailsRegularPlacement},
      {Captions, "comboCaptionsThumbnailsRegularAlignment",
       &core::GalleryProject::comboCaptionsThumbnailsRegularAlignment},
      {PageLinks, "comboPageLinksThumbnailLinkPlacement", &core::GalleryProject::comboPageLinksThumbnailLinkPlacement},
      {PageLinks, "comboPageLinksImageLinkPlacement", &core::GalleryProject::comboPageLinksImageLinkPlacement},
      {Gallery, "comboGalleryLayoutType", &core::GalleryProject::comboGalleryLayoutType},
      {Gallery, "comboGalleryFrameSizingPriority", &core::GalleryProject::comboGalleryFrameSizingPriority},
  };
  for (const Row& row : rows) {
    auto& list = On<QComboBox>(row.page, row.control);
    EXPECT_EQ(static_cast<std::size_t>(list.count()), core::FieldOf(row.field).values.size()) << row.control;
    EXPECT_EQ(list.currentIndex(), settings.*row.field) << row.control;
    const bool last = list.currentIndex() == list.count() - 1;
    const int wanted = list.currentIndex() + (last ? -1 : 1);
    list.setFocus();
    QTest::keyClick(&list, last ? Qt::Key_Up : Qt::Key_Down);
    EXPECT_EQ(settings.*row.field, wanted) << row.control;
  }
}

TEST_F(SettingsOnPages, TheLayoutHasItsPictureAndItsFrames) {
  auto& picture = On<QLabel>(Gallery, "picLayoutType");
  EXPECT_FALSE(picture.pixmap().isNull());
  EXPECT_TRUE(Shown("frmFrameLayoutSingleFrame"));
  const auto before = picture.pixmap().toImage();
  ChooseNext(Gallery, "comboGalleryLayoutType");
  EXPECT_NE(picture.pixmap().toImage(), before);
  EXPECT_TRUE(Shown("frmFrameLayoutMultipleFrames"));
  EXPECT_FALSE(Shown("frmFrameLayoutSingleFrame"));
  EXPECT_EQ(settings.comboImageFrameName, "image_frame");
  for (const char* box : {"checkGalleryFramesResizable", "checkGalleryFramesDisplayBorders"}) ClickOn(Gallery, box);
  EXPECT_EQ(settings.checkGalleryFramesResizable, 1);
  EXPECT_EQ(settings.checkGalleryFramesDisplayBorders, 1);
  EXPECT_FALSE(Usable("btnPageLinksImageIndexLink"));
}

TEST_F(SettingsOnPages, AFrameSizeInPercentIsAtMost99AndLabelledAsPercent) {
  ChooseNext(Gallery, "comboGalleryLayoutType");
  EXPECT_EQ(Text("lblFrameLayoutFrameSize"), "Frame Size (Pixels)");
  ClickOn(Gallery, "checkGalleryFrameSizeInPercent");
  EXPECT_EQ(Text("lblFrameLayoutFrameSize"), "Frame Size (%)");
  EXPECT_EQ(settings.textGalleryFrameSize, "99");
}

TEST_F(SettingsOnPages, ASlideShowTurnsWrapperPagesOnAndShowsTheirFrames) {
  ClickOn(Wrappers, "checkImageWrapperUse");
  EXPECT_FALSE(Shown("frmImageWrapperImageSettings"));
  EXPECT_FALSE(Shown("frmImageWrapperCodeSettings"));
  ClickOn(Gallery, "checkGallerySlideShow");
  EXPECT_TRUE(Shown("frmFrameLayoutSlideShow"));
  harness.GoTo(Wrappers);
  EXPECT_TRUE(Find<QCheckBox>(*harness.window, "checkImageWrapperUse").isChecked());
  EXPECT_TRUE(Shown("frmImageWrapperImageSettings"));
  EXPECT_TRUE(Shown("frmImageWrapperCodeSettings"));
  harness.GoTo(Captions);
  EXPECT_TRUE(Shown("frmCaptionsImages"));
  harness.GoTo(PageLinks);
  EXPECT_TRUE(Shown("frmPageLinksOnImagePages"));
}

TEST_F(SettingsOnPages, WithoutWrapperPagesThereIsNoSlideShow) {
  ClickOn(Gallery, "checkGallerySlideShow");
  ClickOn(Wrappers, "checkImageWrapperUse");
  EXPECT_EQ(settings.checkGallerySlideShow, 0);
  harness.GoTo(Captions);
  EXPECT_FALSE(Shown("frmCaptionsImages"));
  harness.GoTo(PageLinks);
  EXPECT_FALSE(Shown("frmPageLinksOnImagePages"));
  harness.GoTo(Gallery);
  EXPECT_FALSE(Shown("frmFrameLayoutSlideShow"));
}

TEST_F(SettingsOnPages, ASlideShowShowsOnlyTheFieldsItUses) {
  ClickOn(Gallery, "checkGallerySlideShow");
  for (const char* name : {"checkGallerySlideShowAutoStart", "textGallerySlideShowAutoStartDelay",
                           "udGallerySlideShowAutoStartDelay", "lblSeconds"}) {
    EXPECT_FALSE(Shown(name)) << name;
  }
  auto& begin = Find<QComboBox>(*harness.window, "comboGallerySlideShowBeginWith");
  begin.setFocus();
  QTest::keyClick(&begin, Qt::Key_Up);
  EXPECT_TRUE(Shown("checkGallerySlideShowAutoStart"));
  EXPECT_TRUE(Shown("lblSeconds"));
  ClickOn(Gallery, "checkGallerySlideShowAutoStart");
  EXPECT_EQ(settings.checkGallerySlideShowAutoStart, 0);
  EXPECT_TRUE(Shown("lblFrameLayoutSlideShowStartOverWith"));
  ChooseNext(Gallery, "comboGallerySlideShowActionAfterImage");
  EXPECT_FALSE(Shown("lblFrameLayoutSlideShowStartOverWith"));
  EXPECT_FALSE(Shown("comboGallerySlideShowStartOverWith"));
}

TEST_F(SettingsOnPages, KeepingTheSizeHidesTheSizeFields) {
  harness.GoTo(Wrappers);
  EXPECT_TRUE(Shown("frmImageWrapperImageSettingsSub"));
  ClickOn(Wrappers, "checkImageWrapperImageKeepSize");
  EXPECT_FALSE(Shown("frmImageWrapperImageSettingsSub"));
}

TEST_F(SettingsOnPages, SizesInPercentAreLabelledAsPercent) {
  ClickOn(Wrappers, "checkImageWrapperImageSizesInPercent");
  EXPECT_EQ(Text("lblImageWrapperImageWidth"), "Width (%)");
  EXPECT_EQ(Text("lblImageWrapperImageHeight"), "Height (%)");
  ClickOn(Wrappers, "checkImageWrapperImageSizesInPercent");
  EXPECT_EQ(Text("lblImageWrapperImageWidth"), "Width (Pixels)");
}

TEST_F(SettingsOnPages, AnAlignmentKeepsItsIndexAndItsTextsFollowThePlacement) {
  ClickOn(Captions, "checkCaptionsImagesRegular");
  auto& alignment = Find<QComboBox>(*harness.window, "comboCaptionsImagesRegularAlignment");
  EXPECT_EQ(alignment.currentText(), "align right");
  auto& placement = Find<QComboBox>(*harness.window, "comboCaptionsImagesRegularPlacement");
  placement.setFocus();
  QTest::keyClick(&placement, Qt::Key_Home);
  EXPECT_EQ(settings.comboCaptionsImagesRegularPlacement, 0);
  EXPECT_EQ(alignment.currentText(), "align bottom");
  EXPECT_EQ(settings.comboCaptionsImagesRegularAlignment, 2);
}

TEST_F(SettingsOnPages, RowsAndColumnsUpdateThePageCount) {
  for (const char* name : {"a.jpg", "b.jpg", "c.jpg"}) harness.AddPhotograph(name);
  harness.GoTo(Thumbnails);
  EXPECT_EQ(Text("lblThumbnailsPageCount"), "3 Images on 1 Pages");
  Type(Find<QLineEdit>(*harness.window, "textThumbnailsTableRows"), "1");
  Type(Find<QLineEdit>(*harness.window, "textThumbnailsTableColumns"), "2");
  EXPECT_EQ(Text("lblThumbnailsPageCount"), "3 Images on 2 Pages");
}

TEST_F(SettingsOnPages, ATableColorIsChosenInTheColorDialog) {
  harness.GoTo(Thumbnails);
  EXPECT_FALSE(Shown("btnThumbnailsTableBGColor"));
  ClickOn(Thumbnails, "checkThumbnailsTableUseBGColor");
  harness.dialogs.colors = {std::nullopt, 0x123456};
  ClickOn(Thumbnails, "btnThumbnailsTableBGColor");
  EXPECT_EQ(settings.btnThumbnailsTableBGColor, 0U);
  ClickOn(Thumbnails, "btnThumbnailsTableBGColor");
  EXPECT_EQ(settings.btnThumbnailsTableBGColor, 0x123456U);
  EXPECT_EQ(Find<ColorButton>(*harness.window, "btnThumbnailsTableBGColor").GetColor(), 0x123456U);
}

TEST_F(SettingsOnPages, ABackdropIsChosenInTheFileDialog) {
  struct Row {
    Page page;
    const char* button;
    const char* title;
    std::string core::GalleryProject::*field;
  };
  const Row rows[] = {
      {Wrappers, "btnImageWrapperBackdropBrowse", "Select Backdrop Image for Image (Wrapper) Page",
       &core::GalleryProject::textImageWrapperBackdrop},
      {Thumbnails, "btnThumbnailsPageBackDropBrowse", "Select Backdrop Image for Thumbnail Page",
       &core::GalleryProject::textThumbnailsPageBackdrop},
      {Thumbnails, "btnThumbnailsTableBackdropBrowse", "Select Thumbnail Table Backdrop Image",
       &core::GalleryProject::textThumbnailsTableBackdrop},
  };
  for (const Row& row : rows) {
    harness.fileBrowser.answer = {"T:\\a.gif", "T:\\", {"T:\\a.gif"}};
    ClickOn(row.page, row.button);
    EXPECT_EQ(settings.*row.field, "T:\\a.gif") << row.button;
    EXPECT_EQ(harness.fileBrowser.requests.back().title, row.title);
    EXPECT_EQ(harness.fileBrowser.requests.back().filter, "All Files (*.*)|*.*");
    EXPECT_TRUE(harness.fileBrowser.requests.back().preview);
    harness.fileBrowser.answer = {};
    ClickOn(row.page, row.button);
    EXPECT_EQ(settings.*row.field, "T:\\a.gif") << "cancelled " << row.button;
  }
}

TEST_F(SettingsOnPages, ATypedNativePathBecomesPathTextWhenTheBoxIsLeft) {
  auto& box = On<QLineEdit>(Wrappers, "textImageWrapperBackdrop");
  Type(box, ToQt((harness.folder.Path() / "a.gif").string()));
  QTest::keyClick(&box, Qt::Key_Tab);
  EXPECT_EQ(settings.textImageWrapperBackdrop, "T:\\a.gif");
  Type(box, "relative.gif");
  QTest::keyClick(&box, Qt::Key_Tab);
  EXPECT_EQ(settings.textImageWrapperBackdrop, "relative.gif");
}

TEST_F(SettingsOnPages, LabelsShowTheUnitsOfNumbers) {
  EXPECT_EQ(Text("lblSeconds"), "Seconds");
  EXPECT_EQ(Text("lblSlideShowDelaySeconds"), "Seconds");
  EXPECT_EQ(Text("lblPageLinksThumbnailLinks"), "Links");
  harness.GoTo(Thumbnails);
  EXPECT_TRUE(Shown("lblThumbnailsTableNoBGColor"));
  EXPECT_EQ(Text("lblThumbnailsTableNoBGColor"), "(no color used)");
}

TEST_F(SettingsOnPages, ThumbnailSettingsStayVisibleWithoutWrapperPages) {
  ClickOn(Wrappers, "checkImageWrapperUse");
  harness.GoTo(Captions);
  EXPECT_TRUE(Shown("frmCaptionsThumbnails"));
  harness.GoTo(PageLinks);
  EXPECT_TRUE(Shown("frmPageLinksOnThumbnailPages"));
}

/// The state of each control that has a rule, and the texts of the unit labels.
std::string RuledControls(QWidget& window) {
  std::string told;
  for (const ControlRule& rule : ControlRules()) {
    const std::string name(rule.control);
    const auto& control = Find<QWidget>(window, name.c_str());
    const bool holds =
        rule.property == ControlProperty::Visible ? !control.isHidden() : control.isEnabledTo(control.parentWidget());
    told += name + (holds ? " +\n" : " -\n");
  }
  for (const UnitLabel& label : UnitLabels()) {
    told += FromQt(Find<QLabel>(window, std::string(label.control).c_str()).text()) + "\n";
  }
  return told;
}

TEST_F(SettingsOnPages, ANewProjectAppliesEveryRuleWhateverTheOldProjectHad) {
  const auto before = RuledControls(*harness.window);
  for (const char* box :
       {"checkImageWrapperSetColors", "checkImageWrapperImageKeepAspectRatio", "checkImageWrapperImageKeepSize"}) {
    ClickOn(Wrappers, box);
  }
  for (const char* box :
       {"checkThumbnailsTableUseBGColor", "checkThumbnailsPageSetColors", "checkThumbnailsImageKeepAspectRatio"}) {
    ClickOn(Thumbnails, box);
  }
  ClickOn(PageLinks, "checkPageLinksThumbnailDirectLinks");
  ClickOn(Captions, "checkCaptionsImagesRegular");
  ClickOn(Captions, "checkCaptionsThumbnailsPopup");
  ClickOn(Wrappers, "checkImageWrapperUse");
  ChooseNext(Gallery, "comboGalleryLayoutType");
  ClickOn(Gallery, "checkGalleryFrameSizeInPercent");
  EXPECT_NE(RuledControls(*harness.window), before);
  harness.boxes.answers = {env::BoxAnswer::No};
  harness.Trigger("menuFileNew");
  EXPECT_EQ(RuledControls(*harness.window), before);
  EXPECT_FALSE(harness.model->CurrentProject().IsModified);
}

// Each button opens a dialog with the given title.

TEST_F(SettingsOnPages, EachButtonOpensItsDialog) {
  struct Row {
    Page page;
    const char* button;
    const char* title;
  };
  for (const char* box : {"checkCaptionsImagesRegular", "checkCaptionsImagesPopup", "checkCaptionsThumbnailsRegular",
                          "checkCaptionsThumbnailsPopup"}) {
    ClickOn(Captions, box);
  }
  ClickOn(Wrappers, "checkImageWrapperSetColors");
  ClickOn(Thumbnails, "checkThumbnailsPageSetColors");
  const Row rows[] = {
      {Gallery, "btnGalleryInfo", "Information about this Gallery"},
      {Gallery, "btnGalleryHEAD", "Gallery <HEAD> Code"},
      {Gallery, "btnGalleryFileNameSettings", "Path and File Name Settings"},
      {Gallery, "btnGallerySingleFrameNames", "Frame Name Settings"},
      {Wrappers, "btnImageWrapperHEAD", "Image Wrapper <HEAD> Code"},
      {Wrappers, "btnImageWrapperBODY", "Image Wrapper <BODY> Header and Footer"},
      {Wrappers, "btnImageWrapperImageHeaderAndFooter", "Image Wrapper Image HTML Header and Footer"},
      {Wrappers, "btnImageWrapperColors", "Select Image Wrapper Colors"},
      {Thumbnails, "btnThumbnailsPageHEAD", "Thumbnail Page <HEAD> Code"},
      {Thumbnails, "btnThumbnailsPageHeaderAndFooter", "Thumbnail Page <BODY> Header and Footer"},
      {Thumbnails, "btnThumbnailsImageHeaderAndFooter", "Thumbnail Page Thumb HTML Header and Footer"},
      {Thumbnails, "btnThumbnailsPageColors", "Select Thumbnail Page Colors"},
      {Thumbnails, "btnThumbnailsImageFilters", "Filters for Thumbnails"},
      {Thumbnails, "btnThumbnailsWatermark", "Thumbnail Watermarks"},
      {Images, "btnImagesFilters", "Filters for Images"},
      {Images, "btnImagesWatermark", "Image Watermarks"},
      {Captions, "btnCaptionsImagesRegular", "Image Regular Caption Code"},
      {Captions, "btnCaptionsImagesPopup", "Image Popup Caption Code"},
      {Captions, "btnCaptionsThumbnailsRegular", "Thumbnail Regular Caption Code"},
      {Captions, "btnCaptionsThumbnailsPopup", "Thumbnail Popup Caption Code"},
      {PageLinks, "btnPageLinksImageFirstLink", "\"First Image\" Link"},
      {PageLinks, "btnPageLinksImageLastLink", "\"Last Image\" Link"},
      {PageLinks, "btnPageLinksImagePreviousLink", "\"Previous Image\" Link"},
      {PageLinks, "btnPageLinksImageNextLink", "\"Next Image\" Link"},
      {PageLinks, "btnPageLinksImageIndexLink", "\"Index Page\" Link"},
      {PageLinks, "btnPageLinksThumbnailFirstLink", "\"First Thumbnail Page\" Link"},
      {PageLinks, "btnPageLinksThumbnailLastLink", "\"Last Thumbnail Page\" Link"},
      {PageLinks, "btnPageLinksThumbnailPreviousLink", "\"Previous Thumbnail Page\" Link"},
      {PageLinks, "btnPageLinksThumbnailNextLink", "\"Next Thumbnail Page\" Link"},
  };
  for (const Row& row : rows) {
    harness.GoTo(row.page);
    QString title;
    DriveModal([&] { Click(*harness.window, row.button); }, [&](QWidget& dialog) { title = dialog.windowTitle(); });
    EXPECT_EQ(title, row.title) << row.button;
  }
  ChooseNext(Gallery, "comboGalleryLayoutType");
  QString title;
  DriveModal([&] { Click(*harness.window, "btnGalleryMultiFrameNames"); },
             [&](QWidget& dialog) { title = dialog.windowTitle(); });
  EXPECT_EQ(title, "Frame Name Settings");
}

}  // namespace
}  // namespace vantorium::ui
