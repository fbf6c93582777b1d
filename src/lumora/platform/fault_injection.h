// A seam for tests that prove saves survive failures: every step that changes the disk (a
// file created, a write, a flush to disk, a close, a rename, a removal) passes through
// TakeStep first. Unarmed, a step costs one relaxed atomic add. Armed, the Nth step from
// arming either fails with a chosen error (a full disk, an I/O error) or is the moment the
// process dies: that step and every later one is dropped, as if nothing after it had reached
// the disk, so a test can reopen the tree and see what a crash there would have left.
//
// Outside tests, LUMORA_KILL_AT_STEP=N in the environment kills the process with SIGKILL at its
// Nth step, so that a whole command can be killed at a chosen point.
#pragma once

#include <cstdint>

namespace lumora::fault {

enum class Step { kCreate, kWrite, kSync, kClose, kRename, kRemove };

struct Plan {
  uint64_t at = 0;     // 1 is the first step after arming; 0 never triggers
  int error = 0;       // the errno the Nth step fails with
  bool crash = false;  // the Nth step and all later ones are dropped instead
};

void Arm(const Plan& plan);
void Disarm();
// Steps taken since the last Arm or Disarm; a dry run counts the steps of a save this way.
uint64_t StepsTaken();
// Whether an armed crash has happened.
bool Crashed();

// The errno this step must fail with, 0 to carry it out. After an armed crash every step
// answers EIO and must not touch the disk.
int TakeStep(Step step);
// Whether flushes are carried out (false while armed).
bool FlushesReachTheDisk();

}  // namespace lumora::fault
