#include "tests/app/Workplace.h"

#include <algorithm>

namespace vantorium::batch {
namespace {

using testing::AssertionFailure;
using testing::AssertionResult;
using testing::AssertionSuccess;
using Arguments = std::vector<std::string>;

std::string Joined(const Arguments& arguments) {
  std::string text;
  for (const std::string& argument : arguments) text += " '" + argument + "'";
  return text;
}

/// Success if the program refuses the arguments with exit code 2 and one line on standard error that contains `named`.
AssertionResult IsRefused(const Arguments& arguments, const std::string& named = {}) {
  const ProcessResult result = Workplace().Run(arguments);
  const bool oneLine = std::ranges::count(result.err, '\n') == 1 && result.err.ends_with('\n');
  if (result.exitCode == 2 && oneLine && result.out.empty() && result.err.find(named) != std::string::npos) {
    return AssertionSuccess();
  }
  return AssertionFailure() << "arguments" << Joined(arguments) << ": exit code " << result.exitCode
                            << "\nstandard output:\n"
                            << result.out.substr(0, 200) << "\nstandard error, which should hold \"" << named << "\":\n"
                            << result.err;
}

TEST(CommandLine, HelpListsEveryCommandAndOption) {
  const ProcessResult result = Workplace().Run({"--help"});
  ASSERT_TRUE(Succeeded(result));
  EXPECT_EQ(result.err, "");
  for (const char* word :
       {"new", "show", "save", "create", "preview", "publish", "upload", "--program-folder", "--temp-folder",
        "--creation-time", "--jobs", "--quiet", "--verbose", "--help", "--version", "130"}) {
    EXPECT_NE(result.out.find(word), std::string::npos) << word << " is not in\n" << result.out;
  }
}

TEST(CommandLine, HelpOfACommandListsItsSwitches) {
  const std::pair<const char*, Arguments> commands[] = {
      {"new", {"OUT.gpj", "PATH", "--title", "--recursive", "--force"}},
      {"show", {"PROJECT.gpj"}},
      {"save", {"PROJECT.gpj", "OUT.gpj"}},
      {"create",
       {"PROJECT.gpj", "INDEX-FILE", "--no-images", "--no-thumbnails", "--no-html", "--keep-existing", "--only-changes",
        "--remove-unused"}},
      {"preview", {"PROJECT.gpj", "--open"}},
      {"publish",
       {"PROJECT.gpj", "FOLDER/INDEX-FILE", "--server", "--user", "--password-file", "--remote", "--base-directory",
        "--port", "--passive", "--tls", "--tls-fingerprint", "--no-images", "--no-thumbnails", "--no-html",
        "--keep-existing", "--only-changes", "--remove-unused"}},
      {"upload",
       {"FOLDER", "--server", "--user", "--password-file", "--remote", "--base-directory", "--port", "--passive",
        "--tls", "--tls-fingerprint", "--keep-existing", "--only-changes", "--remove-unused"}},
  };
  for (const auto& [command, words] : commands) {
    const ProcessResult result = Workplace().Run({command, "--help"});
    ASSERT_TRUE(Succeeded(result)) << command;
    for (const std::string& word : words) {
      EXPECT_NE(result.out.find(word), std::string::npos) << word << " is not in\n" << result.out;
    }
  }
}

TEST(CommandLine, VersionIsOneLine) {
  const ProcessResult result = Workplace().Run({"--version"});
  ASSERT_TRUE(Succeeded(result));
  EXPECT_EQ(result.out, "vantorium-batch 3.0\n");
  EXPECT_EQ(result.err, "");
}

TEST(CommandLine, ACommandIsRequired) {
  EXPECT_TRUE(IsRefused({}));
  EXPECT_TRUE(IsRefused({"--quiet"}));
}

TEST(CommandLine, AnUnknownCommandIsNamed) {
  EXPECT_TRUE(IsRefused({"frobnicate"}, "frobnicate"));
  EXPECT_TRUE(IsRefused({"frobnicate", "a.gpj", "b.gpj"}, "frobnicate"));
  EXPECT_TRUE(IsRefused({"SHOW", "a.gpj"}, "SHOW"));
  EXPECT_TRUE(IsRefused({"two\nlines"}, "two"));
}

TEST(CommandLine, AnUnknownSwitchIsNamed) {
  EXPECT_TRUE(IsRefused({"--frobnicate"}, "--frobnicate"));
  EXPECT_TRUE(IsRefused({"show", "a.gpj", "--frobnicate"}, "--frobnicate"));
  EXPECT_TRUE(IsRefused({"create", "a.gpj", "index.htm", "--no-pictures"}, "--no-pictures"));
  EXPECT_TRUE(IsRefused({"create", "a.gpj", "index.htm", "-x"}, "-x"));
}

TEST(CommandLine, ASwitchOfAnotherCommandIsUnknown) {
  EXPECT_TRUE(IsRefused({"show", "a.gpj", "--keep-existing"}, "--keep-existing"));
  EXPECT_TRUE(IsRefused({"preview", "a.gpj", "--only-changes"}, "--only-changes"));
  EXPECT_TRUE(IsRefused({"create", "a.gpj", "out/", "--remove-unused"}, "--only-changes"));
  EXPECT_TRUE(IsRefused({"save", "a.gpj", "b.gpj", "--recursive"}, "--recursive"));
  EXPECT_TRUE(IsRefused({"preview", "a.gpj", "--no-html"}, "--no-html"));
  EXPECT_TRUE(IsRefused({"create", "a.gpj", "index.htm", "--open"}, "--open"));
  EXPECT_TRUE(IsRefused({"create", "a.gpj", "index.htm", "--server", "example.com"}, "--server"));
}

TEST(CommandLine, AMissingArgumentIsNamed) {
  EXPECT_TRUE(IsRefused({"new"}, "OUT.gpj"));
  EXPECT_TRUE(IsRefused({"new", "a.gpj"}, "PATH"));
  EXPECT_TRUE(IsRefused({"show"}, "PROJECT.gpj"));
  EXPECT_TRUE(IsRefused({"save"}, "PROJECT.gpj"));
  EXPECT_TRUE(IsRefused({"save", "a.gpj"}, "OUT.gpj"));
  EXPECT_TRUE(IsRefused({"create"}, "PROJECT.gpj"));
  EXPECT_TRUE(IsRefused({"create", "a.gpj"}, "INDEX-FILE"));
  EXPECT_TRUE(IsRefused({"create", "a.gpj", ""}, "INDEX-FILE"));
  EXPECT_TRUE(IsRefused({"preview"}, "PROJECT.gpj"));
}

TEST(CommandLine, AnOptionWithoutItsValueIsNamed) {
  for (const char* option : {"--program-folder", "--temp-folder", "--creation-time", "--jobs"}) {
    EXPECT_TRUE(IsRefused({"show", "a.gpj", option}, option));
  }
  EXPECT_TRUE(IsRefused({"new", "a.gpj", "a.jpg", "--title"}, "--title"));
}

TEST(CommandLine, AnExcessArgumentIsNamed) {
  EXPECT_TRUE(IsRefused({"show", "a.gpj", "b.gpj"}, "b.gpj"));
  EXPECT_TRUE(IsRefused({"create", "a.gpj", "index.htm", "more.htm"}, "more.htm"));
}

/// A complete command line of publish or upload without this option and its value.
Arguments Without(const std::string& option, const std::string& command) {
  Arguments arguments = {command, "what"};
  for (const auto& [name, value] : {std::pair{"--server", "example.com"}, std::pair{"--user", "me"},
                                    std::pair{"--password-file", "password"}, std::pair{"--remote", "web/index.htm"}}) {
    if (name != option) arguments.insert(arguments.end(), {name, value});
  }
  return arguments;
}

TEST(CommandLine, TheOptionsThatNameTheServerAreRequired) {
  for (const char* command : {"publish", "upload"}) {
    for (const char* option : {"--server", "--user", "--password-file", "--remote"}) {
      EXPECT_TRUE(IsRefused(Without(option, command), option));
      Arguments withoutValue = Without(option, command);
      withoutValue.emplace_back(option);
      EXPECT_TRUE(IsRefused(withoutValue, option));
    }
    EXPECT_TRUE(IsRefused({command}, command == std::string("publish") ? "PROJECT.gpj" : "FOLDER"));
  }
}

TEST(CommandLine, APasswordIsNotAcceptedAsAnArgument) {
  for (const char* command : {"publish", "upload"}) {
    Arguments arguments = Without("", command);
    arguments.insert(arguments.end(), {"--password", "hush"});
    EXPECT_TRUE(IsRefused(arguments, "--password"));
  }
}

TEST(CommandLine, UploadRefusesTheSwitchesOfGalleries) {
  for (const char* option : {"--no-images", "--no-thumbnails", "--no-html"}) {
    Arguments arguments = Without("", "upload");
    arguments.emplace_back(option);
    EXPECT_TRUE(IsRefused(arguments, option));
  }
}

TEST(CommandLine, PortIsAValidPortNumber) {
  for (const char* port : {"0", "65536", "-1", "ftp", "21x", ""}) {
    Arguments arguments = Without("", "upload");
    arguments.insert(arguments.end(), {"--port", port});
    EXPECT_TRUE(IsRefused(arguments, "--port"));
  }
}

TEST(CommandLine, AFingerprintRequiresEncryption) {
  const std::string good(64, 'a');
  for (const std::string& fingerprint :
       {std::string(), std::string("sha256"), good + "0", good.substr(1), " " + good}) {
    Arguments arguments = Without("", "upload");
    arguments.insert(arguments.end(), {"--tls", "--tls-fingerprint", fingerprint});
    EXPECT_TRUE(IsRefused(arguments, "--tls-fingerprint"));
  }
  Arguments inClear = Without("", "publish");
  inClear.insert(inClear.end(), {"--tls-fingerprint", good});
  EXPECT_TRUE(IsRefused(inClear, "--tls"));
}

TEST(CommandLine, TheRemotePathOfAGalleryEndsInTheIndexFile) {
  for (const char* remote : {"web/", "web\\", "/", "", "web/..", ".", "web\\."}) {
    Arguments arguments = Without("--remote", "publish");
    arguments.insert(arguments.end(), {"--remote", remote});
    EXPECT_TRUE(IsRefused(arguments, "--remote"));
  }
}

TEST(CommandLine, JobsIsAPositiveNumber) {
  for (const char* number : {"0", "-1", "x", "", "1.5", "1x", "99999999999999999999"}) {
    EXPECT_TRUE(IsRefused({"show", "a.gpj", "--jobs", number}, "--jobs"));
  }
}

TEST(CommandLine, CreationTimeIsAValidTimeInTheExactFormat) {
  for (const char* time : {"",
                           "yesterday",
                           "2024-01-01",
                           "12:00:00",
                           "2024-1-1 0:0:0",
                           "2024-01-01T00:00:00",
                           "2024-01-01 00:00",
                           "2024-01-01 00:00:00 ",
                           " 2024-01-01 00:00:00",
                           "2024-01-01 00:00:00x",
                           "2024-02-30 00:00:00",
                           "2023-02-29 00:00:00",
                           "2024-13-01 00:00:00",
                           "2024-00-01 00:00:00",
                           "2024-01-00 00:00:00",
                           "2024-01-01 24:00:00",
                           "2024-01-01 00:60:00",
                           "2024-01-01 00:00:60",
                           "-001-01-01 00:00:00",
                           "0000-01-01 00:00:00",
                           "20240-01-01 00:00:00"}) {
    EXPECT_TRUE(IsRefused({"show", "a.gpj", "--creation-time", time}, "--creation-time"));
  }
}

TEST(CommandLine, CommonOptionsMayPrecedeOrFollowTheCommand) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  const Arguments options = {"--jobs", "2", "--quiet", "--creation-time", "2024-02-29 23:59:59"};
  Arguments before = options;
  before.insert(before.end(), {"show", "a.gpj"});
  Arguments after = {"show", "a.gpj"};
  after.insert(after.end(), options.begin(), options.end());
  EXPECT_TRUE(Succeeded(place.Run(before)));
  EXPECT_TRUE(Succeeded(place.Run(after)));
}

TEST(CommandLine, AfterTwoDashesAPathMayBeginWithADash) {
  const Workplace place;
  place.Photograph("-a.jpg");
  ASSERT_TRUE(Succeeded(place.Run({"new", "a.gpj", "--", "-a.jpg"})));
  EXPECT_NE(place.Read("a.gpj").find("NAME=\"-a.jpg\""), std::string::npos);
}

}  // namespace
}  // namespace vantorium::batch
