// Conversion of a byte stream of any length between a Windows code page and UTF-8, one block at
// a time, so that memory stays bounded by the block size and zero bytes are data like any other.
//
// The code page's own mapping is the library's (see codepage.h). What cannot be converted is
// replaced and counted:
// - decoding: every byte or byte sequence the code page does not map becomes U+FFFD;
// - encoding: every ill-formed UTF-8 sequence, and every character the code page can neither
//   express nor give a best fit for, becomes "?".
// A character split between two blocks is converted whole; one left incomplete at the end of
// the stream is replaced like any other undecodable sequence.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace lumora {

class CodePageStream {
 public:
  enum class Direction { kDecode, kEncode };

  CodePageStream(uint32_t codePage, Direction direction);
  ~CodePageStream();
  CodePageStream(const CodePageStream&) = delete;
  CodePageStream& operator=(const CodePageStream&) = delete;

  // Converts the next block and appends the result to out; `last` ends the stream.
  void Convert(std::string_view block, bool last, std::string& out);
  // Replacements made so far.
  uint64_t substitutions() const;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace lumora
