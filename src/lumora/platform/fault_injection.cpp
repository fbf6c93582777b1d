#include <lumora/platform/fault_injection.h>

#include <signal.h>
#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <mutex>

namespace lumora::fault {
namespace {

struct State {
  std::mutex mutex;
  Plan plan;
  bool armed = false;
  bool crashed = false;
};

State& Shared() {
  static State state;
  return state;
}

std::atomic<uint64_t> steps{0};
std::atomic<bool> armed_any{false};

uint64_t KillStepFromEnvironment() {
  const char* text = std::getenv("LUMORA_KILL_AT_STEP");
  return text ? std::strtoull(text, nullptr, 10) : 0;
}

}  // namespace

void Arm(const Plan& plan) {
  State& state = Shared();
  std::lock_guard<std::mutex> lock(state.mutex);
  state.plan = plan;
  state.armed = true;
  state.crashed = false;
  steps = 0;
  armed_any = true;
}

void Disarm() {
  State& state = Shared();
  std::lock_guard<std::mutex> lock(state.mutex);
  state.armed = false;
  state.crashed = false;
  steps = 0;
  armed_any = false;
}

uint64_t StepsTaken() { return steps.load(); }

bool Crashed() {
  State& state = Shared();
  std::lock_guard<std::mutex> lock(state.mutex);
  return state.crashed;
}

bool FlushesReachTheDisk() { return !armed_any.load(std::memory_order_relaxed); }

int TakeStep(Step) {
  static const uint64_t kill_at = KillStepFromEnvironment();
  const uint64_t taken = ++steps;
  if (kill_at != 0 && taken == kill_at) ::raise(SIGKILL);
  if (!armed_any.load(std::memory_order_relaxed)) return 0;
  State& state = Shared();
  std::lock_guard<std::mutex> lock(state.mutex);
  if (!state.armed) return 0;
  if (state.crashed) return EIO;
  if (taken != state.plan.at) return 0;
  if (!state.plan.crash) return state.plan.error;
  state.crashed = true;
  return EIO;
}

}  // namespace lumora::fault
