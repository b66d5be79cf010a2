// Border synthesis, shared by the border copies and by every family that extends an image
// around its region (the filter engine's strips, resize and warp edges).
//
// The index rules: a line (row or column) of n >= 1 source elements is read at any virtual
// index i, negative or past its end:
//   Repl        i clamped to 0 .. n-1
//   Wrap        i modulo n, into 0 .. n-1; the border may be many periods wide
//   Mirror      period p = 2n - 2, m = i mod p, sx = m < n ? m : p - m  (... 2 1 0 1 2 ...);
//               a line of one element reads element 0 everywhere
//   MirrorEdge  period p = 2n, m = i mod p, sx = m < n ? m : p - 1 - m  (... 1 0 0 1 ...)
//   Const       the caller's value outside 0 .. n-1;  Transp  nothing written outside
//
// The API, from the outside in:
//   BorderIndex(kind, i, n)          the source element virtual index i reads, or -1 where the
//                                    kind reads none (Const and Transp outside the line).
//   ForEachBorderRun(kind, first, count, n, emit)
//                                    cuts the virtual range [first, first + count) into runs
//                                    that read the source forward, backward, one element
//                                    repeated, or the value (one division for the phase).
//   BorderRowPlan MakeBorderRowPlan(kind, w, left, right)
//                                    once per call: the runs of each side of a row.
//   ExtendRow<T, kL>(plan, src, dst, value)
//                                    writes the left + w + right pixels at dst from the w pixels
//                                    at src: left side, the row itself (skipped where src
//                                    already stands at dst + left), right side.
//   ExtendImage<T, kL>(kind, src, srcStep, w, h, dst, dstStep, {left, top, right, bottom},
//                      value, stream)
//                                    the whole extended image at dst, in this order: each source
//                                    row with its sides, top to bottom; then the rows below,
//                                    each a byte copy of the destination row the index rule
//                                    names (Const: filled); then the rows above likewise. Top
//                                    and bottom rows are whole-row copies of finished rows, so
//                                    corners need no rule of their own.
// AC4 (kL == Layout::AC4): side pixels and Const rows write the first three samples and leave
// the destination's alpha; the row itself and the copied top and bottom rows move all four.
#pragma once
#include <immintrin.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "core/border_type.h"
#include "core/isa.h"
#include "core/layout.h"
#include "core/region.h"
#include "core/rows.h"
#include "core/stream.h"

namespace tpx {

// ---- Index rules ------------------------------------------------------------------------------
inline long long FloorMod(long long i, long long p) {
  const long long m = i % p;
  return m < 0 ? m + p : m;
}

// The kinds that read the source outside the line; Const and Transp do not.
constexpr bool BorderReadsSource(BorderKind k) {
  return k == BorderKind::kRepl || k == BorderKind::kWrap || k == BorderKind::kMirror ||
         k == BorderKind::kMirrorEdge;
}

// Period of the pattern outside the line; 0 where it has none (Repl, Const, Transp, and every
// kind on a line of one element, which then reads that element everywhere).
inline long long BorderPeriod(BorderKind kind, long long n) {
  if (n == 1) return 0;
  switch (kind) {
    case BorderKind::kWrap: return n;
    case BorderKind::kMirror: return 2 * n - 2;
    case BorderKind::kMirrorEdge: return 2 * n;
    default: return 0;
  }
}

inline long long BorderIndex(BorderKind kind, long long i, long long n) {
  if (i >= 0 && i < n) return i;
  if (!BorderReadsSource(kind)) return -1;
  const long long p = BorderPeriod(kind, n);
  if (p == 0) return i < 0 ? 0 : n - 1;  // Repl, or a line of one element
  const long long m = FloorMod(i, p);
  if (kind == BorderKind::kWrap) return m;
  if (kind == BorderKind::kMirror) return m < n ? m : p - m;
  return m < n ? m : p - 1 - m;  // MirrorEdge
}

// ---- Runs -------------------------------------------------------------------------------------
enum class RunOp : std::uint8_t {
  kForward,   // elements src, src + 1, ...
  kBackward,  // elements src, src - 1, ...
  kRepeat,    // element src, len times
  kValue,     // the caller's value
  kKeep,      // nothing written
};

struct BorderRun {
  long long at;   // offset of the run's first element from the start of the range
  long long src;  // first source element read
  long long len;
  RunOp op;
};

// emit(BorderRun) for the runs that cover [first, first + count), in increasing order.
template <class Emit>
inline void ForEachBorderRun(BorderKind kind, long long first, long long count, long long n, Emit&& emit) {
  if (count <= 0) return;
  const long long p = BorderPeriod(kind, n);
  long long at = 0;
  if (p == 0) {  // three parts: before the line, in it, after it
    const RunOp outside = BorderReadsSource(kind) ? RunOp::kRepeat
                        : kind == BorderKind::kConst ? RunOp::kValue : RunOp::kKeep;
    long long i = first;
    const long long end = first + count;
    if (i < 0) {
      const long long len = (end < 0 ? end : 0) - i;
      emit(BorderRun{at, 0, len, outside});
      at += len;
      i += len;
    }
    if (i < end && i < n) {
      const long long len = (end < n ? end : n) - i;
      emit(BorderRun{at, i, len, RunOp::kForward});
      at += len;
      i += len;
    }
    if (i < end) emit(BorderRun{at, n - 1, end - i, outside});
    return;
  }
  long long m = FloorMod(first, p);  // the one division; from here on the phase is walked
  while (at < count) {
    const long long rest = count - at;
    long long len, src;
    RunOp op;
    if (m < n) {
      op = RunOp::kForward;
      src = m;
      len = n - m;
    } else {  // Mirror: m in [n, 2n-2) reads p - m; MirrorEdge: m in [n, 2n) reads p - 1 - m
      op = RunOp::kBackward;
      src = kind == BorderKind::kMirror ? p - m : p - 1 - m;
      len = p - m;
    }
    if (len > rest) len = rest;
    emit(BorderRun{at, src, len, op});
    at += len;
    m += len;
    if (m >= p) m -= p;
  }
}

// ---- Pixel kernels ----------------------------------------------------------------------------
// Pixels are kP bytes (a sample, or a C3/C4 pixel of any type); only bytes are moved.

// The 48-byte period of a repeated kP-byte pixel as three vectors: vk holds bytes 16k..16k+15
// of the repeated pattern. kP divides 48.
template <int kP>
struct RepeatMasks {
  unsigned char m[3][16];
  constexpr RepeatMasks() : m() {
    for (int k = 0; k < 3; ++k)
      for (int j = 0; j < 16; ++j) m[k][j] = static_cast<unsigned char>((16 * k + j) % kP);
  }
};
template <int kP>
inline constexpr RepeatMasks<kP> kRepeatMasks{};

template <int kP>
inline void RepeatVectors(const unsigned char* px, __m128i v[3]) {
  __m128i x;
  if constexpr (kP == 1) {
    x = _mm_set1_epi8(static_cast<char>(px[0]));
  } else if constexpr (kP == 2) {
    std::uint16_t u;
    std::memcpy(&u, px, 2);
    x = _mm_set1_epi16(static_cast<short>(u));
  } else if constexpr (kP == 4) {
    std::uint32_t u;
    std::memcpy(&u, px, 4);
    x = _mm_set1_epi32(static_cast<int>(u));
  } else if constexpr (kP == 8) {
    std::uint64_t u;
    std::memcpy(&u, px, 8);
    x = _mm_set1_epi64x(static_cast<long long>(u));
  } else if constexpr (kP == 16) {
    x = _mm_loadu_si128(reinterpret_cast<const __m128i*>(px));
  } else {  // 3, 6, 12: gather the pixel without reading past it, then spread it by shuffles
    std::uint64_t lo = 0;
    std::uint32_t hi = 0;
    if constexpr (kP == 3) {
      std::uint16_t a;
      std::memcpy(&a, px, 2);
      lo = a | (static_cast<std::uint64_t>(px[2]) << 16);
    } else if constexpr (kP == 6) {
      std::uint32_t a;
      std::uint16_t b;
      std::memcpy(&a, px, 4);
      std::memcpy(&b, px + 4, 2);
      lo = a | (static_cast<std::uint64_t>(b) << 32);
    } else {
      static_assert(kP == 12, "pixel sizes are 1, 2, 3, 4, 6, 8, 12 or 16 bytes");
      std::memcpy(&lo, px, 8);
      std::memcpy(&hi, px + 8, 4);
    }
    const __m128i raw = _mm_insert_epi32(_mm_cvtsi64_si128(static_cast<long long>(lo)), static_cast<int>(hi), 2);
    for (int k = 0; k < 3; ++k)
      v[k] = _mm_shuffle_epi8(raw, _mm_loadu_si128(reinterpret_cast<const __m128i*>(kRepeatMasks<kP>.m[k])));
    return;
  }
  v[0] = v[1] = v[2] = x;
}

// d[k] = px for k < count (pixels). V = 16 bytes, three stores per 48-byte period. Tail:
// overlapping last vector where count * kP >= 16 (its phase is that of v[2]: n - 16 = 32
// mod 48 = 32 mod kP), scalar pixels below that.
template <int kP, Isa kI>
inline void RepeatPixel(const unsigned char* px, unsigned char* d, long long count) {
  const long long n = count * kP;
  if constexpr (kI == Isa::kAvx) {
    if (n >= 16) {
      __m128i v[3];
      RepeatVectors<kP>(px, v);
      auto st = [d](long long k, __m128i x) { _mm_storeu_si128(reinterpret_cast<__m128i*>(d + k), x); };
      long long k = 0;
      for (; k + 48 <= n; k += 48) {
        st(k, v[0]);
        st(k + 16, v[1]);
        st(k + 32, v[2]);
      }
      if (k + 16 <= n) {
        st(k, v[0]);
        k += 16;
        if (k + 16 <= n) {
          st(k, v[1]);
          k += 16;
        }
      }
      if (k < n) st(n - 16, v[2]);
      return;
    }
  }
  for (long long k = 0; k < count; ++k) std::memcpy(d + k * kP, px, kP);
}

// Reverses the order of the kP-byte pixels of one vector.
template <int kP>
inline __m128i ReverseVector(__m128i x) {
  if constexpr (kP == 1) {
    return _mm_shuffle_epi8(x, _mm_setr_epi8(15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0));
  } else if constexpr (kP == 2) {
    return _mm_shuffle_epi8(x, _mm_setr_epi8(14, 15, 12, 13, 10, 11, 8, 9, 6, 7, 4, 5, 2, 3, 0, 1));
  } else if constexpr (kP == 4) {
    return _mm_shuffle_epi32(x, 0x1B);
  } else {
    static_assert(kP == 8, "vector reversal serves pixels of 1, 2, 4 and 8 bytes");
    return _mm_shuffle_epi32(x, 0x4E);
  }
}

// d[k] = pixel (first - k) for k < count, where `first` points at the pixel read first and the
// pixels before it belong to the run. V = 16 bytes (byte shuffles) for kP of 1, 2, 4, 8.
// Tail: overlapping last vector where count >= 16 / kP; scalar pixels below that and for the
// pixel sizes that do not divide 16. d must not overlap the pixels read.
template <int kP, Isa kI>
inline void ReversePixels(const unsigned char* first, unsigned char* d, long long count) {
  if constexpr (kI == Isa::kAvx && (kP == 1 || kP == 2 || kP == 4 || kP == 8)) {
    constexpr long long kV = 16 / kP;
    if (count >= kV) {
      auto ld = [first](long long k) {  // the vector whose last pixel is pixel (first - k)
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(first - (k + kV - 1) * kP));
      };
      long long k = 0;
      for (; k + 2 * kV <= count; k += 2 * kV) {
        const __m128i a = ReverseVector<kP>(ld(k)), b = ReverseVector<kP>(ld(k + kV));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(d + k * kP), a);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(d + (k + kV) * kP), b);
      }
      if (k + kV <= count) {
        _mm_storeu_si128(reinterpret_cast<__m128i*>(d + k * kP), ReverseVector<kP>(ld(k)));
        k += kV;
      }
      if (k < count)
        _mm_storeu_si128(reinterpret_cast<__m128i*>(d + (count - kV) * kP), ReverseVector<kP>(ld(count - kV)));
      return;
    }
  }
  for (long long k = 0; k < count; ++k) std::memcpy(d + k * kP, first - k * kP, kP);
}

// ---- The caller's value -------------------------------------------------------------------------
// One pixel of the constant, kept with its expanded fill pattern so that each call builds it once.
// AC4 takes three samples; the fourth is never written.
template <class T, Layout kL>
struct BorderValue {
  T pixel[4] = {};
  FillPattern pattern;
  explicit BorderValue(const T* v) : pattern(Load(v, pixel), static_cast<int>(sizeof(T)) * Stride(kL)) {}

 private:
  static const T* Load(const T* v, T* px) {
    for (int c = 0; c < Processed(kL); ++c) px[c] = v[c];
    return px;
  }
};

// ---- Rows -------------------------------------------------------------------------------------
inline constexpr int kBorderMaxSideRuns = 3;  // a window of at most one period meets <= 3 runs

// The sides of a row, prepared once per call. Each side is filled in two parts: the `near`
// pixels next to the row from the runs, then, for periodic kinds where the side is wider than
// a period, the rest by copies of what is filled already (a whole number of periods away).
struct BorderSide {
  long long width = 0;
  long long near = 0;
  int runs = 0;
  BorderRun run[kBorderMaxSideRuns] = {};
};
struct BorderRowPlan {
  long long w = 0;
  BorderSide left, right;
};

inline BorderSide MakeBorderSide(BorderKind kind, long long first, long long width, long long n) {
  BorderSide s;
  s.width = width;
  const long long p = BorderPeriod(kind, n);
  s.near = (p != 0 && width > p) ? p : width;
  const long long from = first < 0 ? -s.near : first;  // the near part touches the row
  ForEachBorderRun(kind, from, s.near, n, [&s](BorderRun r) {
    if (s.runs < kBorderMaxSideRuns) s.run[s.runs++] = r;
  });
  return s;
}

inline BorderRowPlan MakeBorderRowPlan(BorderKind kind, long long w, long long left, long long right) {
  BorderRowPlan plan;
  plan.w = w;
  plan.left = MakeBorderSide(kind, -left, left, w);
  plan.right = MakeBorderSide(kind, w, right, w);
  return plan;
}

// AlphaKeepRow over a count of pixels of any size (it takes an int).
template <Isa kI, class T, bool kFromRow>
inline void AlphaKeepPixels(const T* src, T* d, long long count) {
  constexpr long long kChunk = 1LL << 30;
  for (long long done = 0; done < count; done += kChunk) {
    const long long n = count - done < kChunk ? count - done : kChunk;
    AlphaKeepRow<kI, T, kFromRow>(kFromRow ? src + done * 4 : src, d + done * 4, static_cast<int>(n));
  }
}

// Copies `count` pixels; AC4 moves the first three samples of each and keeps the alpha.
template <class T, Layout kL, Isa kI, bool kStream = false>
inline void CopyPixels(const T* s, T* d, long long count) {
  if constexpr (KeepsAlpha(kL)) {
    AlphaKeepPixels<kI, T, true>(s, d, count);
  } else {
    CopyBytes<kI, kStream>(s, d, static_cast<std::size_t>(count) * sizeof(T) * Stride(kL));
  }
}

// Writes `count` pixels of the value at d.
template <class T, Layout kL, Isa kI, bool kStream = false>
inline void FillPixels(const BorderValue<T, kL>& value, T* d, long long count) {
  if constexpr (KeepsAlpha(kL)) {
    AlphaKeepPixels<kI, T, false>(value.pixel, d, count);
  } else {
    const std::size_t n = static_cast<std::size_t>(count) * sizeof(T) * Stride(kL);
    // The pattern block is itself 128 bytes of the value from phase 0: a short side is a copy
    // of it, which has no scalar tail; longer fills go through the row fill.
    if (!kStream && n <= sizeof(value.pattern.block))
      CopyBytes<kI>(value.pattern.block, d, n);
    else
      FillBytes<kI, kStream>(d, n, value.pattern);
  }
}

// One run of a side, at d, reading the source row `row`.
template <class T, Layout kL, Isa kI>
inline void ExecRun(const BorderRun& r, const T* row, T* d, const BorderValue<T, kL>* value) {
  constexpr int kS = Stride(kL);
  constexpr int kP = static_cast<int>(sizeof(T)) * kS;
  const T* s = row + r.src * kS;
  switch (r.op) {
    case RunOp::kForward:
      CopyPixels<T, kL, kI>(s, d, r.len);
      break;
    case RunOp::kBackward:
      if constexpr (KeepsAlpha(kL)) {
        for (long long k = 0; k < r.len; ++k)
          for (int c = 0; c < 3; ++c) d[k * 4 + c] = s[-k * 4 + c];
      } else {
        ReversePixels<kP, kI>(reinterpret_cast<const unsigned char*>(s), reinterpret_cast<unsigned char*>(d), r.len);
      }
      break;
    case RunOp::kRepeat:
      if constexpr (KeepsAlpha(kL))
        AlphaKeepPixels<kI, T, false>(s, d, r.len);
      else
        RepeatPixel<kP, kI>(reinterpret_cast<const unsigned char*>(s), reinterpret_cast<unsigned char*>(d), r.len);
      break;
    case RunOp::kValue:
      FillPixels<T, kL, kI>(*value, d, r.len);
      break;
    case RunOp::kKeep:
      break;
  }
}

// Left + w + right pixels at dst from the w pixels at src: the left side, the row, the right
// side. `value` is read by Const only. The row is not moved where it already stands at its
// place (in-place forms).
template <class T, Layout kL, Isa kI = kIsa, bool kStream = false>
inline void ExtendRow(const BorderRowPlan& plan, const T* src, T* dst, const BorderValue<T, kL>* value) {
  constexpr int kS = Stride(kL);
  const BorderSide& L = plan.left;
  const BorderSide& R = plan.right;
  // Left: the near part ends at the row; further out, each block is a copy of the filled part
  // one filled width (a whole number of periods) to its right.
  T* nearL = dst + (L.width - L.near) * kS;
  for (int k = 0; k < L.runs; ++k) ExecRun<T, kL, kI>(L.run[k], src, nearL + L.run[k].at * kS, value);
  for (long long done = L.near; done < L.width;) {
    const long long len = done < L.width - done ? done : L.width - done;
    CopyPixels<T, kL, kI>(dst + (L.width - len) * kS, dst + (L.width - done - len) * kS, len);
    done += len;
  }
  T* row = dst + L.width * kS;
  if (row != src) CopyBytes<kI, kStream>(src, row, static_cast<std::size_t>(plan.w) * sizeof(T) * kS);
  T* right = row + plan.w * kS;
  for (int k = 0; k < R.runs; ++k) ExecRun<T, kL, kI>(R.run[k], src, right + R.run[k].at * kS, value);
  for (long long done = R.near; done < R.width;) {
    const long long len = done < R.width - done ? done : R.width - done;
    CopyPixels<T, kL, kI>(right, right + done * kS, len);
    done += len;
  }
}

// ---- Whole image ------------------------------------------------------------------------------
struct BorderExtent {
  long long left, top, right, bottom;
};

// Rows [first, first + count) of the destination (virtual rows counted from the source's first
// row) as copies of finished rows or fills, by the index rule over the source's h rows.
template <class T, Layout kL, Isa kI, bool kStream>
inline void ExtendRows(BorderKind kind, long long first, long long count, long long h, T* rowZero,
                       std::ptrdiff_t dstStep, std::size_t rowBytes, long long rowPixels,
                       const BorderValue<T, kL>* value) {
  auto rowAt = [&](long long v) { return Advance(rowZero, static_cast<std::ptrdiff_t>(v * dstStep)); };
  ForEachBorderRun(kind, first, count, h, [&](const BorderRun& r) {
    T* out = rowAt(first + r.at);
    if (r.op == RunOp::kKeep) return;
    if (r.op == RunOp::kValue) {
      // Rows that follow each other without a gap are one long fill.
      if (!KeepsAlpha(kL) && static_cast<std::size_t>(dstStep) == rowBytes) {
        FillPixels<T, kL, kI, kStream>(*value, out, r.len * rowPixels);
        return;
      }
      for (long long k = 0; k < r.len; ++k) FillPixels<T, kL, kI, kStream>(*value, rowAt(first + r.at + k), rowPixels);
      return;
    }
    for (long long k = 0; k < r.len; ++k) {
      const long long from = r.op == RunOp::kForward ? r.src + k : r.op == RunOp::kBackward ? r.src - k : r.src;
      CopyBytes<kI, kStream>(rowAt(from), Advance(out, static_cast<std::ptrdiff_t>(k * dstStep)), rowBytes);
    }
  });
}

template <class T, Layout kL, Isa kI, bool kStream>
inline void ExtendImageWith(BorderKind kind, const T* src, std::ptrdiff_t srcStep, long long w, long long h,
                            T* dst, std::ptrdiff_t dstStep, BorderExtent b, const BorderValue<T, kL>* value) {
  const BorderRowPlan plan = MakeBorderRowPlan(kind, w, b.left, b.right);
  T* rowZero = Advance(dst, static_cast<std::ptrdiff_t>(b.top * dstStep));
  for (long long y = 0; y < h; ++y)
    ExtendRow<T, kL, kI, kStream>(plan, Advance(src, static_cast<std::ptrdiff_t>(y * srcStep)),
                                  Advance(rowZero, static_cast<std::ptrdiff_t>(y * dstStep)), value);
  const long long rowPixels = b.left + w + b.right;
  const std::size_t rowBytes = static_cast<std::size_t>(rowPixels) * sizeof(T) * Stride(kL);
  ExtendRows<T, kL, kI, kStream>(kind, h, b.bottom, h, rowZero, dstStep, rowBytes, rowPixels, value);
  ExtendRows<T, kL, kI, kStream>(kind, -b.top, b.top, h, rowZero, dstStep, rowBytes, rowPixels, value);
}

// The whole extended image: dst is its first pixel (top-left corner of the border), the source
// stands at (left, top) of it or elsewhere. `stream` writes the large copies and fills with
// non-temporal stores and ends on a fence.
template <class T, Layout kL, Isa kI = kIsa>
inline void ExtendImage(BorderKind kind, const T* src, std::ptrdiff_t srcStep, long long w, long long h,
                        T* dst, std::ptrdiff_t dstStep, BorderExtent b, const BorderValue<T, kL>* value,
                        bool stream = false) {
  if (stream) {
    ExtendImageWith<T, kL, kI, true>(kind, src, srcStep, w, h, dst, dstStep, b, value);
    StreamFence();
  } else {
    ExtendImageWith<T, kL, kI, false>(kind, src, srcStep, w, h, dst, dstStep, b, value);
  }
}

}  // namespace tpx
