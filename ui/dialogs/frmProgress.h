#pragma once

#include "env/Shell.h"
#include "publish/CancelPoll.h"
#include "publish/ProgressModel.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QTimer>
#include <bitset>
#include <memory>

namespace Ui {
class frmProgress;
}

namespace vantorium::ui {

/// The progress window of a run, in front of the main window, which the run disables. Draws updates at most 30 times a
/// second, and always the last one.
class frmProgress : public QDialog, public publish::ProgressModel {
  Q_OBJECT

 public:
  /// `appPath` is the program's folder as path text.
  frmProgress(publish::UploadLog& log, publish::CancelPoll& cancel, env::Shell& shell, std::string appPath,
              QWidget* parent);
  ~frmProgress() override;

  /// Escape and the title bar do what CancelButton does.
  void reject() override;

 protected:
  void Draw(publish::ProgressPart part) override;

 private:
  void ComeUp();
  void DrawChanges();
  void DrawTexts();
  void DrawLog();
  void AppendLog(const std::string& log);
  void DrawBars();
  void DrawButtons();
  [[nodiscard]] bool HasChanged(publish::ProgressPart part) const {
    return changed_.test(static_cast<std::size_t>(part));
  }

  publish::CancelPoll& cancel_;
  env::Shell& shell_;
  std::string appPath_;
  std::unique_ptr<Ui::frmProgress> ui_;
  std::bitset<16> changed_;   // indexed by ProgressPart
  QElapsedTimer drawn_;       // time since the last drawing
  QTimer due_;                // starts the next drawing
  std::size_t shownLog_ = 0;  // bytes of the log box's text that infoText shows
  bool isAsking_ = false;
};

}  // namespace vantorium::ui
