// The library's only way to tell a person something (file locked, file corrupted, malformed
// headword). A host installs its own handler; without one, each message is one line on stderr.
#pragma once

#include <functional>
#include <string>

namespace lumora {

using NotifyHandler = std::function<void(const std::string& text)>;

// Installs `handler` (an empty one restores the default) and returns the previous handler.
NotifyHandler SetNotifyHandler(NotifyHandler handler);

void Notify(const std::string& text);

}  // namespace lumora
