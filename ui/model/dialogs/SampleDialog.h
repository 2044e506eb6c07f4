#pragma once

#include "env/EventLoop.h"
#include "env/MessageBoxPort.h"
#include "env/TempFolder.h"
#include "env/mFileFunctions.h"
#include "image/Corrections.h"
#include "image/ResamplePlan.h"
#include "image/cDIBSection.h"

#include <memory>
#include <string>
#include <vector>

namespace vantorium::ui {

/// Sources of a dialog's sample picture. All are path text.
struct SampleSources {
  std::string selectedFile;                 ///< file of the image selected in the list; empty for none
  std::vector<std::string> defaultSamples;  ///< tried in this order if selectedFile cannot be loaded
  std::string tempFolderLocation;           ///< the folder that holds VANTORIUM_TEMP
  image::Corrections corrections = {};      ///< made in the sample
};

/// What a dialog with a sample needs from the program.
struct SamplePorts {
  const env::mFileFunctions& files;
  env::MessageBoxPort& boxes;
  env::EventLoop& loop;
};

/// The picture box of a dialog, and the dialog around it.
class SampleBox {
 public:
  virtual ~SampleBox() = default;

  /// Inner size of the box in screen pixels, so that a picture of that size is as sharp as the screen.
  [[nodiscard]] virtual image::PictureSize SizeInPixels() const = 0;
  /// Screen pixels per pixel of a web page; above 1 on high-resolution screens.
  [[nodiscard]] virtual double PixelRatio() const = 0;

  virtual void Clear() = 0;
  /// Shows the picture at the top left of the box, without scaling.
  virtual void PaintPicture(const image::cDIBSection& picture) = 0;
  virtual void HideDialog() = 0;
};

/// The common part of the two dialogs that show a sample: loading the source picture once, compressing it through a
/// JPEG file in the temporary folder, and closing the dialog. A dialog counts as cancelled until it is applied.
class SampleDialog {
 public:
  SampleDialog(const SampleSources& sources, const SamplePorts& ports, SampleBox& box);

  /// Call once, when the dialog has opened. Clears the box, lets the dialog be drawn, loads the source and looks
  /// through the temporary folder. Returns false if the dialog is closed: by the user meanwhile or, after a message
  /// box, because there is no sample.
  [[nodiscard]] bool Open();

  /// True from the end of Open to the first Close. Only then is there a source, and only then do the buttons work.
  [[nodiscard]] bool IsOpen() const { return source_ != nullptr && !closed_; }
  [[nodiscard]] const image::cDIBSection& Source() const { return *source_; }

  /// Stores in `result` what `picture` looks like after a JPEG file of `quality`, 1 to 100. Creates the file's folder
  /// if it is missing. Returns false if the temporary file cannot be written or read, if the program must not work in
  /// the folder (RefusalOfTempFolder, asked by Open), and before Open. `result` may be `picture`.
  [[nodiscard]] bool Compress(const image::cDIBSection& picture, std::int32_t quality,
                              image::cDIBSection& result) const;
  [[nodiscard]] std::string TempFile() const { return TempFolder() + "\\preview_temp.jpg"; }

  /// Hides the dialog. Does nothing if it is already closed.
  void Close(bool cancelled);
  /// Reports in a message box that a preview could not be made because of `place`, a path, and closes the dialog as
  /// cancelled.
  void CloseWithFailure(const std::string& place);
  [[nodiscard]] bool Cancelled() const { return cancelled_; }

 private:
  [[nodiscard]] std::string TempFolder() const { return env::TempFolderIn(sources_.tempFolderLocation); }
  [[nodiscard]] std::unique_ptr<image::cDIBSection> LoadSource() const;
  [[nodiscard]] bool MakeTempFolder() const;

  SampleSources sources_;
  SamplePorts ports_;
  SampleBox& box_;
  std::unique_ptr<image::cDIBSection> source_;
  bool mayUseTempFolder_ = false;
  bool closed_ = false;
  bool cancelled_ = true;
};

}  // namespace vantorium::ui
