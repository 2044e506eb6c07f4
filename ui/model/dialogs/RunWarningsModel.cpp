#include "ui/model/dialogs/RunWarningsModel.h"

#include <algorithm>

namespace vantorium::ui {

std::string RunWarningsModel::Line(std::size_t finding) const {
  return generation::LineOf(Found().at(finding));
}

bool RunWarningsModel::CanRename() const {
  return chosen_ < Found().size() && ChosenFinding().IsAboutName();
}

RenameModel RunWarningsModel::NameToChange() const {
  RenameModel model;
  model.SetNameBase(ChosenFinding().name);
  return model;
}

void RunWarningsModel::Rename(const RenameModel& answer) {
  const std::size_t image = ChosenFinding().image;
  project_.images.DeselectAll();
  project_.images.Select(image);
  project_.images.SetCurrent(image);
  images_.Rename(answer.GetNameBase(), answer.Scope());
  forecast_.Renew();
  if (chosen_ >= Found().size()) chosen_ = std::max<std::size_t>(Found().size(), 1) - 1;
}

}  // namespace vantorium::ui
