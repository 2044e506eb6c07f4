#pragma once

#include "env/EventLoop.h"
#include "env/MessageBoxPort.h"
#include "env/TempFolder.h"
#include "env/mFileFunctions.h"
#include "image/ResamplePlan.h"
#include "image/cDIBSection.h"

#include <memory>
#include <string>
#include <vector>

namespace vantorium {

/// Where the sample picture of a dialog comes from. All are path text.
struct SampleSources {
  std::string selectedFile;                 ///< the file of the image that is selected in the list, empty for none
  std::vector<std::string> defaultSamples;  ///< tried in this order where that one can't be loaded
  std::string tempFolderLocation;           ///< the folder that holds VANTORIUM_TEMP
};

/// What a dialog with a sample needs of the program.
struct SamplePorts {
  const mFileFunctions& files;
  MessageBoxPort& boxes;
  EventLoop& loop;
};

/// The picture box of a dialog, and the dialog around it.
class SampleBox {
 public:
  virtual ~SampleBox() = default;

  /// The box's inside in pixels of the screen, so that a picture of that size is as sharp as the screen.
  [[nodiscard]] virtual PictureSize SizeInPixels() const = 0;
  /// How many such pixels the screen has for one pixel of a web page; above 1 on fine screens.
  [[nodiscard]] virtual double PixelRatio() const = 0;

  virtual void Clear() = 0;
  /// Shows the picture with its top left corner in that of the box, a pixel a pixel.
  virtual void PaintPicture(const cDIBSection& picture) = 0;
  virtual void HideDialog() = 0;
};

/// What the two dialogs that show a sample have in common: the source picture, which is loaded once, its way through a
/// JPEG file in the temporary folder, and the ways out of the dialog. A dialog is cancelled until it is applied.
class SampleDialog {
 public:
  SampleDialog(const SampleSources& sources, const SamplePorts& ports, SampleBox& box);

  /// To be called once, when the dialog has come up. Clears the box, lets the dialog be drawn and loads the source.
  /// False when the dialog is closed: by its user meanwhile, or because there is no sample, which a box tells.
  [[nodiscard]] bool Open();

  /// True from the end of Open to the first Close. Only then there is a source, and a button means something.
  [[nodiscard]] bool IsOpen() const { return source_ != nullptr && !closed_; }
  [[nodiscard]] const cDIBSection& Source() const { return *source_; }

  /// `picture` as it comes out of a JPEG file of that quality, 1 to 100. False when the temporary file can't be written
  /// or read; a folder that is missing for it is made. `result` may be `picture`.
  [[nodiscard]] bool Compress(const cDIBSection& picture, std::int32_t quality, cDIBSection& result) const;
  [[nodiscard]] std::string TempFile() const { return TempFolder() + "\\preview_temp.jpg"; }

  /// Hides the dialog; nothing when it is closed already.
  void Close(bool cancelled);
  /// Says that a preview could not be made because of `place`, a path, and closes the dialog as cancelled.
  void CloseWithFailure(const std::string& place);
  [[nodiscard]] bool Cancelled() const { return cancelled_; }

 private:
  [[nodiscard]] std::string TempFolder() const { return TempFolderIn(sources_.tempFolderLocation); }
  [[nodiscard]] std::unique_ptr<cDIBSection> LoadSource() const;

  SampleSources sources_;
  SamplePorts ports_;
  SampleBox& box_;
  std::unique_ptr<cDIBSection> source_;
  bool closed_ = false;
  bool cancelled_ = true;
};

}  // namespace vantorium
