# Writes OUTPUT, a C++ source that holds every file below FOLDER as bytes, so that the program
# serves them without reading anything at run time. Run as `cmake -DFOLDER=... -DOUTPUT=... -P`.
# The source defines lumora::cli::PageFiles() (tools/lumora/page_files.h): each file's path
# below FOLDER ("/" separated) and its bytes, in path order.
file(GLOB_RECURSE files RELATIVE ${FOLDER} ${FOLDER}/*)
list(SORT files)
set(arrays "")
set(entries "")
set(index 0)
foreach(name IN LISTS files)
  file(READ ${FOLDER}/${name} hex HEX)
  string(LENGTH "${hex}" digits)
  math(EXPR size "${digits} / 2")
  string(REGEX REPLACE "([0-9a-f][0-9a-f])" "'\\\\x\\1'," bytes "${hex}")
  # One line per 32 bytes keeps the source readable for a compiler's error messages.
  string(REGEX REPLACE "(('[^']*',){32})" "\\1\n" bytes "${bytes}")
  string(APPEND arrays "const char kFile${index}[] = {\n${bytes}0};\n")
  string(APPEND entries "    {\"${name}\", {kFile${index}, ${size}}},\n")
  math(EXPR index "${index} + 1")
endforeach()
file(WRITE ${OUTPUT}.tmp "// Written by cmake/EmbedFiles.cmake from ${FOLDER}; do not edit.
#include \"lumora/page_files.h\"

namespace lumora::cli {
namespace {
${arrays}
const PageFile kFiles[] = {
${entries}};
}  // namespace

std::span<const PageFile> PageFiles() { return kFiles; }

}  // namespace lumora::cli
")
# Left untouched when nothing changed, so that the tool is not relinked for nothing.
file(COPY_FILE ${OUTPUT}.tmp ${OUTPUT} ONLY_IF_DIFFERENT)
file(REMOVE ${OUTPUT}.tmp)
