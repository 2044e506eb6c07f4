#include "image/Resample.h"

#include "image/ResamplePlan.h"

#include <new>

namespace vantorium::image {

std::unique_ptr<cDIBSection> Resample(const cDIBSection& source, std::int32_t newHeight, std::int32_t newWidth) try {
  auto result = std::make_unique<cDIBSection>();
  if (source.DIBSectionBitsPtr() == nullptr || !result->Create(newWidth, newHeight)) return nullptr;
  const ResamplePlan plan({source.width(), source.height()}, {newWidth, newHeight});
  for (std::int32_t row = 0; row < newHeight; ++row) {
    const auto rows = plan.RowsOf(row);
    plan.CombineRows(rows, source.Row(rows.lower), source.Row(rows.upper), result->Row(row));
  }
  return result;
} catch (const std::bad_alloc&) {
  return nullptr;
}

}  // namespace vantorium::image
