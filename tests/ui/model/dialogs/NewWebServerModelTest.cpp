#include "ui/model/dialogs/NewWebServerModel.h"

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

TEST(NewWebServerModel, TheInitialNameCanBeConfirmed) {
  const NewWebServerModel model;
  EXPECT_EQ(model.Text(), "Server");
  EXPECT_TRUE(model.CanAccept());
  EXPECT_FALSE(model.IsCancelled());
  EXPECT_EQ(model.GetServerName(), "");
}

TEST(NewWebServerModel, AnEmptyNameCannotBeConfirmed) {
  NewWebServerModel model;
  model.SetText("");
  EXPECT_FALSE(model.CanAccept());
  model.SetText(" ");
  EXPECT_TRUE(model.CanAccept());
}

TEST(NewWebServerModel, OnlyAConfirmedNameIsUsed) {
  NewWebServerModel model;
  model.SetText("Mine");
  EXPECT_EQ(model.GetServerName(), "");
  model.Accept();
  EXPECT_EQ(model.GetServerName(), "Mine");
  EXPECT_FALSE(model.IsCancelled());
}

TEST(NewWebServerModel, CancelIsReported) {
  NewWebServerModel model;
  model.Cancel();
  EXPECT_TRUE(model.IsCancelled());
}

}  // namespace
}  // namespace vantorium::ui
