#include "ui/model/dialogs/RenameModel.h"

#include "ui/model/dialogs/TypedName.h"

namespace vantorium::ui {

void RenameModel::SetNameBase(const std::string& nameBase) {
  nameBase_ = TypedName(nameBase);
}

}  // namespace vantorium::ui
