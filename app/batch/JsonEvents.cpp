#include "app/batch/JsonEvents.h"

#include "app/batch/Terminal.h"

#include <nlohmann/json.hpp>

namespace vantorium::batch {
namespace {

using Json = nlohmann::ordered_json;

/// Bytes that are not UTF-8, as in the name of a file, become replacement characters.
std::string Line(const Json& event) {
  return event.dump(-1, ' ', false, Json::error_handler_t::replace) + "\n";
}

const char* WordOf(ExitCode result) {
  if (result == ExitCode::Success) return "success";
  return result == ExitCode::Cancelled ? "cancelled" : "failure";
}

}  // namespace

void JsonEvents::Status(const std::string& text) {
  if (!text.empty()) Print(Line({{"event", "status"}, {"text", text}}));
}

void JsonEvents::Progress(std::int64_t value, std::int64_t maximum) {
  Print(Line({{"event", "progress"}, {"value", value}, {"maximum", maximum}}));
}

void JsonEvents::Message(const std::string& title, const std::string& text) {
  Print(Line({{"event", "message"}, {"title", title}, {"text", text}}));
}

bool JsonEvents::End(ExitCode result, const std::string& index) {
  Json end = {{"event", "end"}, {"result", WordOf(result)}};
  if (!index.empty()) end["index"] = index;
  Print(Line(end));
  return written_;
}

// After a failure nothing more is tried: a reader that is gone would be reported for each event.
void JsonEvents::Print(const std::string& line) {
  if (!written_ || line == last_) return;
  last_ = line;
  written_ = PrintResult(line);
}

}  // namespace vantorium::batch
