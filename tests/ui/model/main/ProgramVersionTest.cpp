#include "ui/model/main/ProgramVersion.h"

namespace vantorium::ui {
namespace {

TEST(ProgramVersion, IsReportedWithItsBuild) {
  EXPECT_EQ((ProgramVersion{3, 0, 0}).Text(), "Version 3.0 (Build 0)");
  EXPECT_EQ((ProgramVersion{3, 12, 2048}).Text(), "Version 3.12 (Build 2048)");
}

}  // namespace
}  // namespace vantorium::ui
