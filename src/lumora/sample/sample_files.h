// The sample's two ways of writing a file, each creating the missing folders first and
// answering a one-line reason on failure.
#pragma once

#include <string>

#include <cstdint>

namespace lumora {
class Object;
class ExerciseResource;
}  // namespace lumora

namespace lumora::sample {

// Writes `bytes` as the whole file at `path`.
bool WriteBytesFile(const std::string& path, const std::string& bytes, std::string* error);

// Stores `object` in its archive form as the file at `path`.
bool StoreObjectFile(const std::string& path, Object& object, std::string* error);

// Gives `resource` the id `id` and stores it as its ".ars" file below the Local root `root`.
bool StoreResourceFile(const std::string& root, uint32_t id, ExerciseResource& resource,
                       std::string* error);

}  // namespace lumora::sample
