// The FTP client with real servers.
#include "env/RuntimeFailure.h"
#include "tests/fakes/FailureOf.h"
#include "tests/fakes/FtpServerProcess.h"
#include "tests/publish/NetworkClient.h"

#include <thread>

#include <gtest/gtest.h>

namespace vantorium::publish {
namespace {

using fakes::FtpServerKind;
namespace fs = std::filesystem;

class FTPServers : public testing::TestWithParam<FtpServerKind> {
 protected:
  void SetUp() override {
    ASSERT_TRUE(client.ftp.FTPConnect("127.0.0.1", server.Port())) << client.window.log;
    ASSERT_TRUE(client.ftp.FTPLogin(server.User(), server.Password())) << client.window.log;
  }
  [[nodiscard]] bool Copy(const std::string& bytes, const std::string& target, bool overwrite = true) {
    client.folder.Write("source", bytes);
    return client.ftp.FTPCopyFile("C:\\source", target, overwrite);
  }
  [[nodiscard]] std::string Stored(const std::string& name) const {
    return fakes::TemporaryFolder::ReadFile(server.Root() / name);
  }

  fakes::FtpServerProcess server{GetParam()};
  NetworkClient client;
};

TEST(FTPServersLogin, AWrongPasswordIsRefusedAndSeenNowhere) {
  const fakes::FtpServerProcess server(FtpServerKind::Proftpd);  // vsftpd accepts every password
  NetworkClient client;
  EXPECT_TRUE(client.ftp.FTPConnect("127.0.0.1", server.Port()));
  EXPECT_FALSE(client.ftp.FTPLogin(server.User(), "open barley"));
  EXPECT_NE(client.window.log.find("530"), std::string::npos) << client.window.log;
  EXPECT_EQ(client.window.log.find("barley"), std::string::npos) << client.window.log;
  EXPECT_TRUE(client.boxes.boxes.empty());
}

TEST_P(FTPServers, StoreFilesOfEverySizeByteByByte) {
  for (const std::size_t size : {1U, 4095U, 4096U, 4097U, 100000U, 3000000U}) {
    std::string bytes(size, '\0');
    for (std::size_t at = 0; at < size; ++at) bytes[at] = static_cast<char>(at * 31 % 251);
    EXPECT_TRUE(Copy(bytes, "file")) << client.window.log;
    EXPECT_TRUE(Stored("file") == bytes) << size;
  }
  EXPECT_TRUE(client.boxes.boxes.empty());
}

TEST_P(FTPServers, MakeChainsOfFoldersOnceAndTwice) {
  EXPECT_TRUE(client.ftp.FTPCreateDirectoryPath("my gallery/images/")) << client.window.log;
  EXPECT_TRUE(client.ftp.FTPCreateDirectoryPath("my gallery\\images")) << client.window.log;
  EXPECT_TRUE(fs::is_directory(server.Root() / "my gallery" / "images"));
  EXPECT_TRUE(Copy("1", "my gallery\\images\\a b.jpg"));
  EXPECT_EQ(Stored("my gallery/images/a b.jpg"), "1");
  EXPECT_TRUE(client.ftp.FTPChangeDirectory("my gallery"));
  EXPECT_TRUE(Copy("2", "c.jpg"));
  EXPECT_EQ(Stored("my gallery/c.jpg"), "2");
}

TEST_P(FTPServers, FailWhereAFileIsInTheWayOfAFolder) {
  EXPECT_TRUE(Copy("1", "images"));
  EXPECT_FALSE(client.ftp.FTPCreateDirectoryPath("images/small"));
  EXPECT_EQ(Stored("images"), "1");
}

TEST_P(FTPServers, TellWhichFilesAreThereAndHowLargeTheyAre) {
  EXPECT_FALSE(client.ftp.FTPFileExists("a.jpg"));
  EXPECT_TRUE(Copy(std::string(2047, 'x'), "a.jpg"));
  EXPECT_TRUE(client.ftp.FTPFileExists("a.jpg"));
  EXPECT_EQ(Stored("a.jpg").size(), 2047U) << "the question leaves the file alone";
  EXPECT_EQ(client.ftp.FTPGetFileSize("a.jpg"), "1KB");
  EXPECT_EQ(client.ftp.FTPGetFileSize("b.jpg"), "0KB");
  EXPECT_TRUE(client.ftp.FTPHasConfirmed());
  EXPECT_EQ(client.ftp.FTPStoredSize("a.jpg"), 2047U);
  EXPECT_EQ(client.ftp.FTPStoredSize("b.jpg"), std::nullopt);
  EXPECT_TRUE(client.ftp.FTPDeleteFile("a.jpg"));
  EXPECT_FALSE(client.ftp.FTPDeleteFile("a.jpg"));
  EXPECT_FALSE(fs::exists(server.Root() / "a.jpg"));
}

TEST_P(FTPServers, ReplaceAFileOnlyWhenTold) {
  EXPECT_TRUE(Copy("old", "a.jpg"));
  EXPECT_TRUE(Copy("new one", "a.jpg", false));
  EXPECT_EQ(Stored("a.jpg"), "old");
  EXPECT_TRUE(Copy("new one", "a.jpg", true));
  EXPECT_EQ(Stored("a.jpg"), "new one");
}

TEST_P(FTPServers, KeepNothingOfAFileThatCannotBeStored) {
  EXPECT_FALSE(Copy("1", "no/such/folder/a.jpg"));
  EXPECT_TRUE(client.boxes.boxes.empty());
  EXPECT_TRUE(Copy("1", "a.jpg")) << "the session goes on";
}

TEST_P(FTPServers, MakeAnEmptyFileOfOneThatFailsByItsPercentage) {
  EXPECT_EQ(fakes::FailureOf([this] { std::ignore = Copy("", "empty.jpg"); }), env::FailureKind::DivisionByZero);
  client.ftp.Disconnect();
  ASSERT_TRUE(client.ftp.FTPConnect("127.0.0.1", server.Port()));
  ASSERT_TRUE(client.ftp.FTPLogin(server.User(), server.Password()));
  EXPECT_TRUE(fs::exists(server.Root() / "empty.jpg"));
  EXPECT_TRUE(Copy("1", "a.jpg"));
}

TEST_P(FTPServers, KeepNothingOfAFileThatIsCancelled) {
  fs::resize_file(client.folder.Write("large", ""), std::uintmax_t{1} << 30U);
  client.CancelWhen([this] { return client.IsInsideAWrite(); });
  EXPECT_FALSE(client.ftp.FTPCopyFile("C:\\large", "large", true));
  EXPECT_TRUE(client.cancel.isRequested);
  EXPECT_TRUE(client.boxes.boxes.empty());
  EXPECT_FALSE(fs::exists(server.Root() / "large")) << client.window.log;
}

TEST_P(FTPServers, KeepNothingOfAFileWhoseCancellingUserDoesNotWaitForThem) {
  NetworkClient hasty({std::chrono::seconds(20), std::chrono::milliseconds(1)});
  ASSERT_TRUE(hasty.ftp.FTPConnect("127.0.0.1", server.Port()));
  ASSERT_TRUE(hasty.ftp.FTPLogin(server.User(), server.Password()));
  fs::resize_file(hasty.folder.Write("large", ""), std::uintmax_t{1} << 30U);
  hasty.CancelWhen([&] { return hasty.IsInsideAWrite(); });
  EXPECT_FALSE(hasty.ftp.FTPCopyFile("C:\\large", "large", true));
  hasty.ftp.Disconnect();
  for (int look = 0; look < 1000 && fs::exists(server.Root() / "large"); ++look) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  EXPECT_FALSE(fs::exists(server.Root() / "large")) << hasty.window.log;
}

TEST_P(FTPServers, NeverSeeACommandInsideAFileName) {
  EXPECT_TRUE(Copy("1", "keep.jpg"));
  EXPECT_FALSE(Copy("2", "a.jpg\r\nDELE keep.jpg"));
  EXPECT_EQ(Stored("keep.jpg"), "1");
}

INSTANTIATE_TEST_SUITE_P(On, FTPServers,
                         testing::Values(FtpServerKind::Vsftpd, FtpServerKind::Proftpd, FtpServerKind::Pureftpd),
                         [](const auto& test) { return fakes::NameOf(test.param); });

}  // namespace
}  // namespace vantorium::publish
