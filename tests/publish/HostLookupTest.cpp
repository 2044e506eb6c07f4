#include "publish/HostLookup.h"

#include <gtest/gtest.h>

namespace vantorium::publish {
namespace {

TEST(HostLookup, FindsOnlyIPv4AddressesByDefault) {
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

TEST(HostLookup, AnUnusedResultDoesNotDisturbTheNextLookup) {
  { const auto unused = LookUpHost("127.0.0.1"); }
  EXPECT_EQ(LookUpHost("127.0.0.1").get(), std::vector<std::string>{"127.0.0.1"});
}

TEST(HostLookup, IPv6AddressesAreFoundOnRequestOnly) {
  EXPECT_EQ(LookUpHost("::1", HostFamily::Any).get(), std::vector<std::string>{"::1"});
  EXPECT_TRUE(LookUpHost("::1", HostFamily::IPv4).get().empty());
  EXPECT_TRUE(LookUpHost("::g", HostFamily::Any).get().empty());
}

TEST(HostLookup, IPv4AddressesComeFirst) {
  const auto addresses = LookUpHost("localhost", HostFamily::Any).get();
  ASSERT_FALSE(addresses.empty());
  EXPECT_EQ(addresses.front(), "127.0.0.1");
}

}  // namespace
}  // namespace vantorium::publish
