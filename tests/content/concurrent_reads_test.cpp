// Readers on eight threads while another thread closes and opens the content root again: every
// answer is either the document read before the threads started or "not open", never a torn
// one, and ThreadSanitizer sees no race.
#include <lumora/content.h>

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include "fixtures/sample_suite.h"

namespace lumora::testing {
namespace {

class ConcurrentReads : public SampleContentSuite {};

struct Expected {
  uint32_t type;
  uint32_t id;
  Description resource;
};

TEST_F(ConcurrentReads, ReadsRunTogetherWhileOpensAndClosesWaitForThem) {
  Status status;
  std::shared_ptr<ContentRoot> current = ContentRoot::Open(root(), {}, &status);
  ASSERT_TRUE(current) << status.ToString();
  std::vector<Expected> expected;
  for (uint32_t type : {5u, 8u, 40u, 1003u}) {
    for (uint32_t id : current->ResourceIds(1, type)) {
      expected.push_back({type, id, current->Resource(1, type, id).document});
    }
  }
  ASSERT_FALSE(expected.empty());
  const Description word = current->GlossaryWord(1, 12).document;
  const Description found = current->FindWords(1, "cafe", true, false).document;
  const Description point = current->GrammarPoint(1, 3).document;

  std::mutex current_mutex;
  auto take = [&] {
    std::lock_guard guard(current_mutex);
    return current;
  };
  std::atomic<bool> stop = false;
  std::atomic<int> answered = 0;
  std::vector<std::thread> readers;
  for (int t = 0; t < 8; ++t) {
    readers.emplace_back([&, t] {
      for (size_t i = t; !stop; i = (i + 1) % expected.size()) {
        const std::shared_ptr<ContentRoot> content = take();
        if (!content) continue;
        const Answer answer = content->Resource(1, expected[i].type, expected[i].id);
        if (answer.ok()) {
          EXPECT_EQ(answer.document, expected[i].resource);
          ++answered;
        } else {
          EXPECT_EQ(answer.status.code, StatusCode::kNotFound);
        }
        const Answer lexicon = t % 3 == 0   ? content->GlossaryWord(1, 12)
                               : t % 3 == 1 ? content->FindWords(1, "cafe", true, false)
                                            : content->GrammarPoint(1, 3);
        if (lexicon.ok()) {
          EXPECT_EQ(lexicon.document, t % 3 == 0 ? word : t % 3 == 1 ? found : point);
        }
      }
    });
  }
  for (int round = 0; round < 20; ++round) {
    std::shared_ptr<ContentRoot> old = take();
    old->Close();
    std::shared_ptr<ContentRoot> reopened = ContentRoot::Open(root(), {}, &status);
    if (!reopened) {
      ADD_FAILURE() << status.ToString();
      break;
    }
    std::lock_guard guard(current_mutex);
    current = reopened;
  }
  // The readers go on with the last root until they have read enough to have overlapped.
  while (answered < 100 && take() && take()->open()) std::this_thread::yield();
  stop = true;
  for (std::thread& reader : readers) reader.join();
}

}  // namespace
}  // namespace lumora::testing
