// Comparison relations, operands and the one row kernel that writes a 0/255 mask a pixel.
#pragma once
#include <cmath>
#include <cstdint>

#include "arith/compare_vec.h"
#include "core/isa.h"
#include "core/layout.h"

namespace tpx {

// ---- Relations ------------------------------------------------------------------------------
// Holds(a, b) is the rule; Mask(a, b) gives it per lane, or its negation where kInverted (the
// cheaper form for that sample type). NaN makes every relation false.
template <class T>
struct RelLess {
  using W = dvec::Vec<T>;
  static constexpr bool kInverted = W::kLessInverted;
  bool Holds(T a, T b) const { return a < b; }
  typename W::V Mask(typename W::V a, typename W::V b) const { return W::LessMask(a, b); }
};

template <class T>
struct RelLessEq {
  using W = dvec::Vec<T>;
  static constexpr bool kInverted = W::kLessEqInverted;
  bool Holds(T a, T b) const { return a <= b; }
  typename W::V Mask(typename W::V a, typename W::V b) const { return W::LessEqMask(a, b); }
};

template <class T>
struct RelEq {
  using W = dvec::Vec<T>;
  static constexpr bool kInverted = false;
  bool Holds(T a, T b) const { return a == b; }
  typename W::V Mask(typename W::V a, typename W::V b) const {
    if constexpr (std::is_same_v<T, Tpx32f>)
      return W::EqMask(a, b);
    else
      return W::Eq(a, b);
  }
};

// |a - b| <= eps, the difference in single precision with its sign bit cleared. A NaN
// difference or a NaN eps fails.
struct RelEqualEps {
  using W = dvec::Vec<Tpx32f>;
  static constexpr bool kInverted = false;
  explicit RelEqualEps(Tpx32f e) : eps(e), epsV(_mm256_set1_ps(e)) {}
  bool Holds(Tpx32f a, Tpx32f b) const { return std::fabs(a - b) <= eps; }
  __m256 Mask(__m256 a, __m256 b) const {
    const __m256 diff = _mm256_andnot_ps(_mm256_set1_ps(-0.0f), _mm256_sub_ps(a, b));
    return _mm256_cmp_ps(diff, epsV, _CMP_LE_OQ);
  }
  Tpx32f eps;
  __m256 epsV;
};

// ---- Operands -------------------------------------------------------------------------------
// An operand gives sample c of pixel x, and vector k of the 16-pixel group that starts at
// pixel x. A row of an image:
template <class T, Layout kL>
struct RowOperand {
  const T* p;
  T At(int x, int c) const { return p[x * Stride(kL) + c]; }
  typename dvec::Vec<T>::V Load(int x, int k) const {
    return dvec::Vec<T>::Load(p + x * Stride(kL) + k * dvec::Vec<T>::kLanes);
  }
  RowOperand Vectors() const { return *this; }
  // Prefetch hints for the lines of the group at pixel x (rows are walked forward).
  void Prefetch(int x) const {
    constexpr int kGroupBytes = 16 * Stride(kL) * static_cast<int>(sizeof(T));
    const T* g = p + x * Stride(kL);
    if constexpr (kGroupBytes < 64) {
      if ((x * Stride(kL) * static_cast<int>(sizeof(T))) % 64 == 0) dvec::PrefetchAhead(g);
    } else {
      for (int b = 0; b < kGroupBytes; b += 64) dvec::PrefetchAhead(reinterpret_cast<const char*>(g) + b);
    }
  }
};

// The sample vectors of a 16-pixel group, held in registers by the vector loop.
template <class T, Layout kL>
struct VectorGroup {
  static constexpr int kVecs = 16 * Stride(kL) / dvec::Vec<T>::kLanes;
  typename dvec::Vec<T>::V v[kVecs];
  typename dvec::Vec<T>::V Load(int, int k) const { return v[k]; }
  void Prefetch(int) const {}
};

// A constant pixel (one entry a channel), laid out once for a whole group of 16 pixels.
template <class T, Layout kL>
struct ConstOperand {
  explicit ConstOperand(const T* value) {
    for (int c = 0; c < 4; ++c) v[c] = value[c < Processed(kL) ? c : 0];
    for (int i = 0; i < 16 * Stride(kL); ++i) tile[i] = v[i % Stride(kL)];
  }
  T At(int, int c) const { return v[c]; }
  VectorGroup<T, kL> Vectors() const {
    VectorGroup<T, kL> g;
    for (int k = 0; k < VectorGroup<T, kL>::kVecs; ++k) g.v[k] = dvec::Vec<T>::Load(tile + k * dvec::Vec<T>::kLanes);
    return g;
  }
  T v[4];
  alignas(32) T tile[16 * 4];
};

// ---- Channel reduction ----------------------------------------------------------------------
// From the byte masks of the 16 * C samples of 16 pixels (b[j] holds samples 16j .. 16j+15),
// 0xFF for each pixel whose considered channels all hold. kInverted: the masks are negated, so
// a pixel holds where none of its channels is set.
template <Layout kL, bool kInverted>
inline __m128i PixelsHold(const __m128i* b) {
  using I = dvec::Int128;
  if constexpr (kL == Layout::C1) {
    return kInverted ? I::Not(b[0]) : b[0];
  } else if constexpr (kL == Layout::C3) {
    // x[3p] = b[3p] op b[3p+1] op b[3p+2] (op: and, or where inverted), then gather every
    // third byte of the 48.
    auto op = [](__m128i u, __m128i v) { return kInverted ? I::Or(u, v) : I::And(u, v); };
    const __m128i x0 = op(op(b[0], _mm_alignr_epi8(b[1], b[0], 1)), _mm_alignr_epi8(b[1], b[0], 2));
    const __m128i x1 = op(op(b[1], _mm_alignr_epi8(b[2], b[1], 1)), _mm_alignr_epi8(b[2], b[1], 2));
    const __m128i x2 = op(op(b[2], _mm_srli_si128(b[2], 1)), _mm_srli_si128(b[2], 2));
    const __m128i g0 = _mm_setr_epi8(0, 3, 6, 9, 12, 15, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1);
    const __m128i g1 = _mm_setr_epi8(-1, -1, -1, -1, -1, -1, 2, 5, 8, 11, 14, -1, -1, -1, -1, -1);
    const __m128i g2 = _mm_setr_epi8(-1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, 1, 4, 7, 10, 13);
    const __m128i r = I::Or(I::Or(_mm_shuffle_epi8(x0, g0), _mm_shuffle_epi8(x1, g1)),
                            _mm_shuffle_epi8(x2, g2));
    return kInverted ? I::Not(r) : r;
  } else {
    // Four bytes a pixel: one 32-bit compare tests them at once. AC4 forces the alpha byte to
    // the neutral value first.
    const __m128i alpha = _mm_set1_epi32(static_cast<int>(0xFF000000u));
    __m128i p[4];
    for (int j = 0; j < 4; ++j) {
      __m128i v = b[j];
      if constexpr (kL == Layout::AC4) v = kInverted ? I::AndNot(alpha, v) : I::Or(v, alpha);
      p[j] = _mm_cmpeq_epi32(v, kInverted ? I::Zero() : I::Ones());
    }
    return _mm_packs_epi16(_mm_packs_epi32(p[0], p[1]), _mm_packs_epi32(p[2], p[3]));
  }
}

// ---- Row kernel -----------------------------------------------------------------------------
// Pixels [from, to), one at a time.
template <Layout kL, class Rel, class A, class B>
inline void ComparePixels(const A& a, const B& b, Tpx8u* d, int from, int to, const Rel& rel) {
  for (int x = from; x < to; ++x) {
    bool all = true;
    for (int c = 0; c < Processed(kL); ++c) all = all && rel.Holds(a.At(x, c), b.At(x, c));
    d[x] = all ? 255 : 0;
  }
}

// Groups of 16 pixels from pixel x on (d + x aligned to 16); returns the first pixel left.
// kNT: non-temporal stores; the caller fences.
template <class T, Layout kL, bool kNT, class Rel, class A, class B>
inline int CompareVectors(const A& a, const B& b, Tpx8u* d, int x, int pixels, const Rel& rel) {
  using W = dvec::Vec<T>;
  constexpr int kVecs = VectorGroup<T, kL>::kVecs;  // sample vectors of 16 pixels
  constexpr int kPerByteVec = 16 / W::kLanes;      // sample vectors a byte vector takes
  const auto av = a.Vectors();
  const auto bv = b.Vectors();
  const Rel r = rel;
  for (; x + 16 <= pixels; x += 16) {
    av.Prefetch(x);
    bv.Prefetch(x);
    typename W::V m[kVecs];
    dvec::Unroll<kVecs>([&](auto k) __attribute__((always_inline)) { m[k] = r.Mask(av.Load(x, k), bv.Load(x, k)); });
    __m128i bytes[Stride(kL)];
    dvec::Unroll<Stride(kL)>([&](auto j) __attribute__((always_inline)) { bytes[j] = W::ToBytes(m + j * kPerByteVec); });
    const __m128i out = PixelsHold<kL, Rel::kInverted>(bytes);
    if constexpr (kNT)
      _mm_stream_si128(reinterpret_cast<__m128i*>(d + x), out);
    else
      _mm_store_si128(reinterpret_cast<__m128i*>(d + x), out);
  }
  return x;
}

// d[x] = 255 where rel holds on every considered channel of pixel x (C3, AC4: three; C4: four),
// else 0, for x < pixels. V = 16 pixels a step. Head: pixels up to a 16-byte boundary of d;
// tail: scalar, same rule. kStream: the vector body stores with non-temporal stores (the
// caller fences).
template <class T, Layout kL, Isa kI, bool kStream = false, class Rel, class A, class B>
inline void CompareRow(const A& a, const B& b, Tpx8u* d, int pixels, const Rel& rel) {
  int x = 0;
  if constexpr (kI == Isa::kAvx) {
    int head = static_cast<int>((0u - reinterpret_cast<std::uintptr_t>(d)) & 15u);
    if (head > pixels) head = pixels;
    ComparePixels<kL>(a, b, d, 0, head, rel);
    x = CompareVectors<T, kL, kStream>(a, b, d, head, pixels, rel);
  }
  ComparePixels<kL>(a, b, d, x, pixels, rel);
}

}  // namespace tpx
