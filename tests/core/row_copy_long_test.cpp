// The row copy on long rows, where plain copies take the string move: the same bytes as the
// scalar twin and the streaming form, and nothing written around the row.
#include <gtest/gtest.h>

#include <vector>

#include "core/stream.h"
#include "support/random.h"

namespace {

using namespace tpx;

TEST(RowCopyLong, StringMoveEqualsScalarAroundItsThreshold) {
  tpxtest::Rng rng(17);
  const int n0 = static_cast<int>(kCopyStringMinBytes);
  for (int n : {n0 - 33, n0 - 1, n0, n0 + 1, n0 + 31, 2 * n0 + 77, 7681})
    for (int misS : {0, 3, 32})
      for (int misD : {0, 1, 29, 64}) {
        std::vector<unsigned char> src(n + 128), ref(n + 192, 0xA5), plain(n + 192, 0xA5), stream(n + 192, 0xA5);
        for (auto& b : src) b = static_cast<unsigned char>(rng.Bits());
        CopyBytes<Isa::kScalar>(src.data() + misS, ref.data() + 64 + misD, n);
        CopyBytes<Isa::kAvx>(src.data() + misS, plain.data() + 64 + misD, n);
        CopyBytes<Isa::kAvx, true>(src.data() + misS, stream.data() + 64 + misD, n);
        StreamFence();
        ASSERT_EQ(ref, plain) << "n=" << n << " misS=" << misS << " misD=" << misD;
        ASSERT_EQ(ref, stream) << "n=" << n << " misS=" << misS << " misD=" << misD;
      }
}

}  // namespace
