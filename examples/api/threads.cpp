// Reads on several threads at once through one ContentRoot: each thread describes every
// resource of type 5 that the index lists while the others do the same, and gets the answers
// one thread alone gets.
//
//   threads ROOT
#include <lumora/content.h>

#include <atomic>
#include <cstdio>
#include <thread>
#include <vector>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  lumora::Status status;
  auto root = lumora::ContentRoot::Open(argv[1], {}, &status);
  if (!root) return 1;
  const std::vector<uint32_t> ids = root->ResourceIds(1, 5);
  int alone = 0;
  for (uint32_t id : ids) alone += root->Resource(1, 5, id).ok() ? 1 : 0;
  std::atomic<int> described{0};
  std::vector<std::thread> readers;
  for (int t = 0; t < 4; ++t) {
    readers.emplace_back([&] {
      for (uint32_t id : ids) {
        if (root->Resource(1, 5, id).ok()) ++described;
      }
    });
  }
  for (std::thread& reader : readers) reader.join();
  std::printf("%d descriptions on 4 threads, %d on one\n", described.load(), alone);
  return alone > 0 && described == 4 * alone ? 0 : 1;
}
