#include "tests/app/ServerPlace.h"

#include <algorithm>

namespace vantorium::batch {
namespace {

namespace fs = std::filesystem;

const char kWrongLogin[] = "FTP Error: Invalid User ID or Password.\n";

/// Uses ProFTPD because vsftpd accepts every password.
class Password : public ServerPlace {
 protected:
  Password() : ServerPlace(fakes::FtpServerKind::Proftpd) { place.Write("site/index.htm", "x"); }

  /// An upload that reads the password from standard input.
  [[nodiscard]] StartOptions FromStandardInput() const { return UploadWithFile("-"); }
  [[nodiscard]] StartOptions UploadWithFile(const std::string& file) const {
    StartOptions options = Options("upload", "site", "web");
    std::ranges::replace(options.command, std::string("password"), file);
    return options;
  }
  [[nodiscard]] ProcessResult UploadWith(std::string_view passwordFile) const {
    place.Write("password", passwordFile);
    return Upload("web", {"--verbose"});
  }
};

TEST_F(Password, IsTheFirstLineOfTheFile) {
  for (const char* end : {"", "\n", "\r\n", "\nmore\n", "\n\n"}) {
    EXPECT_TRUE(Succeeded(UploadWith(server.Password() + end))) << testing::PrintToString(end);
  }
}

TEST_F(Password, MayComeFromStandardInput) {
  StartOptions options = FromStandardInput();
  for (const char* end : {"", "\n", "\r\nmore"}) {
    options.standardInput = place.Write("input", server.Password() + end);
    EXPECT_TRUE(Succeeded(ChildProcess(options).Finish())) << testing::PrintToString(end);
  }
}

TEST_F(Password, IsNotEchoedWhenItIsTyped) {
  StartOptions options = FromStandardInput();
  options.standardError = StandardError::Terminal;
  ChildProcess program(options);
  program.WaitForError("^Password: $");
  program.Type(server.Password() + "\n");
  const ProcessResult result = program.Finish();
  EXPECT_TRUE(Succeeded(result));
  EXPECT_EQ((result.out + result.err).find(server.Password()), std::string::npos) << result.err;
}

TEST_F(Password, PromptInterruptedByCtrlCRestoresTheEchoOfTheTerminal) {
  StartOptions options = FromStandardInput();
  options.standardError = StandardError::Terminal;
  // Keeps a shell on the terminal, because the system resets a terminal when its last process ends.
  const std::vector<std::string> shell = {"/bin/sh", "-c", "trap : INT; \"$@\"; echo $?; stty -a", "sh"};
  options.command.insert(options.command.begin(), shell.begin(), shell.end());
  ChildProcess program(options);
  program.WaitForError("Password: $");
  program.Type("\x03");
  const ProcessResult result = program.Finish();
  EXPECT_TRUE(result.out.starts_with("130\n")) << result.out;
  EXPECT_NE(result.out.find(" echo "), std::string::npos) << result.out;
}

TEST_F(Password, PromptEndedByCtrlDIsNoEmptyPassword) {
  StartOptions options = FromStandardInput();
  options.standardError = StandardError::Terminal;
  ChildProcess program(options);
  program.WaitForError("Password: $");
  program.Type("\x04");
  const ProcessResult result = program.Finish();
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_NE(result.err.find("The password file \"-\" cannot be read."), std::string::npos) << result.err;
  EXPECT_FALSE(fs::exists(place.Path("program/ftplog.txt")));
}

TEST_F(Password, ThatIsEmptyOrWrongIsRefusedByTheServer) {
  StartOptions options = FromStandardInput();
  options.standardInput = "/dev/null";
  EXPECT_EQ(ChildProcess(options).Finish().err, kWrongLogin);
  for (const char* file : {"", "\n", "\r\n", "\nopen sesame\n", "open barley\n", "open sesame2"}) {
    const ProcessResult result = UploadWith(file);
    EXPECT_TRUE(EndedWith(1, result)) << testing::PrintToString(file);
    EXPECT_TRUE(result.err.ends_with(kWrongLogin)) << result.err;
  }
  EXPECT_FALSE(fs::exists(OnServer("web")));
}

TEST_F(Password, CannotContainAnFTPCommand) {
  for (const std::string_view file : {std::string_view("open\0sesame", 11), std::string_view("a\rDELE b", 8)}) {
    const ProcessResult result = UploadWith(file);
    EXPECT_TRUE(EndedWith(1, result)) << testing::PrintToString(file);
    EXPECT_TRUE(result.err.ends_with(kWrongLogin)) << result.err;
  }
}

TEST_F(Password, CannotBeReadFromAClosedStandardInput) {
  StartOptions options = FromStandardInput();
  options.closedStreams = {0};
  const ProcessResult result = ChildProcess(options).Finish();
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_EQ(result.err, "File Error: The password file \"-\" cannot be read.\n");
  EXPECT_FALSE(fs::exists(place.Path("program/ftplog.txt")));
}

TEST_F(Password, FileThatCannotBeReadIsAFailureBeforeAnyConnection) {
  place.Write("long", std::string(5000, 'x'));
  for (const char* file : {"missing", "site", "", "long", "/dev/zero"}) {
    const ProcessResult result = ChildProcess(UploadWithFile(file)).Finish();
    EXPECT_TRUE(EndedWith(1, result)) << file;
    EXPECT_EQ(result.err, "File Error: The password file \"" + std::string(file) + "\" cannot be read.\n");
    EXPECT_FALSE(fs::exists(place.Path("program/ftplog.txt"))) << file;
  }
}

TEST_F(Password, IsWrittenToNoFileAndNoOutput) {
  place.Project("a.gpj", {"a.jpg"});
  for (const std::string& password : {server.Password(), std::string("open barley")}) {
    place.Write("password", password);
    for (const ProcessResult& result : {Upload("web", {"--verbose"}), Publish("web/index.htm", {"--verbose"})}) {
      EXPECT_EQ((result.out + result.err).find(password), std::string::npos) << result.err;
      EXPECT_NE(Log().find("\r\n331 "), std::string::npos) << "the server asked for a password\n" << Log();
    }
    fs::remove(place.Path("password"));
    for (const auto& [name, bytes] : FilesBelow(place.Path())) {
      EXPECT_EQ(bytes.find(password), std::string::npos) << name;
    }
  }
}

}  // namespace
}  // namespace vantorium::batch
