// The FTP client with real servers.
#include "env/RuntimeFailure.h"
#include "tests/fakes/FailureOf.h"
#include "tests/publish/FTPServerFixture.h"

namespace vantorium::publish {
namespace {

using fakes::FtpServerKind;
namespace fs = std::filesystem;

class FTPServers : public FTPServerFixture, public testing::WithParamInterface<FtpServerKind> {
 protected:
  FTPServers() : FTPServerFixture(GetParam()) {}
  void SetUp() override { LogIn(); }
};

TEST(FTPServersLogin, AWrongPasswordIsRefusedAndNotLogged) {
  const fakes::FtpServerProcess server(FtpServerKind::Proftpd);  // vsftpd accepts every password
  NetworkClient client;
  EXPECT_TRUE(client.ftp.FTPConnect("127.0.0.1", server.Port()));
  EXPECT_FALSE(client.ftp.FTPLogin(server.User(), "open barley"));
  EXPECT_NE(client.window.log.find("530"), std::string::npos) << client.window.log;
  EXPECT_EQ(client.window.log.find("barley"), std::string::npos) << client.window.log;
  EXPECT_TRUE(client.boxes.boxes.empty());
}

TEST_P(FTPServers, StoreFilesOfEverySizeByteByByte) {
  ExpectThatFilesOfEverySizeAreStored();
}

TEST_P(FTPServers, MakeChainsOfFoldersThatMayExist) {
  EXPECT_TRUE(client.ftp.FTPCreateDirectoryPath("my gallery/images/")) << client.window.log;
  EXPECT_TRUE(client.ftp.FTPCreateDirectoryPath("my gallery\\images")) << client.window.log;
  EXPECT_TRUE(fs::is_directory(server.Root() / "my gallery" / "images"));
  EXPECT_TRUE(Copy("1", "my gallery\\images\\a b.jpg"));
  EXPECT_EQ(Stored("my gallery/images/a b.jpg"), "1");
  EXPECT_TRUE(client.ftp.FTPChangeDirectory("my gallery"));
  EXPECT_TRUE(Copy("2", "c.jpg"));
  EXPECT_EQ(Stored("my gallery/c.jpg"), "2");
}

TEST_P(FTPServers, FailIfAFileIsInTheWayOfAFolder) {
  EXPECT_TRUE(Copy("1", "images"));
  EXPECT_FALSE(client.ftp.FTPCreateDirectoryPath("images/small"));
  EXPECT_EQ(Stored("images"), "1");
}

TEST_P(FTPServers, ReportWhichFilesExistAndTheirSizes) {
  EXPECT_FALSE(client.ftp.FTPFileExists("a.jpg"));
  EXPECT_TRUE(Copy(std::string(2047, 'x'), "a.jpg"));
  EXPECT_TRUE(client.ftp.FTPFileExists("a.jpg"));
  EXPECT_EQ(Stored("a.jpg").size(), 2047U) << "the query does not change the file";
  EXPECT_EQ(client.ftp.FTPGetFileSize("a.jpg"), "1KB");
  EXPECT_EQ(client.ftp.FTPGetFileSize("b.jpg"), "0KB");
  EXPECT_TRUE(client.ftp.FTPHasConfirmed());
  EXPECT_EQ(client.ftp.FTPStoredSize("a.jpg"), 2047U);
  EXPECT_EQ(client.ftp.FTPStoredSize("b.jpg"), std::nullopt);
  EXPECT_TRUE(client.ftp.FTPDeleteFile("a.jpg"));
  EXPECT_FALSE(client.ftp.FTPDeleteFile("a.jpg"));
  EXPECT_FALSE(Exists("a.jpg"));
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
  EXPECT_TRUE(Copy("1", "a.jpg")) << "the session continues";
}

TEST_P(FTPServers, CreateAnEmptyFileThatFailsByItsPercentage) {
  EXPECT_EQ(fakes::FailureOf([this] { std::ignore = Copy("", "empty.jpg"); }), env::FailureKind::DivisionByZero);
  client.ftp.Disconnect();
  LogIn();
  EXPECT_TRUE(Exists("empty.jpg"));
  EXPECT_TRUE(Copy("1", "a.jpg"));
}

TEST_P(FTPServers, KeepNothingOfAFileThatIsCancelled) {
  CancelALargeFile(client);
  EXPECT_TRUE(client.cancel.isRequested);
  EXPECT_TRUE(client.boxes.boxes.empty());
  EXPECT_FALSE(Exists("large")) << client.window.log;
}

TEST_P(FTPServers, KeepNothingOfACancelledFileEvenIfTheClientDoesNotWait) {
  NetworkClient hasty({std::chrono::seconds(20), std::chrono::milliseconds(1)});
  LogIn(hasty);
  CancelALargeFile(hasty);
  hasty.ftp.Disconnect();
  WaitUntilDeleted("large");
  EXPECT_FALSE(Exists("large")) << hasty.window.log;
}

TEST_P(FTPServers, NeverReceiveACommandFromAFileName) {
  EXPECT_TRUE(Copy("1", "keep.jpg"));
  EXPECT_FALSE(Copy("2", "a.jpg\r\nDELE keep.jpg"));
  EXPECT_EQ(Stored("keep.jpg"), "1");
}

INSTANTIATE_TEST_SUITE_P(On, FTPServers, kServerKinds, [](const auto& test) { return fakes::NameOf(test.param); });

}  // namespace
}  // namespace vantorium::publish
