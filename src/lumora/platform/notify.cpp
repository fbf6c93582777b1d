#include <lumora/platform/notify.h>

#include <cstdio>
#include <utility>

namespace lumora {
namespace {

NotifyHandler& Handler() {
  static NotifyHandler handler;
  return handler;
}

// Message texts may hold line breaks; the default keeps them on one stderr line.
void WriteToStderr(const std::string& text) {
  std::string line;
  line.reserve(text.size());
  for (char c : text) line += (c == '\n' || c == '\r') ? ' ' : c;
  std::fprintf(stderr, "lumora: %s\n", line.c_str());
}

}  // namespace

NotifyHandler SetNotifyHandler(NotifyHandler handler) {
  return std::exchange(Handler(), std::move(handler));
}

void Notify(const std::string& text) {
  if (Handler()) {
    Handler()(text);
  } else {
    WriteToStderr(text);
  }
}

}  // namespace lumora
