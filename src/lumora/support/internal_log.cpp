#include <lumora/support/internal_log.h>

#include <lumora/support/internal_log_file.h>
#include <lumora/support/paths.h>

#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace lumora {
namespace {

// The registry InstallLog made, and the one reports go to (the same unless a thread attached
// to a registry of someone else's).
std::unique_ptr<ThreadLogRegistry>& OwnedRegistry() {
  static std::unique_ptr<ThreadLogRegistry> registry;
  return registry;
}
std::atomic<ThreadLogRegistry*> current_registry{nullptr};

uint32_t ThreadId() { return static_cast<uint32_t>(::gettid()); }

// Looks the thread up and adds its context when it has none. The thread one beyond the limit
// gets no context: the overflow is written down and the process ends (null when the exit
// step has been replaced).
ThreadLogContext* ContextIn(ThreadLogRegistry& registry) {
  const uint32_t id = ThreadId();
  {
    std::lock_guard<std::mutex> guard(registry.lock);
    if (ThreadLogContext* context = registry.contexts.Find(id)) return context;
    if (registry.contexts.size() < registry.maxThreads) {
      auto context = std::make_unique<ThreadLogContext>();
      context->folder = DefaultLogFolder();
      ThreadLogContext* added = context.get();
      registry.contexts.Add(id, std::move(context));
      return added;
    }
  }
  WriteTooManyThreadsLine();
  if (LogSettings().tooManyThreads) {
    LogSettings().tooManyThreads();
  } else {
    std::exit(0);
  }
  return nullptr;
}

ThreadLogContext* CurrentContext() {
  ThreadLogRegistry* registry = current_registry.load();
  return registry ? ContextIn(*registry) : nullptr;
}

// A key already present keeps its place and takes the new text.
void PutSlot(std::vector<LogSlot>& slots, uint32_t key, const std::string& text) {
  for (LogSlot& slot : slots) {
    if (slot.key == key) {
      slot.text = text;
      return;
    }
  }
  slots.push_back({key, text});
}

// Keys and numbers are printed as the 32-bit signed values the line format has always used.
std::string Decimal(uint32_t value) { return std::to_string(static_cast<int32_t>(value)); }

// A line holds no line breaks, and a text with a blank is quoted so that the "key=text" pairs
// can still be told apart.
void AppendSlots(const std::vector<LogSlot>& slots, std::string& line) {
  for (size_t i = 0; i < slots.size(); ++i) {
    std::string text;
    for (char c : slots[i].text) {
      if (c != '\r' && c != '\n') text += c;
    }
    if (text.find(' ') != std::string::npos) text = '"' + text + '"';
    if (i > 0) line += ' ';
    line += Decimal(slots[i].key) + '=' + text;
  }
}

constexpr size_t kExceptionTextChars = 255;

}  // namespace

ThreadLogRegistry* InstallLog(const std::string& folder, uint8_t keepCount) {
  if (!current_registry.load()) {
    OwnedRegistry() = std::make_unique<ThreadLogRegistry>();
    current_registry = OwnedRegistry().get();
  }
  ThreadLogRegistry* registry = current_registry.load();
  ThreadLogContext* context = ContextIn(*registry);
  CreateFolderPath(folder);
  if (context) {
    context->folder = WithBackslash(folder);
    context->keepCount = keepCount;
  }
  return registry;
}

void AttachThread(ThreadLogRegistry* registry) {
  current_registry = registry;
  if (!registry) return;
  ThreadLogContext* context = ContextIn(*registry);
  if (!context) return;
  std::lock_guard<std::mutex> guard(registry->lock);
  const ThreadLogContext* first = registry->contexts.ObjectAt(0);
  if (first == context) return;
  context->folder = first->folder;
  context->prefix = first->prefix;
  context->keepCount = first->keepCount;
  context->origin = first->origin;
  context->sequence = first->sequence;
}

void RemoveLog() {
  current_registry = nullptr;
  OwnedRegistry().reset();
}

ThreadLogRegistry* InstalledLog() { return current_registry.load(); }

void SetSlot(uint32_t slot, const std::string& text) {
  if (ThreadLogContext* context = CurrentContext()) PutSlot(context->eventSlots, slot, text);
}

void SetStickySlot(uint32_t slot, const std::string& text) {
  if (ThreadLogContext* context = CurrentContext()) PutSlot(context->stickySlots, slot, text);
}

void RemoveStickySlot(uint32_t slot) {
  ThreadLogContext* context = CurrentContext();
  if (!context) return;
  std::erase_if(context->stickySlots, [slot](const LogSlot& s) { return s.key == slot; });
}

void SetOrigin(uint16_t origin) {
  if (ThreadLogContext* context = CurrentContext()) context->origin = origin;
}

void SetSequence(uint32_t sequence) {
  if (ThreadLogContext* context = CurrentContext()) context->sequence = sequence;
}

void ReportCode(int32_t code) {
  SetSlot(2, std::to_string(code));
  ReportEvent(kCodeEvent);
}

void ReportCodeText(int32_t code, const std::string& text) {
  SetSlot(2, std::to_string(code));
  SetSlot(3, text);
  ReportEvent(kCodeEvent);
}

void ReportException(int32_t code, const std::exception& error) {
  ReportCodeText(code, std::string(std::string_view(error.what()).substr(0, kExceptionTextChars)));
}

// The event slots come first, then one blank, then the sticky slots; slot 1 is set last, so
// it follows the slots the report itself filled.
void ReportEvent(uint32_t event) {
  ThreadLogContext* context = CurrentContext();
  if (!context) return;
  PutSlot(context->eventSlots, 1, Decimal(context->sequence));
  std::string line = std::to_string(context->origin) + ' ' + Decimal(event) + ' ';
  AppendSlots(context->eventSlots, line);
  line += ' ';
  AppendSlots(context->stickySlots, line);
  WriteLogLine(*context, line);
  context->eventSlots.clear();
}

}  // namespace lumora
