// The row loop of the pointwise arithmetic: d[i] = Op(x[i], y[i]) where y is a second row or a
// per-channel constant repeated along the row. One loop serves every operation, sample type and
// layout of the family; an operation supplies a scalar Apply (the rule as written) and a vector
// Apply on one register, and the loop runs the scalar one alone for Isa::kScalar.
#pragma once
#include <immintrin.h>

#include <cstddef>

#include "core/isa.h"
#include "core/layout.h"
#include "core/rows.h"
#include "tpxip/types.h"

namespace tpx::arith {

// ---- Vector register of a sample type ------------------------------------------------------
// Integer samples use 128-bit lanes (AVX has no wider integer operations); floats 256-bit.
template <class T>
struct Reg {
  using V = __m128i;
  static constexpr int kBytes = 16;
  static V Load(const T* p) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p)); }
  static void Store(T* p, V v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v); }
  // Keeps the fourth sample of every pixel of `old` (AC4): a pixel is 4 samples, so a register
  // holds whole pixels and the mask does not depend on the position in the row.
  static V KeepAlpha(V old, V r) {
    alignas(16) static constexpr unsigned char kMask[16] = {
#define TPX_ALPHA_BYTE(i) static_cast<unsigned char>((i / sizeof(T)) % 4 == 3 ? 0 : 0xFF)
        TPX_ALPHA_BYTE(0), TPX_ALPHA_BYTE(1), TPX_ALPHA_BYTE(2), TPX_ALPHA_BYTE(3),
        TPX_ALPHA_BYTE(4), TPX_ALPHA_BYTE(5), TPX_ALPHA_BYTE(6), TPX_ALPHA_BYTE(7),
        TPX_ALPHA_BYTE(8), TPX_ALPHA_BYTE(9), TPX_ALPHA_BYTE(10), TPX_ALPHA_BYTE(11),
        TPX_ALPHA_BYTE(12), TPX_ALPHA_BYTE(13), TPX_ALPHA_BYTE(14), TPX_ALPHA_BYTE(15)};
#undef TPX_ALPHA_BYTE
    return _mm_blendv_epi8(old, r, _mm_load_si128(reinterpret_cast<const __m128i*>(kMask)));
  }
};
template <>
struct Reg<float> {
  using V = __m256;
  static constexpr int kBytes = 32;
  static V Load(const float* p) { return _mm256_loadu_ps(p); }
  static void Store(float* p, V v) { _mm256_storeu_ps(p, v); }
  static V KeepAlpha(V old, V r) { return _mm256_blend_ps(r, old, 0x88); }
};

// ---- Second operand ------------------------------------------------------------------------
// A second row.
template <class T>
struct RowOperand {
  const T* p;
  T At(std::ptrdiff_t i, int /*phase*/) const { return p[i]; }
  typename Reg<T>::V Vec(std::ptrdiff_t i, int /*j*/) const { return Reg<T>::Load(p + i); }
};

// A constant of kPeriod samples (1 for C1, 3 for C3, 4 for C4 and AC4) repeated along the row.
// Three registers hold the pattern from sample 0 on; since 3 registers are a whole number of
// periods for every period and sample size used here, register j of any 3-register block is
// k[j]. For AC4 the fourth sample is 0 and its result is discarded.
template <class T, int kPeriod>
struct ConstOperand {
  T v[4] = {};
  typename Reg<T>::V k[3];
  // pixel: the constant of one pixel, 4 samples (unused ones 0).
  explicit ConstOperand(const T (&pixel)[4]) {
    for (int c = 0; c < 4; ++c) v[c] = pixel[c];
    constexpr int kLanes = Reg<T>::kBytes / static_cast<int>(sizeof(T));
    alignas(32) T buf[3 * kLanes];
    for (int i = 0; i < 3 * kLanes; ++i) buf[i] = v[i % kPeriod];
    for (int j = 0; j < 3; ++j) k[j] = Reg<T>::Load(buf + j * kLanes);
  }
  T At(std::ptrdiff_t /*i*/, int phase) const { return v[phase]; }
  typename Reg<T>::V Vec(std::ptrdiff_t /*i*/, int j) const { return k[j]; }
};

template <class Y>
struct OperandPeriod {
  static constexpr int kValue = 1;
};
template <class T, int P>
struct OperandPeriod<ConstOperand<T, P>> {
  static constexpr int kValue = P;
};

// ---- The loop ------------------------------------------------------------------------------
// d[i] = Op::Apply(x[i], y[i], prm) for i < n; with kAlpha every fourth sample (i % 4 == 3) of d
// is left as it was. n >= 0, a multiple of 4 with kAlpha. d may equal x or the row of y (in
// place); other overlaps are not allowed. V = one register; 3 registers a step, then single
// registers. Tail: scalar, same Op.
template <class Op, Isa kI, bool kAlpha, class T, class Y>
inline void PointRow(const T* x, const Y& y, T* d, std::ptrdiff_t n, const typename Op::Params& prm) {
  using R = Reg<T>;
  constexpr std::ptrdiff_t kV = R::kBytes / static_cast<std::ptrdiff_t>(sizeof(T));
  std::ptrdiff_t i = 0;
  if constexpr (kI == Isa::kAvx) {
    const typename Op::VParams vp(prm);
    auto one = [&](std::ptrdiff_t at, int j) {
      typename R::V r = Op::Apply(R::Load(x + at), y.Vec(at, j), vp);
      if constexpr (kAlpha) r = R::KeepAlpha(R::Load(d + at), r);
      R::Store(d + at, r);
    };
    for (; i + 3 * kV <= n; i += 3 * kV) {
      one(i, 0);
      one(i + kV, 1);
      one(i + 2 * kV, 2);
    }
    for (int j = 0; i + kV <= n; i += kV, ++j) one(i, j);
  }
  constexpr int kP = OperandPeriod<Y>::kValue;
  int phase = static_cast<int>(i % kP);
  for (; i < n; ++i) {
    if (!kAlpha || (i & 3) != 3) d[i] = Op::Apply(x[i], y.At(i, phase), prm);
    if (++phase == kP) phase = 0;
  }
}

// ---- Region walks ----------------------------------------------------------------------------
// Each row is its own kernel call over width * Stride(kL) samples (C3 and C4 rows are flat C1
// rows; AC4 rows keep every fourth sample). Steps are bytes, any value.
template <class Op, Layout kL, class T>
inline void BinaryRows(const T* x, std::ptrdiff_t xStep, const T* y, std::ptrdiff_t yStep, T* d,
                       std::ptrdiff_t dStep, TpxSize roi, const typename Op::Params& prm) {
  const std::ptrdiff_t n = static_cast<std::ptrdiff_t>(roi.width) * Stride(kL);
  ForEachRow(roi.height, [&](const T* a, const T* b, T* c) {
    PointRow<Op, kIsa, KeepsAlpha(kL)>(a, RowOperand<T>{b}, c, n, prm);
  }, MakePlane(x, xStep), MakePlane(y, yStep), MakePlane(d, dStep));
}

// The constant of one pixel: Processed(kL) samples from `value`, the rest 0.
template <class T, Layout kL>
struct PixelConst {
  T v[4] = {};
  explicit PixelConst(const T* value) {
    for (int c = 0; c < Processed(kL); ++c) v[c] = value[c];
  }
  bool All(T want) const {
    for (int c = 0; c < Processed(kL); ++c)
      if (!(v[c] == want)) return false;
    return true;
  }
};

template <class Op, Layout kL, class T>
inline void ConstRows(const T* x, std::ptrdiff_t xStep, const PixelConst<T, kL>& k, T* d,
                      std::ptrdiff_t dStep, TpxSize roi, const typename Op::Params& prm) {
  const std::ptrdiff_t n = static_cast<std::ptrdiff_t>(roi.width) * Stride(kL);
  const ConstOperand<T, kL == Layout::C1 ? 1 : kL == Layout::C3 ? 3 : 4> y(k.v);
  ForEachRow(roi.height, [&](const T* a, T* c) {
    PointRow<Op, kIsa, KeepsAlpha(kL)>(a, y, c, n, prm);
  }, MakePlane(x, xStep), MakePlane(d, dStep));
}

}  // namespace tpx::arith
