// Feeds arbitrary bytes to the loaders of the container and string stored forms.
#include <lumora/platform/archive.h>
#include <lumora/platform/keyed_table.h>
#include <lumora/platform/stream.h>
#include <lumora/platform/typed_array.h>
#include <lumora/support/wide_text.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace {

struct Entry : lumora::Object {
  lumora::ByteArray bytes;
  std::string note;
  void Serialize(lumora::Archive& ar) override {
    bytes.Serialize(ar);
    lumora::IoArchiveString(ar, note);
  }
};

template <typename T>
void Load(const uint8_t* data, size_t size) {
  lumora::MemoryStream stream(std::vector<uint8_t>(data, data + size));
  lumora::Archive ar(stream, lumora::Archive::Mode::kLoad);
  T object;
  try {
    object.Serialize(ar);
  } catch (const lumora::ArchiveError&) {
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  const uint8_t selector = data[0] % 6;
  ++data;
  --size;
  switch (selector) {
    case 0:
      Load<lumora::DWordArray>(data, size);
      break;
    case 1:
      Load<lumora::RecordArray16>(data, size);
      break;
    case 2:
      Load<lumora::StringArray>(data, size);
      break;
    case 3:
      Load<lumora::KeyedTable<Entry>>(data, size);
      break;
    case 4:
      Load<lumora::CodePageText>(data, size);
      break;
    default: {
      lumora::KeyedTable<Entry> table;
      Load<lumora::KeyedTable<Entry>>(data, size);
      for (uint32_t key = 0; key < 8; ++key) table.Find(key);
    }
  }
  return 0;
}
