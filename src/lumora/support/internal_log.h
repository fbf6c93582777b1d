// The per-thread diagnostic log. Every thread that reports gets a context of numbered text
// slots, and every report becomes one line in a dated file ("~YYMMDD.log") of the log folder,
// where only the newest files are kept. Reports are numeric codes (541 for an unreadable
// configuration file, the database error numbers, ...) with their texts in the slots.
//
// The log is off until a host installs it: the library itself never calls InstallLog, so in
// the library alone every report returns at once and nothing is written.
#pragma once

#include <lumora/platform/archive.h>
#include <lumora/platform/keyed_table.h>

#include <chrono>
#include <cstdint>
#include <ctime>
#include <exception>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

namespace lumora {

struct LogSlot {
  uint32_t key = 0;
  std::string text;
};

// What one thread writes with. Contexts are only ever touched by their own thread.
class ThreadLogContext : public Object {
 public:
  const char* ClassName() const override { return "ThreadLogContext"; }

  std::string folder;                // with its separator; the default folder until installed
  std::string prefix = "~";          // start of every file name
  uint8_t keepCount = 0;             // dated files kept by the pruning; 0 writes nothing
  uint16_t origin = 0;               // first number of every line
  uint32_t sequence = 0;             // written into slot 1 of every line
  std::vector<LogSlot> eventSlots;   // filled for one report, emptied after it
  std::vector<LogSlot> stickySlots;  // kept until removed
};

class ThreadLogRegistry {
 public:
  KeyedTable<ThreadLogContext> contexts;  // keyed by the thread identifier
  uint32_t maxThreads = 10;
  std::mutex lock;  // guards the table: contexts are added while other threads search it
};

// Creates the registry unless there is one, with the calling thread's context, creates
// `folder` with its parents, and gives that context `folder` and `keepCount`.
ThreadLogRegistry* InstallLog(const std::string& folder, uint8_t keepCount);
// Makes `registry` current and gives the calling thread's context the folder, prefix,
// keepCount, origin and sequence of the registry's first context.
void AttachThread(ThreadLogRegistry* registry);
// Destroys the registry and every context; reports do nothing afterwards.
void RemoveLog();
ThreadLogRegistry* InstalledLog();

// These act on the calling thread's context, which is made on first use.
void SetSlot(uint32_t slot, const std::string& text);
void SetStickySlot(uint32_t slot, const std::string& text);
void RemoveStickySlot(uint32_t slot);
void SetOrigin(uint16_t origin);
void SetSequence(uint32_t sequence);

inline constexpr uint32_t kCodeEvent = 200004;

// Slot 2 := code (slot 3 := text, or the exception's message cut to 255 characters), then
// ReportEvent(kCodeEvent).
void ReportCode(int32_t code);
void ReportCodeText(int32_t code, const std::string& text);
void ReportException(int32_t code, const std::exception& error);
// Writes "origin event slots" with slot 1 set to the sequence, then empties the event slots.
void ReportEvent(uint32_t event);

// What the log takes from its surroundings, replaceable so that tests need neither a real
// date, nor real waits, nor a process exit. Empty members mean the defaults.
struct InternalLogSettings {
  std::function<std::time_t()> clock;  // default: the system clock; dates are local
  std::chrono::milliseconds retryDelay{200};
  std::string defaultFolder;  // default: the folder of the library's own module
  // Runs once the too-many-threads line is written; default: exit the process with code 0.
  std::function<void()> tooManyThreads;
};
InternalLogSettings& LogSettings();

}  // namespace lumora
