#pragma once

#include "image/ResamplePlan.h"
#include "image/cDIBSection.h"

#include <cstdint>

namespace vantorium::image {

/// How a photograph must be turned to stand upright: the values of the Exif tag Orientation (Exif 2.3, 4.6.4 A). The
/// names tell what is done to the stored picture.
enum class Orientation : std::uint8_t {
  AsStored = 1,
  MirrorColumns = 2,
  TurnAround = 3,
  MirrorRows = 4,
  SwapSides = 5,  ///< mirror at the diagonal from the top left
  TurnRight = 6,
  SwapSidesAround = 7,  ///< mirror at the diagonal from the top right
  TurnLeft = 8,
};

/// The same as three steps from the upright picture to the stored one: swap columns and rows, then count the stored
/// columns and rows from their other end.
struct Turn {
  explicit Turn(Orientation orientation);

  /// The size of the upright picture, given that of the stored one, or the other way round.
  [[nodiscard]] PictureSize SizeOf(PictureSize size) const;
  /// The stored pixels of marked pixels of the upright picture.
  [[nodiscard]] WantedPixels ToStored(const WantedPixels& upright) const;

  bool swapsSides;
  bool reversesColumns;
  bool reversesRows;
};

/// Turns a whole picture. Returns false if there is no memory for a second picture; `dib` is then unchanged.
[[nodiscard]] bool TurnUpright(cDIBSection& dib, Orientation orientation);

}  // namespace vantorium::image
