#include "ui/model/dialogs/FindModel.h"

#include "ui/model/dialogs/TypedName.h"

namespace vantorium::ui {

void FindModel::SetTitle(const std::string& title) {
  title_ = TypedName(title);
}

}  // namespace vantorium::ui
