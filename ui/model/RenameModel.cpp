#include "ui/model/RenameModel.h"

#include "ui/model/TypedName.h"

namespace vantorium {

void RenameModel::SetNameBase(const std::string& nameBase) {
  nameBase_ = TypedName(nameBase);
}

}  // namespace vantorium
