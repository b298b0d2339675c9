#include "shell/startup/entry_routine.hpp"

#include <gtest/gtest.h>

#include "shell/startup/class_main.hpp"
#include "tests/fakes/ports.hpp"

namespace kestri {
namespace {

class RecordedEffects : public UiEffects {
 public:
  void SetAnimation(std::int16_t value, std::int32_t which) override { set.emplace_back(value, which); }
  std::vector<std::pair<int, int>> set;
};

class EntryRoutine : public testing::Test {
 protected:
  fakes::FakeEnvironment environment;
  RecordedEffects effects;
};

TEST_F(EntryRoutine, ARefusalEndsTheProcessAndTouchesNothing) {
  EXPECT_EQ(ActOnResult(ClassMain::kEnd, environment, effects), ProcessFate::Ends);
  EXPECT_TRUE(effects.set.empty());
}

TEST_F(EntryRoutine, AnOpenWindowKeepsTheProcessAlive) {
  EXPECT_EQ(ActOnResult(ClassMain::kLive, environment, effects), ProcessFate::LivesOn);
  EXPECT_TRUE(effects.set.empty());
}

TEST_F(EntryRoutine, TheLastProcessThatEndsInGoodOrderBringsTheAnimationsBack) {
  EXPECT_EQ(ActOnResult(ClassMain::kDone, environment, effects), ProcessFate::Ends);
  EXPECT_EQ(effects.set, (std::vector<std::pair<int, int>>{{-1, 0}, {-1, 2}}));
}

TEST_F(EntryRoutine, ASiblingThatRunsKeepsItsAnimationsAsTheyAre) {
  environment.processes.push_back(environment.executable);
  EXPECT_EQ(ActOnResult(ClassMain::kDone, environment, effects), ProcessFate::Ends);
  EXPECT_TRUE(effects.set.empty());
}

}  // namespace
}  // namespace kestri
