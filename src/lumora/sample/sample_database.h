// The package database of an opened sample discipline: three packages whose resource rows name
// type-40 exercises and type-1005 elements the sample writes and a fourth of several exercise
// types in course 0 (sample_package.h), with titles in English, in the course language and in
// Russian (one title has an apostrophe).
#pragma once

#include <cstdint>
#include <string>

namespace lumora::sample {

// Writes `data_folder` + "Content.mdb" afresh through the library's database connection: the
// identifier table, then the three package tables and their rows. `language` is the course
// language; beyond scale 1 the review package also lists every resource of the units past the
// first. False with a one-line reason when a statement fails.
bool WriteSampleDatabase(const std::string& data_folder, uint8_t language, int scale,
                         std::string* error);

}  // namespace lumora::sample
