// Row routines of the general filter. A routine gets the source pixel under the first
// destination pixel (it reads `reach` around it), the destination, and a region of w x h
// pixels; the border engine calls it once per strip and once for the centre.
//
// Three families of rows:
//  * integer kinds (16-bit kernel with a divisor, 8u and 16s data): exact 32-bit sums
//    (wrapping), then one of four finalisers chosen by route: plain, accurate, the C4 near
//    route, or the scalar route's own table. The rounding control is set for each row.
//  * float kinds (float kernel over 8u, 16u, 16s data): float sums, rounded by the table of
//    the type; rows under 8 samples take the narrow form with its own summation order.
//  * 32f and 64f: the sum in the sample's width, stored as it is.
// Every vector routine has a scalar twin (Isa::kScalar) that computes the same numbers.
#pragma once
#include <immintrin.h>

#include <algorithm>
#include <cstdlib>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <type_traits>

#include "core/fpround.h"
#include "core/isa.h"
#include "core/rows.h"
#include "tpxip/types.h"

namespace tpx::filter {

#define TPX_FILTER_INLINE inline __attribute__((always_inline))

// ---- Conversions with the processor's own semantics -------------------------------------------
// Out-of-range values give 0x80000000, as the vector conversions do.
inline int CvtRound(float x) { return _mm_cvtss_si32(_mm_set_ss(x)); }        // by MXCSR
inline int CvtTrunc(float x) { return _mm_cvttss_si32(_mm_set_ss(x)); }
inline int CvtTruncD(double x) { return _mm_cvttsd_si32(_mm_set_sd(x)); }
inline std::int32_t WrapAdd(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}
inline std::int32_t WrapMul(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) * static_cast<std::uint32_t>(b));
}

template <class T>
struct IntRange;
template <> struct IntRange<Tpx8u> { static constexpr int kLo = 0, kHi = 255; };
template <> struct IntRange<Tpx16u> { static constexpr int kLo = 0, kHi = 65535; };
template <> struct IntRange<Tpx16s> { static constexpr int kLo = -32768, kHi = 32767; };

inline int Clamp(int v, int lo, int hi) { return v < lo ? lo : v > hi ? hi : v; }

// ---- Stores of 32-bit results with saturation ---------------------------------------------------
// Integer kinds saturate to 16-bit signed first and then to the image range (a no-op for 16s).
template <class T>
inline T SatStore(int v) {
  if constexpr (std::is_same_v<T, Tpx16u>) return static_cast<T>(Clamp(v, 0, 65535));
  else return static_cast<T>(Clamp(Clamp(v, -32768, 32767), IntRange<T>::kLo, IntRange<T>::kHi));
}
// Eight results from two vectors of four.
template <class T>
inline void SatStore8(T* d, __m128i lo, __m128i hi) {
  if constexpr (std::is_same_v<T, Tpx8u>) {
    const __m128i w = _mm_packs_epi32(lo, hi);
    _mm_storel_epi64(reinterpret_cast<__m128i*>(d), _mm_packus_epi16(w, w));
  } else if constexpr (std::is_same_v<T, Tpx16s>) {
    _mm_storeu_si128(reinterpret_cast<__m128i*>(d), _mm_packs_epi32(lo, hi));
  } else {
    _mm_storeu_si128(reinterpret_cast<__m128i*>(d), _mm_packus_epi32(lo, hi));
  }
}

// Walks a row of n >= kV samples: blocks of kBig vectors of kV samples, then single vectors,
// then one overlapping last vector (rows are out of place, so recomputed samples are equal).
template <int kBig, int kV, class Block>
TPX_FILTER_INLINE void ForEachVectorBlock(int n, int o, Block&& block) {
  for (; o + kBig * kV <= n; o += kBig * kV) block(std::integral_constant<int, kBig>{}, o);
  for (; o + kV <= n; o += kV) block(std::integral_constant<int, 1>{}, o);
  if (o < n) block(std::integral_constant<int, 1>{}, n - kV);
}

// ---- Kernel access -----------------------------------------------------------------------------
// The spec keeps the kernel reversed; a view reads it in the caller's order.
template <class K>
struct KernelView {
  const K* base;
  std::ptrdiff_t stride;  // -1 over the reversed copy, +1 over a forward one
  K At(int idx) const { return base[idx * stride]; }
};
template <class K>
inline KernelView<K> ReversedView(const K* rev, int n) { return {rev + (n - 1), -1}; }

struct Window {
  int kw, kh, ax, ay;
};

template <class T>
inline __m256 LoadF8(const T* p) {
  if constexpr (std::is_same_v<T, float>) {
    return _mm256_loadu_ps(p);
  } else {
    __m128i lo, hi;
    if constexpr (std::is_same_v<T, Tpx8u>) {
      const __m128i b = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p));
      lo = _mm_cvtepu8_epi32(b);
      hi = _mm_cvtepu8_epi32(_mm_srli_si128(b, 4));
    } else {
      const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
      if constexpr (std::is_same_v<T, Tpx16u>) {
        lo = _mm_cvtepu16_epi32(v);
        hi = _mm_cvtepu16_epi32(_mm_srli_si128(v, 8));
      } else {
        lo = _mm_cvtepi16_epi32(v);
        hi = _mm_cvtepi16_epi32(_mm_srli_si128(v, 8));
      }
    }
    return _mm256_cvtepi32_ps(_mm256_insertf128_si256(_mm256_castsi128_si256(lo), hi, 1));
  }
}

// ---- Two destination rows per pass ----------------------------------------------------------
// Float sums of kV vectors (8 samples each) of one or two destination rows: the sum of the
// first row reads source rows row(0) .. row(kh - 1), that of the second row(1) .. row(kh);
// row(i) points at the sample under the first tap of the block's first sample minus `off`.
// Taps go in the caller's order (kernel rows, then columns), the first product starting each
// sum: the order of FloatBlockSums and FloatSum. Each loaded vector serves both rows.
// kKw is the kernel width when known at compile time, else 0.
template <int kCh, int kV, bool kTwo, int kKw = 0, class Row>
TPX_FILTER_INLINE void RowPairSums(Row&& row, int off, const Window& win, const KernelView<float>& k,
                                   __m256 (&a0)[kV], __m256 (&a1)[kV]) {
  const int kw = kKw ? kKw : win.kw, kh = win.kh;
  const float* const kb = k.base;
  const std::ptrdiff_t ks = k.stride;
  auto coef = [&](int i, int j) { return _mm256_broadcast_ss(kb + static_cast<std::ptrdiff_t>(i * kw + j) * ks); };
  auto taps = [&](int r, auto first, auto second) {
    const float* f = row(r) + off;
    #pragma GCC unroll 8
    for (int j = 0; j < kw; ++j) {
      __m256 x[kV];
      #pragma GCC unroll 8
      for (int v = 0; v < kV; ++v) x[v] = _mm256_loadu_ps(f + j * kCh + 8 * v);
      if constexpr (decltype(first)::value) {
        const __m256 c = coef(r, j);
        if (r == 0 && j == 0) {
          #pragma GCC unroll 8
          for (int v = 0; v < kV; ++v) a0[v] = _mm256_mul_ps(c, x[v]);
        } else {
          #pragma GCC unroll 8
          for (int v = 0; v < kV; ++v) a0[v] = _mm256_add_ps(a0[v], _mm256_mul_ps(c, x[v]));
        }
      }
      if constexpr (decltype(second)::value) {
        const __m256 c = coef(r - 1, j);
        if (r == 1 && j == 0) {
          #pragma GCC unroll 8
          for (int v = 0; v < kV; ++v) a1[v] = _mm256_mul_ps(c, x[v]);
        } else {
          #pragma GCC unroll 8
          for (int v = 0; v < kV; ++v) a1[v] = _mm256_add_ps(a1[v], _mm256_mul_ps(c, x[v]));
        }
      }
    }
  };
  using Yes = std::true_type;
  using No = std::false_type;
  taps(0, Yes{}, No{});
  for (int r = 1; r < kh; ++r) {
    if constexpr (kTwo) taps(r, Yes{}, Yes{});
    else taps(r, Yes{}, No{});
  }
  if constexpr (kTwo) taps(kh, No{}, Yes{});
}

// RowPairSums with a width of 3 unrolled (wider rows keep the loop: unrolled they spill).
template <int kCh, int kV, bool kTwo, class Row>
TPX_FILTER_INLINE void RowPairSumsAnyWidth(Row&& row, int off, const Window& win, const KernelView<float>& k,
                                           __m256 (&a0)[kV], __m256 (&a1)[kV]) {
  if (win.kw == 3) RowPairSums<kCh, kV, kTwo, 3>(row, off, win, k, a0, a1);
  else RowPairSums<kCh, kV, kTwo>(row, off, win, k, a0, a1);
}

// ---- One destination row per pass -------------------------------------------------------------
// Float sums of kV vectors of one destination row for a kKw x kKh kernel known at compile
// time (3x3 and 5x5): rows[i] + off points at the sample under tap (i, 0) of the block's first
// sample. Every tap is unrolled, a broadcast and kV products whose loads fold into the
// multiplies, in the caller's order with the first product starting each sum, as in
// RowPairSums. Against two rows per pass this issues fewer instructions per tap and gives the
// compiler a fixed order to keep: at 5x5 a vector takes about 24 cycles from L2 where the
// two-row pass took 29. The loads do not share across rows, so about two in five of them split
// a cache line; the split loads (one a cycle) are what holds it above the 17-cycle floor of
// the multiplies and adds.
template <int kCh, int kV, int kKw, int kKh>
TPX_FILTER_INLINE void UnrolledRowSums(const float* const (&rows)[kKh], int off, const KernelView<float>& k,
                                       __m256 (&a)[kV]) {
  #pragma GCC unroll 32
  for (int t = 0; t < kKw * kKh; ++t) {
    const float* f = rows[t / kKw] + off + (t % kKw) * kCh;
    const __m256 c = _mm256_broadcast_ss(k.base + static_cast<std::ptrdiff_t>(t) * k.stride);
    #pragma GCC unroll 8
    for (int v = 0; v < kV; ++v) {
      const __m256 p = _mm256_mul_ps(c, _mm256_loadu_ps(f + 8 * v));
      a[v] = t == 0 ? p : _mm256_add_ps(a[v], p);
    }
  }
}

// Calls body(kernel size as a constant) for the square kernels that take one row per pass;
// false for the others.
template <class Body>
TPX_FILTER_INLINE bool WithUnrolledKernel(const Window& win, Body&& body) {
  if (win.kw == 3 && win.kh == 3) return body(std::integral_constant<int, 3>{}), true;
  if (win.kw == 5 && win.kh == 5) return body(std::integral_constant<int, 5>{}), true;
  return false;
}

// Source rows converted to float once. The region is walked in column tiles as wide as a
// stack ring of kh + 1 rows allows (the whole row for the usual sizes); in a tile every
// source row the kernel reads is converted once into the ring, and two destination rows are
// computed per pass from the kh + 1 rows they read (one row per pass for 3x3 and 5x5, with
// the taps unrolled). Kernels taller or wider than the ring take the routines that convert
// per block.
inline constexpr int kRingFloats = 12288;  // 48 KiB of stack
inline constexpr int kRingRows = 16;       // kh + 1 at most
inline constexpr int kRingReach = 64;      // (kw - 1) * channels at most
inline bool RingFits(const Window& win, int ch) {
  return win.kh + 1 <= kRingRows && (win.kw - 1) * ch <= kRingReach;
}

// Float sums of kernel k over source rows converted once into a ring, two destination rows a
// pass or one for the unrolled sizes; `store(d, acc)` finishes and writes each vector of
// eight sums.
template <class T, int kCh, class Store>
void ConvertedRowSums(const T* src, std::ptrdiff_t step, T* dst, std::ptrdiff_t dstStep, int n, int h,
                      const Window& win, const KernelView<float>& k, Store&& store) {
  alignas(32) float ring[kRingFloats];
  const int left = win.ax * kCh, reach = (win.kw - 1) * kCh, slots = win.kh + 1;
  const int pitch = (kRingFloats / slots) & ~7, widest = pitch - reach;  // widest >= 8 by RingFits
  const int tiles = (n + widest - 1) / widest;
  const int even = std::min(widest, ((n + tiles - 1) / tiles + 7) & ~7);
  for (int o0 = 0, tw = 0; o0 < n; o0 += tw) {
    tw = std::min(even, n - o0);
    if (tw < 8) {  // a last narrow tile overlaps the one before
      o0 = n - 8;
      tw = 8;
    }
    const int span = tw + reach;
    auto convert = [&](int r) {
      const T* s = Advance(src, static_cast<std::ptrdiff_t>(r) * step) + o0 - left;
      float* d = ring + (r + win.ay) % slots * pitch;
      int t = 0;
      for (; t + 8 <= span; t += 8) _mm256_store_ps(d + t, LoadF8(s + t));
      if (t < span) _mm256_storeu_ps(d + span - 8, LoadF8(s + span - 8));
    };
    int next = -win.ay;  // next source row to convert
    auto oneRow = [&](auto size) {
      constexpr int kK = decltype(size)::value;
      for (int y = 0; y < h; ++y) {
        for (const int last = y - win.ay + kK - 1; next <= last; ++next) convert(next);
        const float* rows[kK];
        for (int i = 0; i < kK; ++i) rows[i] = ring + (y + i) % slots * pitch;
        T* d = Advance(dst, static_cast<std::ptrdiff_t>(y) * dstStep) + o0;
        auto block = [&](auto v, int o) {
          constexpr int kV = decltype(v)::value;
          __m256 a[kV];
          UnrolledRowSums<kCh, kV, kK, kK>(rows, o, k, a);
          #pragma GCC unroll 8
          for (int q = 0; q < kV; ++q) store(d + o + 8 * q, a[q]);
        };
        ForEachVectorBlock<8, 8>(tw, 0, block);
      }
    };
    if (WithUnrolledKernel(win, oneRow)) continue;
    for (int y = 0; y < h; y += 2) {
      const bool two = y + 1 < h;
      for (const int last = y - win.ay + win.kh - (two ? 0 : 1); next <= last; ++next) convert(next);
      auto row = [&](int i) -> const float* { return ring + (y + i) % slots * pitch; };
      auto sums = [&](auto v, auto both, int o) {
        constexpr int kV = decltype(v)::value;
        __m256 a0[kV] = {}, a1[kV] = {};
        RowPairSumsAnyWidth<kCh, kV, decltype(both)::value>(row, o, win, k, a0, a1);
        T* d0 = Advance(dst, static_cast<std::ptrdiff_t>(y) * dstStep) + o0 + o;
        #pragma GCC unroll 8
        for (int q = 0; q < kV; ++q) store(d0 + 8 * q, a0[q]);
        if constexpr (decltype(both)::value) {
          T* d1 = Advance(d0, dstStep);
          #pragma GCC unroll 8
          for (int q = 0; q < kV; ++q) store(d1 + 8 * q, a1[q]);
        }
      };
      auto block = [&](auto v, int o) {
        if (two) sums(v, std::true_type{}, o);
        else sums(v, std::false_type{}, o);
      };
      ForEachVectorBlock<4, 8>(tw, 0, block);
    }
  }
}

// ==== Integer kinds ==============================================================================

// The finaliser of one route: 32-bit sums in, 32-bit results out (saturated by the store).
struct IntFinaliser {
  enum Variant {
    kPlainRound,     // round((float)a * scale) by the rounding control, + offset
    kShiftEven,      // (a + half - 1 + ((a >> shift) & 1)) >> shift, + offset
    kNear,           // rint(offsetF + scale * (float)a): the C4 near route
    kAccRint,        // rint((float)a * recip), + offset
    kAccEven1,       // q = trunc(a * recip), corrected toward even, + offset
    kAccHalfAway,    // trunc((float)a * recip + 0.5f), + offset
    kAccEven2,       // q = trunc(a * recip), corrected half up, + offset
    kAccTrunc,       // trunc((float)a * recip), + offset
    kShiftHalfAway,  // (a + half) >> shift, + offset
    kShiftFloor,     // a >> shift, + offset
    kIdentity,       // a + offset
    kTabDivRound, kTabDivAway, kTabDivTrunc, kTabShiftEven, kTabShiftAway, kTabShiftTrunc,
    kTabClamp,       // the scalar route: v = trunc((float)a + offsetF), then its table
  };
  Variant variant;
  int shift, half, offset, d, halfD, lo, hi;
  bool isSigned;
  float scale, offsetF;
  double divisorD;

  // ---- scalar ----
  TPX_FILTER_INLINE int Apply(std::int32_t a) const {
    switch (variant) {
      case kPlainRound: return WrapAdd(CvtRound(static_cast<float>(a) * scale), offset);
      case kShiftEven: return WrapAdd(ShiftEven(a), offset);
      case kNear: return CvtRound(offsetF + scale * static_cast<float>(a));
      case kAccRint: return WrapAdd(CvtRound(static_cast<float>(a) * scale), offset);
      case kAccEven1:
      case kAccEven2: {
        const int q = CvtTrunc(static_cast<float>(a) * scale);
        const int t = WrapAdd(WrapAdd(WrapMul(q, d), halfD), variant == kAccEven1 ? -(q & 1) : -1);
        return WrapAdd(a > t ? WrapAdd(q, 1) : q, offset);
      }
      case kAccHalfAway: return WrapAdd(CvtTrunc(static_cast<float>(a) * scale + 0.5f), offset);
      case kAccTrunc: return WrapAdd(CvtTrunc(static_cast<float>(a) * scale), offset);
      case kShiftHalfAway: return WrapAdd(WrapAdd(a, half) >> shift, offset);
      case kShiftFloor: return WrapAdd(a >> shift, offset);
      case kIdentity: return WrapAdd(a, offset);
      default: return Table(CvtTrunc(static_cast<float>(a) + offsetF));
    }
  }
  int ShiftEven(int a) const { return WrapAdd(WrapAdd(a, half - 1), (a >> shift) & 1) >> shift; }
  // The scalar route's table. Unsigned images: a value below 1 gives 0; 16s keeps its sign.
  int Table(int v) const {
    switch (variant) {
      case kTabDivRound: {
        const double t = static_cast<double>(v) / divisorD;
        if (t >= hi) return hi;
        if (isSigned) {
          if (t <= lo) return lo;
          if (t < -0.5) {
            int r = CvtTruncD(t - 0.5);
            if (static_cast<double>(r) - t == -0.5) r += r & 1;
            return r;
          }
        }
        if (t <= 0.5) return 0;
        int r = CvtTruncD(t + 0.5);
        if (static_cast<double>(r) - t == 0.5) r -= r & 1;
        return r;
      }
      case kTabDivAway: {
        const double t = static_cast<double>(v) / divisorD;
        if (t >= hi) return hi;
        if (t <= lo) return lo;
        if (t >= 0) return CvtTruncD(t + 0.5);
        return isSigned ? CvtTruncD(t - 0.5) : 0;
      }
      case kTabDivTrunc:  // integer division, taken in double: exact for every int pair
        return Clamp(CvtTruncD(static_cast<double>(v) / divisorD), lo, hi);
      case kTabShiftEven:
        if (!isSigned && v < 1) return 0;
        return Clamp(WrapAdd(WrapAdd(WrapAdd(((half | (half - 1)) & v), half - 1), (v >> shift) & 1) >> shift,
                             v >> shift), lo, hi);
      case kTabShiftAway:
        if (!isSigned && v < 1) return 0;
        return Clamp(WrapAdd(v, half) >> shift, lo, hi);
      case kTabShiftTrunc:
        if (!isSigned && v < 1) return 0;
        return Clamp(v >> shift, lo, hi);
      default:
        return Clamp(v, lo, hi);
    }
  }

  // ---- vector, four lanes ----
  // kFixed, when not negative, is the variant known at compile time.
  template <int kFixed = -1>
  TPX_FILTER_INLINE __m128i Apply(__m128i a) const {
    const __m128i off = _mm_set1_epi32(offset);
    const __m128 sc = _mm_set1_ps(scale);
    switch (kFixed >= 0 ? static_cast<Variant>(kFixed) : variant) {
      case kPlainRound:
      case kAccRint:
        return _mm_add_epi32(_mm_cvtps_epi32(_mm_mul_ps(_mm_cvtepi32_ps(a), sc)), off);
      case kShiftEven: return _mm_add_epi32(ShiftEven(a), off);
      case kNear:
        return _mm_cvtps_epi32(_mm_add_ps(_mm_set1_ps(offsetF), _mm_mul_ps(sc, _mm_cvtepi32_ps(a))));
      case kAccEven1:
      case kAccEven2: {
        const __m128i q = _mm_cvttps_epi32(_mm_mul_ps(_mm_cvtepi32_ps(a), sc));
        const __m128i corr = variant == kAccEven1 ? _mm_and_si128(q, _mm_set1_epi32(1)) : _mm_set1_epi32(1);
        const __m128i t = _mm_sub_epi32(_mm_add_epi32(_mm_mullo_epi32(q, _mm_set1_epi32(d)), _mm_set1_epi32(halfD)), corr);
        return _mm_add_epi32(_mm_sub_epi32(q, _mm_cmpgt_epi32(a, t)), off);
      }
      case kAccHalfAway:
        return _mm_add_epi32(_mm_cvttps_epi32(_mm_add_ps(_mm_mul_ps(_mm_cvtepi32_ps(a), sc), _mm_set1_ps(0.5f))), off);
      case kAccTrunc: return _mm_add_epi32(_mm_cvttps_epi32(_mm_mul_ps(_mm_cvtepi32_ps(a), sc)), off);
      case kShiftHalfAway:
        return _mm_add_epi32(_mm_sra_epi32(_mm_add_epi32(a, _mm_set1_epi32(half)), _mm_cvtsi32_si128(shift)), off);
      case kShiftFloor: return _mm_add_epi32(_mm_sra_epi32(a, _mm_cvtsi32_si128(shift)), off);
      case kIdentity: return _mm_add_epi32(a, off);
      default: return Table<kFixed>(_mm_cvttps_epi32(_mm_add_ps(_mm_cvtepi32_ps(a), _mm_set1_ps(offsetF))));
    }
  }
  __m128i ShiftEven(__m128i a) const {
    const __m128i sh = _mm_cvtsi32_si128(shift);
    const __m128i odd = _mm_and_si128(_mm_sra_epi32(a, sh), _mm_set1_epi32(1));
    return _mm_sra_epi32(_mm_add_epi32(_mm_add_epi32(a, _mm_set1_epi32(half - 1)), odd), sh);
  }
  // The shift tables leave their clamp to the image range, and on unsigned images the zero
  // of v < 1, to the saturating store (SatStore8) that follows every vector finaliser: for
  // v < 1 each of the three gives a result <= 0, which the store turns into 0 as the table
  // does, and the store's saturation is the clamp.
  __m128i ClampV(__m128i v) const {
    return _mm_min_epi32(_mm_max_epi32(v, _mm_set1_epi32(lo)), _mm_set1_epi32(hi));
  }
  template <int kFixed = -1>
  TPX_FILTER_INLINE __m128i Table(__m128i v) const {
    const __m128i sh = _mm_cvtsi32_si128(shift);
    switch (kFixed >= 0 ? static_cast<Variant>(kFixed) : variant) {
      case kTabDivRound:
      case kTabDivAway:
      case kTabDivTrunc: {
        const __m256d t = _mm256_div_pd(_mm256_cvtepi32_pd(v), _mm256_set1_pd(divisorD));
        const __m256d hiD = _mm256_set1_pd(hi), loD = _mm256_set1_pd(lo);
        const __m256d half = _mm256_set1_pd(0.5);
        __m128i r;
        if (variant == kTabDivTrunc) return ClampV(_mm256_cvttpd_epi32(t));
        if (variant == kTabDivRound) {
          const __m128i one = _mm_set1_epi32(1);
          __m128i up = _mm256_cvttpd_epi32(_mm256_add_pd(t, half));
          const __m128i upTie = Mask(_mm256_cmp_pd(_mm256_sub_pd(_mm256_cvtepi32_pd(up), t), half, _CMP_EQ_OQ));
          up = _mm_sub_epi32(up, _mm_and_si128(upTie, _mm_and_si128(up, one)));
          r = _mm_andnot_si128(Mask(_mm256_cmp_pd(t, half, _CMP_LE_OQ)), up);
          if (isSigned) {
            __m128i dn = _mm256_cvttpd_epi32(_mm256_sub_pd(t, half));
            const __m128i dnTie = Mask(_mm256_cmp_pd(_mm256_sub_pd(_mm256_cvtepi32_pd(dn), t),
                                                     _mm256_set1_pd(-0.5), _CMP_EQ_OQ));
            dn = _mm_add_epi32(dn, _mm_and_si128(dnTie, _mm_and_si128(dn, one)));
            r = _mm_blendv_epi8(r, dn, Mask(_mm256_cmp_pd(t, _mm256_set1_pd(-0.5), _CMP_LT_OQ)));
            r = _mm_blendv_epi8(r, _mm_set1_epi32(lo), Mask(_mm256_cmp_pd(t, loD, _CMP_LE_OQ)));
          }
        } else {
          const __m128i up = _mm256_cvttpd_epi32(_mm256_add_pd(t, half));
          const __m128i neg = isSigned ? _mm256_cvttpd_epi32(_mm256_sub_pd(t, half)) : _mm_setzero_si128();
          r = _mm_blendv_epi8(up, neg, Mask(_mm256_cmp_pd(t, _mm256_setzero_pd(), _CMP_LT_OQ)));
          r = _mm_blendv_epi8(r, _mm_set1_epi32(lo), Mask(_mm256_cmp_pd(t, loD, _CMP_LE_OQ)));
        }
        return _mm_blendv_epi8(r, _mm_set1_epi32(hi), Mask(_mm256_cmp_pd(t, hiD, _CMP_GE_OQ)));
      }
      case kTabShiftEven: {
        const __m128i h = _mm_sra_epi32(v, sh);
        const __m128i low = _mm_and_si128(v, _mm_set1_epi32(half | (half - 1)));
        const __m128i s = _mm_add_epi32(_mm_add_epi32(low, _mm_set1_epi32(half - 1)), _mm_and_si128(h, _mm_set1_epi32(1)));
        return _mm_add_epi32(_mm_sra_epi32(s, sh), h);
      }
      case kTabShiftAway: return _mm_sra_epi32(_mm_add_epi32(v, _mm_set1_epi32(half)), sh);
      case kTabShiftTrunc: return _mm_sra_epi32(v, sh);
      default: return ClampV(v);
    }
  }
  // Four-lane 64-bit compare mask narrowed to four 32-bit lanes.
  static __m128i Mask(__m256d m) {
    const __m256 f = _mm256_castpd_ps(m);
    const __m128 packed = _mm_shuffle_ps(_mm256_castps256_ps128(f), _mm256_extractf128_ps(f, 1), 0x88);
    return _mm_castps_si128(packed);
  }
};

// What an integer row needs from the spec.
struct IntRowParams {
  Window win;
  const Tpx16s* rev;     // reversed kernel copy
  const __m128i* pairs;  // the pair table when valid, else null
  std::uint32_t roundMode, divKind;
  int shift, half, offset, divisor;
  float scale, offsetF;
  double divisorD;
};

enum class IntRoute { kFast, kNear, kScalar };

// The route of one call of the row routine; `w` is the width of that call in pixels.
inline IntRoute ChooseIntRoute(int ch, const IntRowParams& p, int w, bool pairRows) {
  const int kw = p.win.kw, kh = p.win.kh;
  const bool valid = p.pairs != nullptr;
  if (!pairRows) return IntRoute::kScalar;
  if (ch == 4 && (p.roundMode & 31) == 1 && valid) return IntRoute::kNear;
  if (ch == 1 && kw >= 3 && kh > 1 && w >= 16 && valid) return IntRoute::kFast;
  if (ch == 4 && kw >= 3 && kh > 1 && w >= 4 && valid) return IntRoute::kFast;
  if (kh == 1 && kw > 1) return IntRoute::kFast;  // row expansion
  if (kw == 1 && kh >= 3 && ((ch == 1 && w >= 16) || (ch == 4 && w >= 4))) return IntRoute::kFast;
  return IntRoute::kScalar;
}

template <class T>
inline IntFinaliser MakeIntFinaliser(const IntRowParams& p, IntRoute route) {
  IntFinaliser f{};
  f.shift = p.shift;
  f.half = p.half;
  f.offset = p.offset;
  f.d = p.divisor;
  f.halfD = p.divisor / 2;
  f.lo = IntRange<T>::kLo;
  f.hi = IntRange<T>::kHi;
  f.isSigned = std::is_signed_v<T>;
  f.scale = p.scale;
  f.offsetF = p.offsetF;
  f.divisorD = p.divisorD;
  const int mode = static_cast<int>(p.roundMode & 3);
  using F = IntFinaliser;
  if (route == IntRoute::kNear) {
    f.variant = F::kNear;
  } else if (route == IntRoute::kScalar) {
    static constexpr F::Variant kDiv[3] = {F::kTabDivTrunc, F::kTabDivRound, F::kTabDivAway};
    static constexpr F::Variant kPow[3] = {F::kTabShiftTrunc, F::kTabShiftEven, F::kTabShiftAway};
    f.variant = p.divKind == 0 ? F::kTabClamp : p.divKind == 1 ? kPow[mode % 3] : kDiv[mode % 3];
  } else if ((p.roundMode & 0x1E) == 0) {  // plain finaliser: mode 0 or 1 without the flag
    f.variant = p.shift > 0 ? F::kShiftEven : F::kPlainRound;
  } else if (p.divKind == 0) {
    f.variant = F::kIdentity;
  } else if (p.divKind == 1) {
    f.variant = mode == 1 ? F::kShiftEven : mode == 2 ? F::kShiftHalfAway : F::kShiftFloor;
  } else {
    const bool odd = (p.divisor & 1) != 0;
    f.variant = mode == 1 ? (odd ? F::kAccRint : F::kAccEven1)
              : mode == 2 ? (odd ? F::kAccHalfAway : F::kAccEven2) : F::kAccTrunc;
  }
  return f;
}

// Eight samples as 16-bit lanes.
template <class T>
inline __m128i LoadI16x8(const T* p) {
  if constexpr (std::is_same_v<T, Tpx8u>)
    return _mm_cvtepu8_epi16(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)));
  else
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
}

// Exact sums of samples [o, o + 8 * kG) of one destination row through the pair table: each
// madd is two multiplies and their add on samples widened to 16 bits.
template <class T, int kCh, int kG>
TPX_FILTER_INLINE void PairSums(const T* src, std::ptrdiff_t step, int o, const IntRowParams& p, __m128i (&out)[2 * kG]) {
  const int kw = p.win.kw, np = (kw + 1) >> 1;
  __m128i acc[2 * kG];  // local, so that the sums stay in registers
  for (auto& a : acc) a = _mm_setzero_si128();
  const __m128i zero = _mm_setzero_si128();
  for (int i = 0; i < p.win.kh; ++i) {
    const T* b = Advance(src, static_cast<std::ptrdiff_t>(i - p.win.ay) * step) + o - p.win.ax * kCh;
    const __m128i* pt = p.pairs + static_cast<std::ptrdiff_t>(i) * np;
    int j = 0;
    for (; j + 1 < kw; j += 2) {
      const __m128i c = _mm_load_si128(pt + (j >> 1));
      #pragma GCC unroll 8
      for (int g = 0; g < kG; ++g) {
        const __m128i v0 = LoadI16x8(b + j * kCh + 8 * g), v1 = LoadI16x8(b + (j + 1) * kCh + 8 * g);
        acc[2 * g] = _mm_add_epi32(acc[2 * g], _mm_madd_epi16(_mm_unpacklo_epi16(v0, v1), c));
        acc[2 * g + 1] = _mm_add_epi32(acc[2 * g + 1], _mm_madd_epi16(_mm_unpackhi_epi16(v0, v1), c));
      }
    }
    if (j < kw) {
      const __m128i c = _mm_load_si128(pt + (j >> 1));
      #pragma GCC unroll 8
      for (int g = 0; g < kG; ++g) {
        const __m128i v0 = LoadI16x8(b + j * kCh + 8 * g);
        acc[2 * g] = _mm_add_epi32(acc[2 * g], _mm_madd_epi16(_mm_unpacklo_epi16(v0, zero), c));
        acc[2 * g + 1] = _mm_add_epi32(acc[2 * g + 1], _mm_madd_epi16(_mm_unpackhi_epi16(v0, zero), c));
      }
    }
  }
  for (int q = 0; q < 2 * kG; ++q) out[q] = acc[q];
}

// 8u form of PairSums over [o, o + 32): the two samples of a pair are interleaved as bytes
// first and widened after, one 16-byte load per tap for sixteen outputs. Eight named sums, so
// that they live in registers.
template <int kCh>
TPX_FILTER_INLINE void PairSums8u32(const Tpx8u* src, std::ptrdiff_t step, int o, const IntRowParams& p,
                                    __m128i (&out)[8]) {
  const int kw = p.win.kw, np = (kw + 1) >> 1;
  __m128i a0 = _mm_setzero_si128(), a1 = a0, a2 = a0, a3 = a0, a4 = a0, a5 = a0, a6 = a0, a7 = a0;
  const __m128i zero = _mm_setzero_si128();
  auto load = [](const Tpx8u* q) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(q)); };
  auto madd4 = [&](__m128i x0, __m128i x1, __m128i c, __m128i& s0, __m128i& s1, __m128i& s2, __m128i& s3) {
    const __m128i lo = _mm_unpacklo_epi8(x0, x1), hi = _mm_unpackhi_epi8(x0, x1);
    s0 = _mm_add_epi32(s0, _mm_madd_epi16(_mm_cvtepu8_epi16(lo), c));
    s1 = _mm_add_epi32(s1, _mm_madd_epi16(_mm_unpackhi_epi8(lo, zero), c));
    s2 = _mm_add_epi32(s2, _mm_madd_epi16(_mm_cvtepu8_epi16(hi), c));
    s3 = _mm_add_epi32(s3, _mm_madd_epi16(_mm_unpackhi_epi8(hi, zero), c));
  };
  for (int i = 0; i < p.win.kh; ++i) {
    const Tpx8u* b = Advance(src, static_cast<std::ptrdiff_t>(i - p.win.ay) * step) + o - p.win.ax * kCh;
    const __m128i* pt = p.pairs + static_cast<std::ptrdiff_t>(i) * np;
    int j = 0;
    for (; j + 1 < kw; j += 2) {
      const __m128i c = _mm_load_si128(pt + (j >> 1));
      const Tpx8u* q0 = b + j * kCh;
      const Tpx8u* q1 = q0 + kCh;
      madd4(load(q0), load(q1), c, a0, a1, a2, a3);
      madd4(load(q0 + 16), load(q1 + 16), c, a4, a5, a6, a7);
    }
    if (j < kw) {
      const __m128i c = _mm_load_si128(pt + (j >> 1));
      const Tpx8u* q0 = b + j * kCh;
      madd4(load(q0), zero, c, a0, a1, a2, a3);
      madd4(load(q0 + 16), zero, c, a4, a5, a6, a7);
    }
  }
  out[0] = a0; out[1] = a1; out[2] = a2; out[3] = a3; out[4] = a4; out[5] = a5; out[6] = a6; out[7] = a7;
}

// Exact (wrapping) sum of one sample, kernel rows in order.
template <class T, int kCh>
inline std::int32_t ScalarIntSum(const T* src, std::ptrdiff_t step, int s, const IntRowParams& p) {
  const int kw = p.win.kw, n = kw * p.win.kh;
  const KernelView<Tpx16s> k = ReversedView(p.rev, n);
  std::uint32_t acc = 0;
  for (int i = 0; i < p.win.kh; ++i) {
    const T* b = Advance(src, static_cast<std::ptrdiff_t>(i - p.win.ay) * step) + s - p.win.ax * kCh;
    for (int j = 0; j < kw; ++j)
      acc += static_cast<std::uint32_t>(static_cast<std::int32_t>(k.At(i * kw + j)) * static_cast<std::int32_t>(b[j * kCh]));
  }
  return static_cast<std::int32_t>(acc);
}

// One destination row of n samples: sums, finaliser, saturating store. V = 8 samples; tail:
// overlapping last vector where n >= 8 (the row is out of place), scalar below.
template <class T, int kCh, Isa kI>
inline void IntRow(const T* src, std::ptrdiff_t step, T* dst, int n, const IntRowParams& p, const IntFinaliser& f) {
  const bool vec = kI == Isa::kAvx && p.pairs != nullptr && !std::is_same_v<T, Tpx16u> && n >= 8;
  if constexpr (!std::is_same_v<T, Tpx16u>) {
    if (vec) {
      auto group = [&](auto g, int o) {
        constexpr int kG = decltype(g)::value;
        __m128i acc[2 * kG];
        PairSums<T, kCh, kG>(src, step, o, p, acc);
        #pragma GCC unroll 8
        for (int q = 0; q < kG; ++q) SatStore8(dst + o + 8 * q, f.Apply(acc[2 * q]), f.Apply(acc[2 * q + 1]));
      };
      int o = 0;
      if constexpr (std::is_same_v<T, Tpx8u>) {
        for (; o + 32 <= n; o += 32) {
          __m128i acc[8];
          PairSums8u32<kCh>(src, step, o, p, acc);
#pragma GCC unroll 4
          for (int q = 0; q < 4; ++q) SatStore8(dst + o + 8 * q, f.Apply(acc[2 * q]), f.Apply(acc[2 * q + 1]));
        }
      }
      ForEachVectorBlock<4, 8>(n, o, group);
      return;
    }
  }
  for (int s = 0; s < n; ++s) dst[s] = SatStore<T>(f.Apply(ScalarIntSum<T, kCh>(src, step, s, p)));
}

// Whether the exact sums of a kernel can be taken in float: with |sample| <= m and the
// coefficients' absolute sum S, every product and every partial sum is an integer of
// magnitude at most m * S. When m * S <= 2^24 each of them is a float exactly (floats hold
// every integer up to 2^24), so each float multiply and add is exact whatever the rounding
// control, the float sum equals the integer sum (which then cannot wrap either), and its
// conversion back to 32 bits is exact.
template <class T>
inline bool SumsExactInFloat(const IntRowParams& p) {
  const int n = p.win.kw * p.win.kh;
  long long sum = 0;
  for (int i = 0; i < n; ++i) sum += std::abs(static_cast<int>(p.rev[i]));
  constexpr long long kMaxAbs = std::max(-static_cast<long long>(IntRange<T>::kLo), static_cast<long long>(IntRange<T>::kHi));
  return sum * kMaxAbs <= (1LL << 24);
}

// The integer-kind routine over a w x h region. The rounding control is set for each row:
// nearest for mode 1, toward zero for mode 0, the caller's for mode 2. Kernels whose sums are
// exact in float and that fit the ring take the float form of the sums: each source row
// converted once, eight lanes per multiply and add, two destination rows per pass, and the
// exact sums handed to the route's finaliser as 32-bit integers.
template <class T, int kCh, Isa kI>
void IntRows(const T* src, std::ptrdiff_t srcStep, T* dst, std::ptrdiff_t dstStep, int w, int h,
             const IntRowParams& p) {
  const IntRoute route = ChooseIntRoute(kCh, p, w, !std::is_same_v<T, Tpx16u>);
  const IntFinaliser f = MakeIntFinaliser<T>(p, route);
  const int mode = static_cast<int>(p.roundMode & 15);
  const int n = w * kCh;
  auto scope = [mode](std::optional<RoundingScope>& rs) {
    if (mode == 1) rs.emplace(FpRound::kNearest);
    else if (mode == 0) rs.emplace(FpRound::kZero);
  };
  if constexpr (kI == Isa::kAvx && !std::is_same_v<T, Tpx16u>) {
    if (n >= 8 && RingFits(p.win, kCh) && SumsExactInFloat<T>(p)) {
      alignas(32) float kf[kRingRows * (kRingReach + 1)];  // the kernel in the caller's order
      const int taps = p.win.kw * p.win.kh;
      for (int i = 0; i < taps; ++i) kf[i] = static_cast<float>(p.rev[taps - 1 - i]);
      const KernelView<float> k{kf, 1};
      std::optional<RoundingScope> rs;
      scope(rs);
      // The finalisers of the plain fast rows and of the scalar route's shift table are
      // fixed at compile time; the others are chosen per vector.
      using F = IntFinaliser;
      auto run = [&](auto fixed) {
        auto store = [&](T* d, __m256 acc) __attribute__((always_inline)) {
          constexpr int kF = decltype(fixed)::value;
          if constexpr (kF == F::kShiftEven) {
            // a = q * 2^shift + r (floor division): the shift form gives q for r < half, q + 1
            // for r > half and the even one of them for r == half, which is a * 2^-shift
            // rounded half to even; that product is exact in float (a power-of-two scale of an
            // integer below 2^24), so the rounding instruction gives the same integer.
            const __m256 q = _mm256_round_ps(_mm256_mul_ps(acc, _mm256_set1_ps(f.scale)),
                                             _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC);
            const __m256i r = _mm256_cvttps_epi32(q);
            const __m128i off = _mm_set1_epi32(f.offset);
            SatStore8(d, _mm_add_epi32(_mm256_castsi256_si128(r), off), _mm_add_epi32(_mm256_extractf128_si256(r, 1), off));
          } else if constexpr (kF == F::kTabShiftEven) {
            // (float)a is acc itself: v = trunc((float)a + offsetF) straight from the sum.
            const __m256i v = _mm256_cvttps_epi32(_mm256_add_ps(acc, _mm256_set1_ps(f.offsetF)));
            SatStore8(d, f.template Table<kF>(_mm256_castsi256_si128(v)), f.template Table<kF>(_mm256_extractf128_si256(v, 1)));
          } else {
            const __m256i a = _mm256_cvttps_epi32(acc);  // exact: the sum is an integer
            SatStore8(d, f.template Apply<kF>(_mm256_castsi256_si128(a)), f.template Apply<kF>(_mm256_extractf128_si256(a, 1)));
          }
        };
        ConvertedRowSums<T, kCh>(src, srcStep, dst, dstStep, n, h, p.win, k, store);
      };
      if (f.variant == F::kShiftEven) run(std::integral_constant<int, F::kShiftEven>{});
      else if (f.variant == F::kTabShiftEven) run(std::integral_constant<int, F::kTabShiftEven>{});
      else run(std::integral_constant<int, -1>{});
      return;
    }
  }
  for (int y = 0; y < h; ++y) {
    std::optional<RoundingScope> rs;
    scope(rs);
    IntRow<T, kCh, kI>(src, srcStep, dst, n, p, f);
    src = Advance(src, srcStep);
    dst = Advance(dst, dstStep);
  }
}

// ==== Float kinds and float sums =================================================================

// Float sums of one block of kV vectors (8 samples each) starting at sample o, taps in the
// caller's order (kernel rows, then columns), the first product starting the sum. Samples of
// other types go through a converted copy on the stack, a span of the row at a time.
template <class T, int kCh, int kV>
TPX_FILTER_INLINE void FloatBlockSums(const T* src, std::ptrdiff_t step, int o, const Window& win,
                                      const KernelView<float>& k, __m256 (&acc)[kV]) {
  constexpr int kConv = 2048;  // floats of converted samples
  constexpr int kJ = (kConv - 8 * kV) / kCh + 1;
  alignas(32) float cv[std::is_same_v<T, float> ? 1 : kConv];
  for (int i = 0; i < win.kh; ++i) {
    const T* b = Advance(src, static_cast<std::ptrdiff_t>(i - win.ay) * step) + o - win.ax * kCh;
    for (int j0 = 0; j0 < win.kw; j0 += kJ) {
      const int jn = std::min(kJ, win.kw - j0);
      const float* f;
      if constexpr (std::is_same_v<T, float>) {
        f = b + j0 * kCh;
      } else {
        const T* s = b + j0 * kCh;
        const int span = 8 * kV + (jn - 1) * kCh;
        int t = 0;
        for (; t + 8 <= span; t += 8) _mm256_store_ps(cv + t, LoadF8(s + t));
        for (; t < span; ++t) cv[t] = static_cast<float>(s[t]);
        f = cv;
      }
      int j = 0;
      if (i == 0 && j0 == 0) {  // the first product starts the sum
        const __m256 c = _mm256_set1_ps(k.At(0));
        #pragma GCC unroll 8
        for (int v = 0; v < kV; ++v) acc[v] = _mm256_mul_ps(c, _mm256_loadu_ps(f + 8 * v));
        j = 1;
      }
      for (; j < jn; ++j) {
        const __m256 c = _mm256_set1_ps(k.At(i * win.kw + j0 + j));
        #pragma GCC unroll 8
        for (int v = 0; v < kV; ++v)
          acc[v] = _mm256_add_ps(acc[v], _mm256_mul_ps(c, _mm256_loadu_ps(f + j * kCh + 8 * v)));
      }
    }
  }
}

// Scalar twin of FloatBlockSums for one sample.
template <class T, int kCh>
inline float FloatSum(const T* src, std::ptrdiff_t step, int s, const Window& win, const KernelView<float>& k) {
  float acc = 0.0f;
  for (int i = 0; i < win.kh; ++i) {
    const T* b = Advance(src, static_cast<std::ptrdiff_t>(i - win.ay) * step) + s - win.ax * kCh;
    for (int j = 0; j < win.kw; ++j) {
      const float prod = k.At(i * win.kw + j) * static_cast<float>(b[j * kCh]);
      acc = (i == 0 && j == 0) ? prod : acc + prod;
    }
  }
  return acc;
}

// The narrow form of the float kinds (rows under 8 samples): sum from 0, each kernel row adds
// its products four at a time through a horizontal add ((p0 + p1) + (p2 + p3)), the rest one
// by one.
template <class T, int kCh>
inline float NarrowFloatSum(const T* src, std::ptrdiff_t step, int s, const Window& win, const KernelView<float>& k) {
  float acc = 0.0f;
  for (int i = 0; i < win.kh; ++i) {
    const T* b = Advance(src, static_cast<std::ptrdiff_t>(i - win.ay) * step) + s - win.ax * kCh;
    auto prod = [&](int j) { return k.At(i * win.kw + j) * static_cast<float>(b[j * kCh]); };
    int j = 0;
    for (; j + 4 <= win.kw; j += 4) acc += (prod(j) + prod(j + 1)) + (prod(j + 2) + prod(j + 3));
    for (; j < win.kw; ++j) acc += prod(j);
  }
  return acc;
}

// Float sum to an integer sample by the table of the type and mode.
template <class T>
inline T FloatToSample(float acc, int mode) {
  constexpr float kHi = static_cast<float>(IntRange<T>::kHi);
  constexpr bool kSigned = std::is_signed_v<T>;
  int r;
  if (acc >= kHi) {
    r = IntRange<T>::kHi;
  } else if (kSigned ? acc <= -32768.0f : acc <= 0.0f) {
    r = IntRange<T>::kLo;
  } else if (mode == 0) {
    r = CvtTrunc(acc);
  } else if (mode == 1) {
    if (acc > 0.5f) {
      r = CvtTruncD(static_cast<double>(acc) + 0.5);
      if (static_cast<float>(r) - acc == 0.5f) r &= ~1;
    } else if (kSigned && acc < -0.5f) {
      r = CvtTruncD(static_cast<double>(acc) - 0.5);
      if (static_cast<float>(r) - acc == -0.5f) r += r & 1;
    } else if (acc != acc) {  // NaN: the conversion's own result
      r = CvtTruncD(static_cast<double>(acc) + 0.5);
    } else {
      r = 0;
    }
  } else {
    r = (kSigned && acc < 0.0f) ? CvtTruncD(static_cast<double>(acc) - 0.5)
                                : CvtTruncD(static_cast<double>(acc) + 0.5);
  }
  return static_cast<T>(Clamp(r, IntRange<T>::kLo, IntRange<T>::kHi));
}

// Vector twin of FloatToSample on four lanes.
template <class T>
inline __m128i FloatToSample4(__m128 acc, int mode) {
  constexpr bool kSigned = std::is_signed_v<T>;
  const __m128 hi = _mm_set1_ps(static_cast<float>(IntRange<T>::kHi));
  const __m128 lo = _mm_set1_ps(kSigned ? -32768.0f : 0.0f);
  __m128i r;
  if (mode == 0 || mode == 1) {
    // Clamped first (a NaN takes the low bound, as the table's conversion saturates there),
    // then truncated, or rounded half to even: inside (0.5, hi) the table's "round half up,
    // then clear the low bit on a tie" is exactly that, and below 0.5 both give 0.
    const __m128 c = _mm_min_ps(_mm_max_ps(acc, lo), hi);
    return _mm_cvttps_epi32(mode == 0 ? c : _mm_round_ps(c, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC));
  } else {
    const __m256d a = _mm256_cvtps_pd(acc);
    const __m256d h = _mm256_set1_pd(0.5);
    const __m128i up = _mm256_cvttpd_epi32(_mm256_add_pd(a, h));
    if (kSigned) {
      const __m128i dn = _mm256_cvttpd_epi32(_mm256_sub_pd(a, h));
      r = _mm_blendv_epi8(up, dn, _mm_castps_si128(_mm_cmp_ps(acc, _mm_setzero_ps(), _CMP_LT_OQ)));
    } else {
      r = up;
    }
  }
  r = _mm_blendv_epi8(r, _mm_set1_epi32(IntRange<T>::kLo), _mm_castps_si128(_mm_cmp_ps(acc, lo, _CMP_LE_OQ)));
  r = _mm_blendv_epi8(r, _mm_set1_epi32(IntRange<T>::kHi), _mm_castps_si128(_mm_cmp_ps(acc, hi, _CMP_GE_OQ)));
  return r;
}

struct FloatRowParams {
  Window win;
  KernelView<float> k;
  float offsetF;
  int mode;  // 0, 1 or 2
};

// Float-kind routine (8u, 16u, 16s data with a float kernel). V = 8 samples; rows under 8
// samples take the narrow form. Kernels that fit the ring convert each source row once and
// compute two destination rows per pass; others convert per block of 64 samples. Tails:
// overlapping last vector.
template <class T, int kCh, Isa kI>
void FloatKindRows(const T* src, std::ptrdiff_t srcStep, T* dst, std::ptrdiff_t dstStep, int w, int h,
                   const FloatRowParams& p) {
  const int n = w * kCh;
  if constexpr (kI == Isa::kAvx) {
    const __m256 off = _mm256_set1_ps(p.offsetF);
    auto store = [&](T* d, __m256 acc) __attribute__((always_inline)) {
      const __m256 a = _mm256_add_ps(acc, off);
      SatStore8(d, FloatToSample4<T>(_mm256_castps256_ps128(a), p.mode),
                FloatToSample4<T>(_mm256_extractf128_ps(a, 1), p.mode));
    };
    if (n >= 8 && RingFits(p.win, kCh)) {
      ConvertedRowSums<T, kCh>(src, srcStep, dst, dstStep, n, h, p.win, p.k, store);
      return;
    }
  }
  for (int y = 0; y < h; ++y) {
    if (n < 8) {
      for (int s = 0; s < n; ++s)
        dst[s] = FloatToSample<T>(NarrowFloatSum<T, kCh>(src, srcStep, s, p.win, p.k) + p.offsetF, p.mode);
    } else if constexpr (kI == Isa::kAvx) {
      const __m256 off = _mm256_set1_ps(p.offsetF);
      auto block = [&](auto v, int o) {
        constexpr int kV = decltype(v)::value;
        __m256 acc[kV] = {};
        FloatBlockSums<T, kCh, kV>(src, srcStep, o, p.win, p.k, acc);
        #pragma GCC unroll 8
        for (int q = 0; q < kV; ++q) {
          const __m256 a = _mm256_add_ps(acc[q], off);
          SatStore8(dst + o + 8 * q, FloatToSample4<T>(_mm256_castps256_ps128(a), p.mode),
                    FloatToSample4<T>(_mm256_extractf128_ps(a, 1), p.mode));
        }
      };
      ForEachVectorBlock<8, 8>(n, 0, block);
    } else {
      for (int s = 0; s < n; ++s)
        dst[s] = FloatToSample<T>(FloatSum<T, kCh>(src, srcStep, s, p.win, p.k) + p.offsetF, p.mode);
    }
    src = Advance(src, srcStep);
    dst = Advance(dst, dstStep);
  }
}

// ---- 32f ----------------------------------------------------------------------------------------
// Every 32f sum is taken in the caller's order, kernel rows then columns, the first product
// starting the sum and each later product added to it (FloatSum): one product and one add per
// tap, no product skipped, so 0 * inf gives NaN and a NaN anywhere reaches the sum. Without a
// fused multiply-add the floor of a tap is a multiply (ports 0, 1) and an add (ports 1, 5):
// two operations over three ports. Kernels of 3x3 and 5x5 take one destination row of eight
// vectors per pass with every tap unrolled (UnrolledRowSums); other sizes take two rows of
// kV vectors per pass, each broadcast coefficient serving kV products and each loaded source
// vector serving both rows. Either way eight or more independent sums are in flight and each
// one waits for its own previous add only.

// Sums of kR destination rows (1 or 2) x kV vectors of 8 samples. row(r) points at source row
// r of the pass under the first tap of the block: the first destination row reads rows
// 0 .. kh - 1, the second 1 .. kh. `last` points at the last element of the reversed kernel,
// so tap (i, j) is last[-(i * kw + j)]. kKw is the kernel width when known at compile time
// (the taps of a row then unroll fully, with no loop counter or pointer steps between them).
template <int kCh, int kV, int kR, int kKw, class Row>
TPX_FILTER_INLINE void Float32Taps(Row&& row, const float* last, int kwRun, int kh, __m256 (&a)[kR][kV]) {
  const int kw = kKw ? kKw : kwRun;
  // Source row r against kernel row r (first sum, kU0) and r - 1 (second sum, kU1); kS0 and
  // kS1: the row's first tap starts that sum.
  auto pass = [&](int r, auto u0, auto u1, auto s0, auto s1) __attribute__((always_inline)) {
    constexpr bool kU0 = decltype(u0)::value, kU1 = decltype(u1)::value;
    const float* f = row(r);
    const float* c0 = last - static_cast<std::ptrdiff_t>(r) * kw;
    const float* c1 = c0 + kw;
    auto tap = [&](int j, auto st0, auto st1) __attribute__((always_inline)) {
      __m256 k0, k1;
      if constexpr (kU0) k0 = _mm256_broadcast_ss(c0 - j);
      if constexpr (kU1) k1 = _mm256_broadcast_ss(c1 - j);
      #pragma GCC unroll 8
      for (int v = 0; v < kV; ++v) {
        const __m256 x = _mm256_loadu_ps(f + j * kCh + 8 * v);
        if constexpr (kU0) {
          const __m256 p = _mm256_mul_ps(k0, x);
          a[0][v] = decltype(st0)::value ? p : _mm256_add_ps(a[0][v], p);
        }
        if constexpr (kU1) {
          const __m256 p = _mm256_mul_ps(k1, x);
          a[kR - 1][v] = decltype(st1)::value ? p : _mm256_add_ps(a[kR - 1][v], p);
        }
      }
    };
    using No = std::false_type;
    tap(0, s0, s1);
    if constexpr (kKw > 0) {
      #pragma GCC unroll 16
      for (int j = 1; j < kKw; ++j) tap(j, No{}, No{});
    } else {
      #pragma GCC unroll 2
      for (int j = 1; j < kw; ++j) tap(j, No{}, No{});
    }
  };
  using Yes = std::true_type;
  using No = std::false_type;
  pass(0, Yes{}, No{}, Yes{}, No{});
  if constexpr (kR == 1) {
    for (int r = 1; r < kh; ++r) pass(r, Yes{}, No{}, No{}, No{});
  } else if (kh == 1) {
    pass(1, No{}, Yes{}, No{}, Yes{});
  } else {
    pass(1, Yes{}, Yes{}, No{}, Yes{});
    for (int r = 2; r < kh; ++r) pass(r, Yes{}, Yes{}, No{}, No{});
    pass(kh, No{}, Yes{}, No{}, No{});
  }
}

// Asks for kLines 64-byte lines of floats from p on into the first-level cache.
template <int kLines>
TPX_FILTER_INLINE void PrefetchLines(const float* p) {
  #pragma GCC unroll 8
  for (int l = 0; l < kLines; ++l) _mm_prefetch(reinterpret_cast<const char*>(p + 16 * l), _MM_HINT_T0);
}

// 3x3 and 5x5: one destination row per pass over blocks of 64 samples, then single vectors
// and an overlapping last vector. A full block asks for its lines of the source row the next
// row adds and for the destination lines two blocks ahead.
template <int kCh, int kK>
void Float32RowsUnrolled(const float* src, std::ptrdiff_t srcStep, float* dst, std::ptrdiff_t dstStep, int n,
                         int h, const Window& win, const KernelView<float>& k) {
  for (int y = 0; y < h; ++y) {
    const float* rows[kK];
    rows[0] = Advance(src, static_cast<std::ptrdiff_t>(y - win.ay) * srcStep) - win.ax * kCh;
    for (int i = 1; i < kK; ++i) rows[i] = Advance(rows[i - 1], srcStep);
    float* d = Advance(dst, static_cast<std::ptrdiff_t>(y) * dstStep);
    const float* next = y + 1 < h ? Advance(rows[kK - 1], srcStep) : nullptr;
    auto block = [&](auto v, int o) {
      constexpr int kV = decltype(v)::value;
      if constexpr (kV == 8) {
        PrefetchLines<4>(d + o + 128);
        if (next) PrefetchLines<4>(next + o);
      }
      __m256 a[kV];
      UnrolledRowSums<kCh, kV, kK, kK>(rows, o, k, a);
      #pragma GCC unroll 8
      for (int q = 0; q < kV; ++q) _mm256_storeu_ps(d + o + 8 * q, a[q]);
    };
    ForEachVectorBlock<8, 8>(n, 0, block);
  }
}

// 32f rows: 3x3 and 5x5 as above; other kernels two destination rows per pass over blocks of
// 32 samples, then single vectors and an overlapping last vector, an odd last row alone. Rows
// under 8 samples and the scalar twin take FloatSum. `rev` is the kernel as the spec keeps it
// (reversed).
// A full block also asks for the destination lines two blocks ahead and for the block's lines
// of the two source rows the next pass adds: the new rows are on their way while this pass
// computes.
template <int kCh, Isa kI>
void Float32Rows(const float* src, std::ptrdiff_t srcStep, float* dst, std::ptrdiff_t dstStep, int w, int h,
                 const Window& win, const float* rev) {
  const int n = w * kCh, taps = win.kw * win.kh;
  if (kI == Isa::kAvx && n >= 8) {
    const float* last = rev + (taps - 1);
    auto unrolled = [&](auto size) {
      Float32RowsUnrolled<kCh, decltype(size)::value>(src, srcStep, dst, dstStep, n, h, win, {last, -1});
    };
    if (WithUnrolledKernel(win, unrolled)) return;
    // Full blocks of two rows know the usual widths 3 and 5 at compile time.
    auto rowsOf = [&](auto kwc) {
      for (int y = 0; y < h; y += 2) {
        const float* top = Advance(src, static_cast<std::ptrdiff_t>(y - win.ay) * srcStep) - win.ax * kCh;
        float* d0 = Advance(dst, static_cast<std::ptrdiff_t>(y) * dstStep);
        float* d1 = Advance(d0, dstStep);
        const bool more = y + 2 < h;
        auto rows = [&](auto rc) {
          constexpr int kR = decltype(rc)::value;
          auto block = [&](auto v, int o) {
            constexpr int kV = decltype(v)::value;
            auto row = [&](int r) { return Advance(top, static_cast<std::ptrdiff_t>(r) * srcStep) + o; };
            if constexpr (kV == 4) {
              PrefetchLines<2>(d0 + o + 64);
              if constexpr (kR == 2) PrefetchLines<2>(d1 + o + 64);
              if (more) {
                PrefetchLines<2>(row(win.kh + 1) + 32);
                PrefetchLines<2>(row(win.kh + 2) + 32);
              }
            }
            __m256 a[kR][kV];
            constexpr int kKw = kV == 4 && kR == 2 ? decltype(kwc)::value : 0;
            Float32Taps<kCh, kV, kR, kKw>(row, last, win.kw, win.kh, a);
            #pragma GCC unroll 8
            for (int q = 0; q < kV; ++q) {
              _mm256_storeu_ps(d0 + o + 8 * q, a[0][q]);
              if constexpr (kR == 2) _mm256_storeu_ps(d1 + o + 8 * q, a[1][q]);
            }
          };
          ForEachVectorBlock<4, 8>(n, 0, block);
        };
        if (y + 1 < h) rows(std::integral_constant<int, 2>{});
        else rows(std::integral_constant<int, 1>{});
      }
    };
    if (win.kw == 3) rowsOf(std::integral_constant<int, 3>{});
    else if (win.kw == 5) rowsOf(std::integral_constant<int, 5>{});
    else rowsOf(std::integral_constant<int, 0>{});
    return;
  }
  const KernelView<float> k = ReversedView(rev, taps);
  for (int y = 0; y < h; ++y) {
    for (int s = 0; s < n; ++s) dst[s] = FloatSum<float, kCh>(src, srcStep, s, win, k);
    src = Advance(src, srcStep);
    dst = Advance(dst, dstStep);
  }
}

// 64f sums, one channel, stored as they are; taps in the caller's order, the first product
// starting the sum. V = 4; blocks of 16; tail: overlapping last vector.
template <Isa kI>
void Float64Rows(const double* src, std::ptrdiff_t srcStep, double* dst, std::ptrdiff_t dstStep, int w, int h,
                 const Window& win, const KernelView<double>& k) {
  for (int y = 0; y < h; ++y) {
    if (kI == Isa::kAvx && w >= 4) {
      auto block = [&](auto v, int o) {
        constexpr int kV = decltype(v)::value;
        __m256d acc[kV] = {};
        for (int i = 0; i < win.kh; ++i) {
          const double* b = Advance(src, static_cast<std::ptrdiff_t>(i - win.ay) * srcStep) + o - win.ax;
          int j = 0;
          if (i == 0) {  // the first product starts the sum
            const __m256d c = _mm256_set1_pd(k.At(0));
            #pragma GCC unroll 8
            for (int q = 0; q < kV; ++q) acc[q] = _mm256_mul_pd(c, _mm256_loadu_pd(b + 4 * q));
            j = 1;
          }
          for (; j < win.kw; ++j) {
            const __m256d c = _mm256_set1_pd(k.At(i * win.kw + j));
            #pragma GCC unroll 8
            for (int q = 0; q < kV; ++q)
              acc[q] = _mm256_add_pd(acc[q], _mm256_mul_pd(c, _mm256_loadu_pd(b + j + 4 * q)));
          }
        }
        #pragma GCC unroll 8
        for (int q = 0; q < kV; ++q) _mm256_storeu_pd(dst + o + 4 * q, acc[q]);
      };
      ForEachVectorBlock<4, 4>(w, 0, block);
    } else {
      for (int s = 0; s < w; ++s) {
        double acc = 0.0;
        for (int i = 0; i < win.kh; ++i) {
          const double* b = Advance(src, static_cast<std::ptrdiff_t>(i - win.ay) * srcStep) + s - win.ax;
          for (int j = 0; j < win.kw; ++j) {
            const double prod = k.At(i * win.kw + j) * b[j];
            acc = (i == 0 && j == 0) ? prod : acc + prod;
          }
        }
        dst[s] = acc;
      }
    }
    src = Advance(src, srcStep);
    dst = Advance(dst, dstStep);
  }
}

}  // namespace tpx::filter
