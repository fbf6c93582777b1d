// The seed corpora of the fuzz targets, each written from a sample content tree (`sample`) into
// a folder named after its target below `out`.
#pragma once

#include <filesystem>

namespace seeds {

void WriteResourceSeeds(const std::filesystem::path& sample, const std::filesystem::path& out);
void WriteIndexSeeds(const std::filesystem::path& sample, const std::filesystem::path& out);
void WriteArchiveFormSeeds(const std::filesystem::path& sample, const std::filesystem::path& out);
void WriteProfileSeeds(const std::filesystem::path& sample, const std::filesystem::path& out);
void WriteDatabaseTextSeeds(const std::filesystem::path& sample, const std::filesystem::path& out);
void WriteTextContextSeeds(const std::filesystem::path& out);
// The set-file, glossary index and glossary folder targets; `scratch` takes the cut-down
// glossaries their seeds are made of.
void WriteLexiconSeeds(const std::filesystem::path& sample, const std::filesystem::path& out,
                       const std::filesystem::path& scratch);

}  // namespace seeds
