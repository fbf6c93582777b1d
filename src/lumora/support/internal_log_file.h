// The file side of the internal log: the clock and default folder it uses, dated files with
// retries and a fallback folder, and the pruning of old files.
#pragma once

#include <lumora/support/internal_log.h>

#include <ctime>
#include <string>

namespace lumora {

std::time_t LogNow();
std::string DefaultLogFolder();

// Appends "seconds line" to the context's file of today, then prunes when the file is new.
// Nothing happens when the context keeps no files; a file that cannot be opened loses the line.
void WriteLogLine(const ThreadLogContext& context, const std::string& line);

// Notes in the current folder that one thread too many reported.
void WriteTooManyThreadsLine();

}  // namespace lumora
