// Every row operation of Convert and Scale: the AVX row (plain and streaming) and the AVX AC4
// row against their scalar twins, bit for bit, for every length up to 3 vectors + 3 and longer
// ones through the grouped loop, on misaligned rows that end exactly where the allocation ends.

#include <memory>

#include "core/float_to_int.h"
#include "data/convert_members.h"
#include "data/convert_rows.h"
#include "data/convert_testing.h"
#include "data/scale_rows.h"

namespace {

using namespace tpx::cvt;
using namespace cvttest;
using tpx::Isa;
using tpx::RoundKind;

// A row of exactly n samples (the allocation ends with it), `mis` samples into the allocation.
template <class T>
struct ExactRow {
  ExactRow(int n, int mis) : buf(new T[static_cast<std::size_t>(n + mis)]), p(buf.get() + mis) {}
  std::unique_ptr<T[]> buf;
  T* p;
};

template <class Op>
void Twin(const std::string& name, const Op& op, const Values<typename Op::Src>& values, Rng& rng) {
  using S = typename Op::Src;
  using D = typename Op::Dst;
  std::vector<int> lengths = {64, 97, 195, 260, 1001};  // groups of four blocks, blocks after one, long rows
  for (int n = 0; n <= 3 * 16 + 3; ++n) lengths.push_back(n);
  int k = 0;
  for (int n : lengths)
    for (int mis : {0, 1, 3}) {
      ExactRow<S> src(n, mis);
      for (int i = 0; i < n; ++i) src.p[i] = values(rng);
      const int dmis = (mis + k++) % 8;
      ExactRow<D> ref(n, 0), avx(n, dmis), stream(n, (dmis + 5) % 8);
      ConvertRow<Isa::kScalar>(src.p, ref.p, n, op);
      ConvertRow<Isa::kAvx>(src.p, avx.p, n, op);
      ConvertRow<Isa::kAvx, true>(src.p, stream.p, n, op);
      _mm_sfence();
      ASSERT_EQ(std::memcmp(ref.p, avx.p, sizeof(D) * n), 0) << name << " n=" << n << " mis=" << mis;
      ASSERT_EQ(std::memcmp(ref.p, stream.p, sizeof(D) * n), 0) << name << " stream n=" << n << " mis=" << mis;
      if (n % 4 != 0 || sizeof(D) > 4) continue;  // AC4 (up to 4-byte samples): the fourth sample kept
      ExactRow<D> a(n, dmis), b(n, 0);
      for (int i = 0; i < n; ++i) a.p[i] = b.p[i] = static_cast<D>(i % 97);
      ConvertRowAc4<Isa::kScalar>(src.p, b.p, n / 4, op);
      ConvertRowAc4<Isa::kAvx>(src.p, a.p, n / 4, op);
      for (int i = 0; i < n; ++i) {
        const D want = i % 4 == 3 ? static_cast<D>(i % 97) : ref.p[i];
        ASSERT_TRUE(Same(a.p[i], want) && Same(b.p[i], want)) << name << " AC4 n=" << n << " sample " << i;
      }
    }
}

// Every scaled op of S -> D: under each rounding kind the float multiplies or the rounding right
// shifts, then for integers the saturating left shifts and the sign op.
template <class S, class D>
void SfsTwins(const std::string& name, Rng& rng) {
  for (RoundKind kind : {RoundKind::kZero, RoundKind::kNearest, RoundKind::kHalfAway})
    tpx::WithRoundKind(kind, [&](auto k) {
      constexpr RoundKind kR = decltype(k)::value;
      const std::string at = name + " kind " + std::to_string(static_cast<int>(kR)) + " sf ";
      if constexpr (std::is_floating_point_v<S>) {
        const tpx::FloatToIntScope scope(kR);
        Twin(at + "0", FloatOp<S, D, kR, false>{}, ValuesFor<S, D>(), rng);
        for (int sf : {3, -5, 200, -2000})
          Twin(at + std::to_string(sf), FloatOp<S, D, kR, true>{Multiplier<S>(sf)}, ValuesFor<S, D>(sf), rng);
      } else {
        for (int sf : {1, 2, 5, 8, 15, kSfsZeroLimit<S> - 1})
          if (sf < kSfsZeroLimit<S>) Twin(at + std::to_string(sf), ShiftRightOp<S, D, kR>(sf), ValuesFor<S, D>(sf), rng);
      }
    });
  if constexpr (!std::is_floating_point_v<S>) {
    for (int k = 1, max = -kSfsNegLimit<D>; k <= max; k = k == max ? max + 1 : std::min(max, k + (k < 3 ? 1 : 4)))
      Twin(name + " shl " + std::to_string(k), ShiftLeftOp<S, D>{k}, ValuesFor<S, D>(-k), rng);
    Twin(name + " sign", SignOp<S, D>{}, ValuesFor<S, D>(), rng);
  }
}

TEST(ConvertRows, EveryOpMatchesItsScalarTwin) {
  Rng rng(11);
#define TPX_T_CAST(S, D) Twin(#S #D, CastOp<Tpx##S, Tpx##D>{}, ValuesFor<Tpx##S, Tpx##D>(), rng);
  TPX_CONVERT_PLAIN_4L(TPX_T_CAST)
  TPX_CONVERT_PLAIN_C1(TPX_T_CAST)
  TPX_CONVERT_RS(TPX_T_CAST)
  TPX_CONVERT_INT_SFS(TPX_T_CAST)
#define TPX_T_SFS(S, D) SfsTwins<Tpx##S, Tpx##D>(#S #D, rng);
  TPX_CONVERT_FLOAT_SFS(TPX_T_SFS)
  TPX_CONVERT_INT_SFS(TPX_T_SFS)
}

TEST(ConvertRows, ScaleTwins) {
  Rng rng(14);
  const tpx::FloatToIntScope scope(RoundKind::kNearest);
  Twin("8u32f", ScaleToFloatOp{-3.25f, 1.7f}, ValuesFor<Tpx8u, Tpx8u>(), rng);
  Twin("32f8u", ScaleFromFloatOp<Tpx32f>{0.37f, 11.5f}, ValuesFor<Tpx32f, Tpx8u>(), rng);
  Twin("16u8u fast", ScaleFromFloatOp<Tpx16u>{255.0f / 65535.0f, -0.0f}, ValuesFor<Tpx16u, Tpx16u>(), rng);
  Twin("16s8u fast", ScaleFromFloatOp<Tpx16s>{255.0f / 65535.0f, 127.5f}, ValuesFor<Tpx16s, Tpx16s>(), rng);
  Twin("32s8u fast", ScaleFromFloatOp<Tpx32s>{255.0f / 4294967296.0f, 127.5f}, ValuesFor<Tpx32s, Tpx32s>(), rng);
  Twin("16u8u exact", ScaleExactOp<Tpx16u>{0.0, 255.0 / 65535.0}, ValuesFor<Tpx16u, Tpx16u>(), rng);
  Twin("16s8u exact", ScaleExactOp<Tpx16s>{-32768.0, 255.0 / 65535.0}, ValuesFor<Tpx16s, Tpx16s>(), rng);
  Twin("32s8u exact", ScaleExactOp<Tpx32s>{-2147483648.0, 255.0 / 4294967295.0}, ValuesFor<Tpx32s, Tpx32s>(), rng);
  Twin("8u16u", ScaleWidenOp<Tpx16u>{}, ValuesFor<Tpx8u, Tpx8u>(), rng);
  Twin("8u16s", ScaleWidenOp<Tpx16s>{}, ValuesFor<Tpx8u, Tpx8u>(), rng);
  Twin("8u32s", ScaleWidenOp<Tpx32s>{}, ValuesFor<Tpx8u, Tpx8u>(), rng);
}

}  // namespace
