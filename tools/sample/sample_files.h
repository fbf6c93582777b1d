// The sample's two ways of writing a file, each creating the missing folders first and
// answering a one-line reason on failure.
#pragma once

#include <string>

namespace lumora {
class Object;
}

namespace lumora::sample {

// Writes `bytes` as the whole file at `path`.
bool WriteBytesFile(const std::string& path, const std::string& bytes, std::string* error);

// Stores `object` in its archive form as the file at `path`.
bool StoreObjectFile(const std::string& path, Object& object, std::string* error);

}  // namespace lumora::sample
