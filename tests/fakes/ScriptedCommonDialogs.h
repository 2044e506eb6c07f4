#pragma once

#include "env/mCommonDialogs.h"

#include <deque>
#include <optional>
#include <vector>

namespace vantorium::fakes {

/// Answers from the scripts `colors` and `fonts`, in order. An empty answer is Cancel, and so is every answer after the
/// script's end.
class ScriptedCommonDialogs : public env::mCommonDialogs {
 public:
  [[nodiscard]] bool ShowColorDialog(std::uint32_t& color, env::CustomColors& /*custom*/) override {
    colorsShown.push_back(color);
    return Answer(color, colors);
  }
  [[nodiscard]] bool ShowFontDialog(env::FontDescription& font) override {
    fontsShown.push_back(font);
    return Answer(font, fonts);
  }

  std::vector<std::uint32_t> colorsShown;
  std::vector<env::FontDescription> fontsShown;
  std::deque<std::optional<std::uint32_t>> colors;
  std::deque<std::optional<env::FontDescription>> fonts;

 private:
  template <typename Value>
  static bool Answer(Value& value, std::deque<std::optional<Value>>& script) {
    if (script.empty()) return false;
    const std::optional<Value> answer = script.front();
    script.pop_front();
    if (answer) value = *answer;
    return answer.has_value();
  }
};

}  // namespace vantorium::fakes
