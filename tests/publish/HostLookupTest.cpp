#include "publish/HostLookup.h"

#include <gtest/gtest.h>

namespace vantorium::publish {
namespace {

TEST(HostLookup, FindsAddressesOfIPv4Only) {
  EXPECT_EQ(LookUpHost("127.0.0.1").get(), std::vector<std::string>{"127.0.0.1"});
  EXPECT_EQ(LookUpHost("localhost").get().at(0), "127.0.0.1");
  EXPECT_TRUE(LookUpHost("::1").get().empty());
}

TEST(HostLookup, AnInvalidHostNameHasNoAddress) {
  for (const std::string host : {"300.1.1.1", "a b", "ftp://localhost", ""}) {
    EXPECT_TRUE(host.empty() || LookUpHost(host).get().empty()) << host;
  }
  EXPECT_TRUE(LookUpHost(std::string("localhost\0x", 11)).get().empty());
}

TEST(HostLookup, NobodyHasToWait) {
  { const auto unused = LookUpHost("127.0.0.1"); }
  SUCCEED();
}

}  // namespace
}  // namespace vantorium::publish
