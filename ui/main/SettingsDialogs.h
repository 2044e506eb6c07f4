#pragma once

#include "ui/model/dialogs/SampleDialog.h"
#include "ui/model/main/DesktopPorts.h"
#include "ui/model/main/SettingsButtons.h"

#include <QObject>
#include <QWidget>
#include <functional>
#include <string>

namespace vantorium::ui {

class ColorDialog;
class FieldBinder;
struct DesktopPorts;

/// Opens the dialogs of the settings pages: each button of the tables in SettingsButtons does what its row says.
class SettingsDialogs : public QObject {
  Q_OBJECT

 public:
  struct Parts {
    FieldBinder& binder;
    ColorDialog& colors;
    const DesktopPorts& ports;
    std::function<SampleSources()> samples;  ///< current sources of the sample pictures for filters and watermarks
  };

  /// Connects the buttons on `form`, which must outlive this. Throws std::logic_error if a button is missing.
  SettingsDialogs(Parts parts, QWidget& form);

 private:
  void OnClick(std::string_view button, std::function<void()> open);
  void Edit(const CodeButton& row);
  void Edit(const HeaderFooterButton& row);
  void Edit(const BackdropButton& row);
  void Edit(const ColorsButton& row);
  void Edit(const LinkButton& row);
  void Edit(const FiltersButton& row);
  void Edit(const WatermarkButton& row);
  void SetIfChanged(std::string core::GalleryProject::*field, const std::string& text);
  [[nodiscard]] SamplePorts PortsOfSamples() const;

  Parts parts_;
  QWidget& form_;
  std::string graphicsFolder_;
};

}  // namespace vantorium::ui
