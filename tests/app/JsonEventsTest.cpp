#include "tests/app/Workplace.h"

#include <sstream>

#include <nlohmann/json.hpp>

namespace vantorium::batch {
namespace {

using Json = nlohmann::json;

std::vector<Json> EventsOf(const ProcessResult& result) {
  std::vector<Json> events;
  std::istringstream lines(result.out);
  for (std::string line; std::getline(lines, line);) events.push_back(Json::parse(line));
  return events;
}

std::size_t CountOf(const std::vector<Json>& events, const char* kind) {
  return static_cast<std::size_t>(
      std::count_if(events.begin(), events.end(), [&](const Json& event) { return event.at("event") == kind; }));
}

TEST(JsonEvents, AreOneObjectPerLineAndEndWithTheResult) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg", "b.jpg"});
  const ProcessResult result = place.Run({"create", "a.gpj", "out/index.htm", "--json"});
  ASSERT_TRUE(Succeeded(result));
  EXPECT_EQ(result.err, "");
  const auto events = EventsOf(result);
  ASSERT_GT(events.size(), 5U);
  EXPECT_EQ(events.back(), (Json{{"event", "end"}, {"result", "success"}}));
  EXPECT_EQ(CountOf(events, "end"), 1U);
  EXPECT_TRUE(std::find(events.begin(), events.end(),
                        Json{{"event", "status"}, {"text", "Copying File \"a.jpg\"..."}}) != events.end())
      << result.out;
  const auto last =
      std::find_if(events.rbegin(), events.rend(), [](const Json& event) { return event.at("event") == "progress"; });
  ASSERT_TRUE(last != events.rend());
  EXPECT_EQ(last->at("value"), last->at("maximum"));
}

TEST(JsonEvents, ChangeNothingElse) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  const std::vector<std::string> plain = {"create", "a.gpj", "out/index.htm", "--verbose"};
  auto withEvents = plain;
  withEvents.emplace_back("--json");
  const ProcessResult without = place.Run(plain);
  EXPECT_EQ(without.out, "");
  EXPECT_EQ(place.Run(withEvents).err, without.err);
}

TEST(JsonEvents, OfAFailureIncludeItsMessage) {
  const Workplace place;
  const ProcessResult result = place.Run({"create", "missing.gpj", "out/index.htm", "--json"});
  EXPECT_TRUE(EndedWith(1, result));
  const auto events = EventsOf(result);
  ASSERT_GE(events.size(), 2U);
  EXPECT_GT(CountOf(events, "message"), 0U);
  for (const Json& event : events) {
    if (event.at("event") == "message") {
      EXPECT_NE(result.err.find(event.at("title").get<std::string>() + ": "), std::string::npos) << event;
    }
  }
  EXPECT_EQ(events.back(), (Json{{"event", "end"}, {"result", "failure"}}));
}

TEST(JsonEvents, OfAPreviewEndWithItsIndexFileInsteadOfAPlainLine) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  const ProcessResult plain = place.Run({"preview", "a.gpj"});
  const auto events = EventsOf(place.Run({"preview", "a.gpj", "--json"}));
  ASSERT_FALSE(events.empty());
  EXPECT_EQ(events.back().at("index").get<std::string>() + "\n", plain.out);
}

TEST(JsonEvents, ThatCannotBeWrittenMakeTheRunAFailureAtItsEnd) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  StartOptions options = place.Options({"create", "a.gpj", "out/index.htm", "--json"});
  options.standardOutput = "/dev/full";
  EXPECT_TRUE(EndedWith(1, ChildProcess(options).Finish()));
  EXPECT_TRUE(std::filesystem::exists(place.Path("out/index.htm")));
}

TEST(JsonEvents, AreForRunsOnly) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  for (const auto& arguments : {std::vector<std::string>{"show", "a.gpj", "--json"},
                                std::vector<std::string>{"save", "a.gpj", "b.gpj", "--json"}}) {
    EXPECT_TRUE(EndedWith(2, place.Run(arguments))) << arguments.front();
  }
}

}  // namespace
}  // namespace vantorium::batch
