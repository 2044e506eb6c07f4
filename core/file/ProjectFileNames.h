#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace vantorium::core {

/// The words that represent the indices of a list in the project file. An empty word is not written.
using FileWords = std::span<const std::string_view>;

/// Returns the word of an index, or an empty one if the index has none.
[[nodiscard]] std::string_view WordOf(FileWords words, std::int16_t index);

/// Returns the index of a word, ignoring case, or nullopt if the word is not in the list.
[[nodiscard]] std::optional<std::int16_t> IndexOfWord(FileWords words, std::string_view word);

inline constexpr std::string_view kLayoutTypeWords[] = {"singleframe", "thumbsleft", "thumbsright", "thumbstop",
                                                        "thumbsbottom"};
inline constexpr std::string_view kFirstSlideWords[] = {"firstThumbPage", "firstImage"};
inline constexpr std::string_view kNextSlideWords[] = {"nextImage", "thumbPage", "firstThumbPage"};
inline constexpr std::string_view kStartOverWords[] = {"firstThumbPage", "firstImage", "stop"};

// Captions are written with different words than are read: a caption above or below returns to its default place.
// Existing files depend on it.
inline constexpr std::string_view kWrittenCaptionPlaceWords[] = {"left", "right", "above", "below"};
inline constexpr std::string_view kReadCaptionPlaceWords[] = {"left", "right", "top", "bottom"};
inline constexpr std::string_view kDescriptionPlaceWords[] = {"", "left", "right", "top", "bottom"};
inline constexpr std::string_view kAlignmentBesideWords[] = {"top", "center", "bottom"};
inline constexpr std::string_view kAlignmentStackedWords[] = {"left", "center", "right"};

inline constexpr std::string_view kTableAlignmentWords[] = {"fitToPage", "left", "center", "right"};
inline constexpr std::string_view kLinkPlaceWords[] = {"", "top", "bottom", "top,bottom"};
inline constexpr std::string_view kAutoPositionWords[] = {"topleft",
                                                          "topcenter",
                                                          "topright",
                                                          "leftcenter",
                                                          "center",
                                                          "rightcenter",
                                                          "bottomleft",
                                                          "bottomcenter",
                                                          "bottomright",
                                                          "toplefttobottomright",
                                                          "bottomlefttotopright"};

inline constexpr std::string_view kRegularCaptionWord = "regular";
inline constexpr std::string_view kPopupCaptionWord = "popup";
inline constexpr std::string_view kUnlimitedLinksWord = "all";
inline constexpr std::string_view kFilePrefix = "file://";

inline constexpr std::string_view kGrayscaleWord = "grayscale";
inline constexpr std::string_view kNoiseWord = "noise";
inline constexpr std::string_view kBrightnessWord = "brightness";
inline constexpr std::string_view kFadeWord = "fade";
inline constexpr std::string_view kQualityWord = "quality";
inline constexpr std::string_view kWatermarkWord = "watermark";

}  // namespace vantorium::core
