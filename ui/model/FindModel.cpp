#include "ui/model/FindModel.h"

#include "ui/model/TypedName.h"

namespace vantorium {

void FindModel::SetTitle(const std::string& title) {
  title_ = TypedName(title);
}

}  // namespace vantorium
