// The folders and files of a content folder that the diagnosis data is made of.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace diagnosis {

bool IsFolder(const std::string& path);

// n of every course folder "Cnnnn" below `folder` with 1 <= n <= 0xFFF, ascending.
std::vector<uint32_t> LessonNumbers(const std::string& folder);

// (n << 20) | N of every exercise file "Cnnnn/rTTTTTTT/rNNNNNNN.ars" of those lessons with
// N <= 0xFFFFF, ascending and without repeats.
std::vector<uint32_t> ExerciseIdentifiers(const std::string& folder);

}  // namespace diagnosis
