// Row work of the extreme families: the lane layout of Min/Max/MinMax over a whole image, the
// extreme of one row for MinIndx/MaxIndx, and the search of the winning row.
#pragma once
#include <type_traits>

#include "core/isa.h"
#include "stats/lanes.h"

namespace tpx::stats {

// Vectors a block holds: whole periods of a pixel (three vectors for three samples a pixel),
// and enough independent chains to hide the latency of min and max.
constexpr int ExtremeVecs(int kS) { return kS == 3 ? 6 : 4; }

// The one or two lane policies of a call: P1 is the minimum where one is asked for.
template <class T, bool kMin, bool kMax>
struct ExtremePolicies {
  static_assert(kMin || kMax, "at least one extreme");
  using P1 = std::conditional_t<kMin, MinLanes<T>, MaxLanes<T>>;
  using P2 = std::conditional_t<kMin && kMax, MaxLanes<T>, NoLanes>;
  static constexpr bool kTwo = kMin && kMax;
};

// Lanes of a whole-image extreme: the first row starts them, every row sweeps into them, one
// fold at the end. kS samples a pixel; results per lane class.
template <Isa kI, class T, int kS, bool kMin, bool kMax>
struct ImageExtremes {
  using Pol = ExtremePolicies<T, kMin, kMax>;
  static constexpr int kVecs = ExtremeVecs(kS);
  static constexpr int kBlock = kVecs * VecOf<T>::kN;

  alignas(32) T l1[kBlock];
  alignas(32) T l2[kBlock];
  bool started = false;

  void Row(const T* row, long long n) {
    if (!started) {
      const long long m = StartLanes<kI, kVecs, kS, typename Pol::P1>(row, n, l1);
      if constexpr (Pol::kTwo)
        for (int i = 0; i < kBlock; ++i) l2[i] = l1[i];
      started = true;
      row += m;
      n -= m;
    }
    ForEachPiece(row, n, [&](const T* p, int k) {
      SweepLanes<kI, kVecs, typename Pol::P1, typename Pol::P2>(p, k, l1, l2);
    });
  }
  // first[c], second[c] for c < kS: the extremes of P1 and P2 (the minimum first for MinMax).
  void Fold(T* first, T* second) {
    FoldLanes<kI, kVecs, kS, typename Pol::P1>(l1, first);
    if constexpr (Pol::kTwo) FoldLanes<kI, kVecs, kS, typename Pol::P2>(l2, second);
  }
};

// Extreme of each lane class of one row of n samples (kS samples a pixel): out[c], c < kS.
template <Isa kI, int kS, class P>
inline void RowExtreme(const typename P::Sample* row, long long n, typename P::Acc* out) {
  constexpr int kVecs = ExtremeVecs(kS), kBlock = kVecs * P::kN;
  alignas(32) typename P::Acc lanes[kBlock];
  const long long m = StartLanes<kI, kVecs, kS, P>(row, n, lanes);
  ForEachPiece(row + m, n - m, [&](const typename P::Sample* p, int k) { SweepLanes<kI, kVecs, P>(p, k, lanes); });
  FoldLanes<kI, kVecs, kS, P>(lanes, out);
}

// First pixel x < width whose sample of channel c equals v, or width where none does (a NaN
// extreme equals nothing).
template <class T>
inline int FirstEqual(const T* row, int width, int stride, int c, T v) {
  int x = 0;
  while (x < width && !(row[static_cast<long long>(x) * stride + c] == v)) ++x;
  return x;
}

}  // namespace tpx::stats
