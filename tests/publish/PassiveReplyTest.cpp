#include "publish/PassiveReply.h"

#include <gtest/gtest.h>

namespace vantorium::publish {
namespace {

using Cases = std::vector<std::pair<std::string_view, std::optional<std::uint16_t>>>;

TEST(PassiveReply, ThePortOfEpsvFollowsThreeEqualDelimiters) {
  const Cases cases = {{"Entering Extended Passive Mode (|||6446|)", 6446},
                       {"(|||1|)", 1},
                       {"(|||65535|) and more", 65535},
                       {"(!!!80!)", 80},
                       {"(|||00080|)", 80},
                       {"", std::nullopt},
                       {"(", std::nullopt},
                       {"(|||", std::nullopt},
                       {"(||||)", std::nullopt},
                       {"(|||0|)", std::nullopt},
                       {"(|||65536|)", std::nullopt},
                       {"(|||4294967297|)", std::nullopt},
                       {"(|||-1|)", std::nullopt},
                       {"(||| 80|)", std::nullopt},
                       {"(|||80)", std::nullopt},
                       {"(|||80|", std::nullopt},
                       {"(|||80!)", std::nullopt},
                       {"(||!80|)", std::nullopt},
                       {"(|1|127.0.0.1|80|)", std::nullopt},
                       {"(11180 1)", std::nullopt},
                       {"(   80 )", std::nullopt},
                       {"|||80|", std::nullopt}};
  for (const auto& [text, port] : cases) EXPECT_EQ(PortOfEpsvReply(text), port) << text;
}

TEST(PassiveReply, ThePortOfPasvIsInTheLastTwoOfSixNumbers) {
  const Cases cases = {{"Entering Passive Mode (127,0,0,1,1,2).", 258},
                       {"127,0,0,1,1,2", 258},
                       {"=127,0,0,1,255,255", 65535},
                       {"Mode 2 (10,0,0,1,0,21)", 21},
                       {"", std::nullopt},
                       {"Entering Passive Mode", std::nullopt},
                       {"(127,0,0,1,0,0)", std::nullopt},
                       {"(127,0,0,1,1)", std::nullopt},
                       {"(127,0,0,1,1,)", std::nullopt},
                       {"(127,0,0,1,1,256)", std::nullopt},
                       {"(256,0,0,1,1,1)", std::nullopt},
                       {"(127.0.0.1.1.2)", std::nullopt},
                       {"(127, 0, 0, 1, 1, 2)", std::nullopt},
                       {"(127,0,0,1,-1,2)", std::nullopt},
                       {"(127,0,0,1,99999999999,2)", std::nullopt}};
  for (const auto& [text, port] : cases) EXPECT_EQ(PortOfPasvReply(text), port) << text;
}

}  // namespace
}  // namespace vantorium::publish
