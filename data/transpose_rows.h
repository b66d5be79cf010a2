// Transposition of elements of kE bytes (a pixel of any layout), by tiles: the tile kernel, the
// tile walk, the large-image path and the square in-place walk. Mirror's diagonal axes use the
// same kernel, the second diagonal with the source walked backwards (kRev).
#pragma once
#include <immintrin.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <tuple>
#include <utility>

#include "core/isa.h"
#include "core/stream.h"
#include "tpxip/types.h"

namespace tpx {

// Edge of the square block a vector kernel transposes in registers; 0: element loop only.
constexpr int TransposeBlockEdge(int e) { return e == 1 ? 16 : e == 2 ? 8 : e == 4 ? 8 : e == 8 ? 4 : 0; }

// One row of a block: kB elements from p (kRev: the kB elements ending at p, reversed).
template <int kE, bool kRev>
inline __m128i LoadBlockRow128(const unsigned char* p) {
  constexpr int kB = TransposeBlockEdge(kE);
  if constexpr (!kRev) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
  } else {
    const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p - (kB - 1) * kE));
    const __m128i rev = kE == 1 ? _mm_setr_epi8(15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0)
                                : _mm_setr_epi8(14, 15, 12, 13, 10, 11, 8, 9, 6, 7, 4, 5, 2, 3, 0, 1);
    return _mm_shuffle_epi8(v, rev);
  }
}
template <int kE, bool kRev>
inline __m256 LoadBlockRow256(const unsigned char* p) {
  constexpr int kB = TransposeBlockEdge(kE);
  if constexpr (!kRev) {
    return _mm256_loadu_ps(reinterpret_cast<const float*>(p));
  } else {
    const __m256 v = _mm256_loadu_ps(reinterpret_cast<const float*>(p - (kB - 1) * kE));
    const __m256 h = _mm256_permute2f128_ps(v, v, 1);  // halves swapped
    return kE == 4 ? _mm256_permute_ps(h, 0x1B) : _mm256_castpd_ps(_mm256_permute_pd(_mm256_castps_pd(h), 0x5));
  }
}

// Bytes of the first three samples of each AC4 pixel of kA-byte samples.
template <int kA>
struct ColorBytes {
  alignas(16) unsigned char m[16];
  constexpr ColorBytes() : m{} {
    for (int i = 0; i < 16; ++i) m[i] = (i / kA) % 4 != 3 ? 0xFF : 0;
  }
};
template <int kA>
inline constexpr ColorBytes<kA> kColorBytes{};

// Stores of a destination row; kA > 0: AC4 with kA-byte samples, the fourth sample of each pixel
// stays as it was.
template <int kA>
inline void StoreBlockRow128(unsigned char* p, __m128i v) {
  if constexpr (kA > 0) {
    v = _mm_blendv_epi8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p)), v,
                        _mm_load_si128(reinterpret_cast<const __m128i*>(kColorBytes<kA>.m)));
  }
  _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v);
}
template <int kA>
inline void StoreBlockRow256(unsigned char* p, __m256 v) {
  if constexpr (kA > 0) {
    StoreBlockRow128<kA>(p, _mm_castps_si128(_mm256_castps256_ps128(v)));
    StoreBlockRow128<kA>(p + 16, _mm_castps_si128(_mm256_extractf128_ps(v, 1)));
  } else {
    _mm256_storeu_ps(reinterpret_cast<float*>(p), v);
  }
}

// Transposes one kB x kB block: d row c = s column c. s points at element (0, 0) of the block,
// rows ss bytes apart (kRev: columns run towards lower addresses). Shuffles only: bits move
// unchanged.
template <int kE, bool kRev, int kA>
inline void TransposeBlock(const unsigned char* s, std::ptrdiff_t ss, unsigned char* d, std::ptrdiff_t ds) {
  if constexpr (kE == 1) {
    __m128i r[16], t[16];
    for (int k = 0; k < 16; ++k) r[k] = LoadBlockRow128<1, kRev>(s + k * ss);
    for (int i = 0; i < 8; ++i) {  // columns 0..7 / 8..15 of row pairs
      t[2 * i] = _mm_unpacklo_epi8(r[2 * i], r[2 * i + 1]);
      t[2 * i + 1] = _mm_unpackhi_epi8(r[2 * i], r[2 * i + 1]);
    }
    for (int i = 0; i < 4; ++i) {  // r[4i + k]: columns 4k..4k+3 of rows 4i..4i+3
      r[4 * i + 0] = _mm_unpacklo_epi16(t[4 * i], t[4 * i + 2]);
      r[4 * i + 1] = _mm_unpackhi_epi16(t[4 * i], t[4 * i + 2]);
      r[4 * i + 2] = _mm_unpacklo_epi16(t[4 * i + 1], t[4 * i + 3]);
      r[4 * i + 3] = _mm_unpackhi_epi16(t[4 * i + 1], t[4 * i + 3]);
    }
    for (int i = 0; i < 2; ++i)  // t[8i + j]: columns 2j, 2j+1 of rows 8i..8i+7
      for (int k = 0; k < 4; ++k) {
        t[8 * i + 2 * k] = _mm_unpacklo_epi32(r[8 * i + k], r[8 * i + 4 + k]);
        t[8 * i + 2 * k + 1] = _mm_unpackhi_epi32(r[8 * i + k], r[8 * i + 4 + k]);
      }
    for (int j = 0; j < 8; ++j) {
      StoreBlockRow128<kA>(d + (2 * j) * ds, _mm_unpacklo_epi64(t[j], t[8 + j]));
      StoreBlockRow128<kA>(d + (2 * j + 1) * ds, _mm_unpackhi_epi64(t[j], t[8 + j]));
    }
  } else if constexpr (kE == 2) {
    __m128i r[8], t[8];
    for (int k = 0; k < 8; ++k) r[k] = LoadBlockRow128<2, kRev>(s + k * ss);
    for (int i = 0; i < 4; ++i) {  // columns 0..3 / 4..7 of row pairs
      t[2 * i] = _mm_unpacklo_epi16(r[2 * i], r[2 * i + 1]);
      t[2 * i + 1] = _mm_unpackhi_epi16(r[2 * i], r[2 * i + 1]);
    }
    for (int i = 0; i < 2; ++i) {  // r[4i + k]: columns 2k, 2k+1 of rows 4i..4i+3
      r[4 * i + 0] = _mm_unpacklo_epi32(t[4 * i], t[4 * i + 2]);
      r[4 * i + 1] = _mm_unpackhi_epi32(t[4 * i], t[4 * i + 2]);
      r[4 * i + 2] = _mm_unpacklo_epi32(t[4 * i + 1], t[4 * i + 3]);
      r[4 * i + 3] = _mm_unpackhi_epi32(t[4 * i + 1], t[4 * i + 3]);
    }
    for (int k = 0; k < 4; ++k) {
      StoreBlockRow128<kA>(d + (2 * k) * ds, _mm_unpacklo_epi64(r[k], r[4 + k]));
      StoreBlockRow128<kA>(d + (2 * k + 1) * ds, _mm_unpackhi_epi64(r[k], r[4 + k]));
    }
  } else if constexpr (kE == 4) {
    __m256 r[8], t[8];
    for (int k = 0; k < 8; ++k) r[k] = LoadBlockRow256<4, kRev>(s + k * ss);
    for (int i = 0; i < 4; ++i) {
      t[2 * i] = _mm256_unpacklo_ps(r[2 * i], r[2 * i + 1]);
      t[2 * i + 1] = _mm256_unpackhi_ps(r[2 * i], r[2 * i + 1]);
    }
    for (int i = 0; i < 2; ++i) {  // r[4i + k]: column k (and k + 4 above) of rows 4i..4i+3
      r[4 * i + 0] = _mm256_shuffle_ps(t[4 * i], t[4 * i + 2], _MM_SHUFFLE(1, 0, 1, 0));
      r[4 * i + 1] = _mm256_shuffle_ps(t[4 * i], t[4 * i + 2], _MM_SHUFFLE(3, 2, 3, 2));
      r[4 * i + 2] = _mm256_shuffle_ps(t[4 * i + 1], t[4 * i + 3], _MM_SHUFFLE(1, 0, 1, 0));
      r[4 * i + 3] = _mm256_shuffle_ps(t[4 * i + 1], t[4 * i + 3], _MM_SHUFFLE(3, 2, 3, 2));
    }
    for (int k = 0; k < 4; ++k) {
      StoreBlockRow256<kA>(d + k * ds, _mm256_permute2f128_ps(r[k], r[4 + k], 0x20));
      StoreBlockRow256<kA>(d + (k + 4) * ds, _mm256_permute2f128_ps(r[k], r[4 + k], 0x31));
    }
  } else if constexpr (kE == 8) {
    __m256d r[4];
    for (int k = 0; k < 4; ++k) r[k] = _mm256_castps_pd(LoadBlockRow256<8, kRev>(s + k * ss));
    const __m256d t0 = _mm256_unpacklo_pd(r[0], r[1]), t1 = _mm256_unpackhi_pd(r[0], r[1]);
    const __m256d t2 = _mm256_unpacklo_pd(r[2], r[3]), t3 = _mm256_unpackhi_pd(r[2], r[3]);
    StoreBlockRow256<kA>(d, _mm256_castpd_ps(_mm256_permute2f128_pd(t0, t2, 0x20)));
    StoreBlockRow256<kA>(d + ds, _mm256_castpd_ps(_mm256_permute2f128_pd(t1, t3, 0x20)));
    StoreBlockRow256<kA>(d + 2 * ds, _mm256_castpd_ps(_mm256_permute2f128_pd(t0, t2, 0x31)));
    StoreBlockRow256<kA>(d + 3 * ds, _mm256_castpd_ps(_mm256_permute2f128_pd(t1, t3, 0x31)));
  }
}

// The tile a walk visits after the current one: its corner elements as in TransposeTile and its
// extents. rows == 0: none.
struct NextTile {
  const unsigned char* s = nullptr;
  const unsigned char* d = nullptr;
  int rows = 0, cols = 0;
};

// Asks for the cache lines of the n bytes from p (n >= 1) into the second-level cache, which
// keeps the first level for the tile at work; a prefetch never faults or writes.
inline void PrefetchBytes(const unsigned char* p, std::ptrdiff_t n) {
  const std::uintptr_t first = reinterpret_cast<std::uintptr_t>(p) & ~std::uintptr_t{63};
  const std::uintptr_t last = reinterpret_cast<std::uintptr_t>(p) + static_cast<std::uintptr_t>(n - 1);
  for (std::uintptr_t a = first; a <= last; a += 64) _mm_prefetch(reinterpret_cast<const char*>(a), _MM_HINT_T1);
}

// d(c, r) = s(r, c) for r < rows, c < cols. Element (r, c) of s lies at s + r*ss + c*kE (kRev:
// s + r*ss - c*kE), element (c, r) of d at d + c*ds + r*kE. Whole blocks by the vector kernel,
// the edges of the tile by the element loop. kA > 0: AC4 pixels of kA-byte samples, whose
// destination alpha stays. `next`: while the blocks go, the source and destination rows of the
// next tile are fetched a few rows a block; a tile's rows lie far apart, so neither the hardware
// prefetcher nor the out-of-order window would otherwise overlap their misses.
template <Isa kI, int kE, bool kRev, int kA = 0>
inline void TransposeTile(const unsigned char* s, std::ptrdiff_t ss, unsigned char* d, std::ptrdiff_t ds,
                          int rows, int cols, NextTile next = {}) {
  auto src = [&](int r, int c) { return s + r * ss + (kRev ? -c : c) * static_cast<std::ptrdiff_t>(kE); };
  auto dst = [&](int c, int r) { return d + c * ds + r * static_cast<std::ptrdiff_t>(kE); };
  auto elements = [&](int r0, int r1, int c0, int c1) {
    for (int r = r0; r < r1; ++r)
      for (int c = c0; c < c1; ++c) std::memcpy(dst(c, r), src(r, c), kA > 0 ? 3 * kA : kE);
  };
  constexpr int kB = TransposeBlockEdge(kE);
  if constexpr (kI == Isa::kAvx && kB > 0) {
    const int rb = rows - rows % kB, cb = cols - cols % kB;
    // Rows of the next tile fetched per block: its source rows and its destination rows.
    const int blocks = (rb / kB) * (cb / kB);
    const int perS = blocks > 0 ? (next.rows + blocks - 1) / blocks : 0;
    const int perD = blocks > 0 ? (next.cols + blocks - 1) / blocks : 0;
    const std::ptrdiff_t rowS = static_cast<std::ptrdiff_t>(next.cols) * kE, rowD = static_cast<std::ptrdiff_t>(next.rows) * kE;
    int fs = 0, fd = 0;  // next source row, next destination row to fetch
    // Blocks go down the tile's columns: the destination rows of one column of blocks are
    // written from left to right while the source is read down the column.
    for (int c = 0; c < cb; c += kB)
      for (int r = 0; r < rb; r += kB) {
        for (int k = 0; k < perS && fs < next.rows; ++k, ++fs)
          PrefetchBytes(next.s + fs * ss - (kRev ? rowS - kE : 0), rowS);
        for (int k = 0; k < perD && fd < next.cols; ++k, ++fd) PrefetchBytes(next.d + fd * ds, rowD);
        TransposeBlock<kE, kRev, kA>(src(r, c), ss, dst(c, r), ds);
      }
    elements(0, rb, cb, cols);
    elements(rb, rows, 0, cols);
  } else {
    elements(0, rows, 0, cols);
  }
}

// The tile walk: edge min(width, height, 64), columns of tiles from the left, tiles from the top,
// so that destination rows fill in order; edge tiles have the remainder as extents; each tile
// fetches the lines of the one after it.
// s is element (0, 0) as in TransposeTile.
template <int kE, bool kRev, int kA = 0, Isa kI = kIsa>
inline void TransposeTiles(const unsigned char* s, std::ptrdiff_t ss, unsigned char* d, std::ptrdiff_t ds,
                           TpxSize roi) {
  int t = roi.width < roi.height ? roi.width : roi.height;
  if (t > 64) t = 64;
  auto at = [&](int ty, int tx, int* th, int* tw) {
    *th = roi.height - ty < t ? roi.height - ty : t;
    *tw = roi.width - tx < t ? roi.width - tx : t;
    return std::pair{s + ty * ss + (kRev ? -tx : tx) * static_cast<std::ptrdiff_t>(kE),
                     d + tx * ds + ty * static_cast<std::ptrdiff_t>(kE)};
  };
  for (int tx = 0; tx < roi.width; tx += t)
    for (int ty = 0; ty < roi.height; ty += t) {
      int th, tw;
      const auto [ts, td] = at(ty, tx, &th, &tw);
      NextTile next;
      const int nx = ty + t < roi.height ? tx : tx + t, ny = ty + t < roi.height ? ty + t : 0;
      if (nx < roi.width) std::tie(next.s, next.d) = at(ny, nx, &next.rows, &next.cols);
      TransposeTile<kI, kE, kRev, kA>(ts, ss, td, ds, th, tw, next);
    }
}

// The large-image path: extents multiples of 64 and destination rows on 64-byte boundaries.
// Each 64 x 64 tile is transposed in slabs into a stack block, whose rows (whole cache lines of
// the destination) go out with streaming stores; one fence ends the call.
template <int kE, Isa kI = kIsa>
inline void TransposeLarge(const unsigned char* s, std::ptrdiff_t ss, unsigned char* d, std::ptrdiff_t ds,
                           TpxSize roi) {
  constexpr int kSlab = kE <= 4 ? 64 : kE <= 8 ? 32 : 16;  // destination rows a slab: at most 16 KiB
  constexpr std::ptrdiff_t kRow = 64 * kE;
  alignas(64) unsigned char block[kSlab * kRow];
  for (int ty = 0; ty < roi.height; ty += 64)
    for (int tx = 0; tx < roi.width; tx += 64)
      for (int k = 0; k < 64; k += kSlab) {
        TransposeTile<kI, kE, false>(s + ty * ss + (tx + k) * static_cast<std::ptrdiff_t>(kE), ss, block, kRow, 64, kSlab);
        for (int j = 0; j < kSlab; ++j)
          CopyBytes<kI, true>(block + j * kRow, d + (tx + k + j) * ds + ty * static_cast<std::ptrdiff_t>(kE), kRow);
      }
  StreamFence();
}

// Out-of-place transpose: the large-image path where the image is large, aligned and does not
// fit the cache, the tile walk otherwise. The query's result is not tested: the size starts at
// 0, so a failed query counts as a size of 0.
template <int kE, Isa kI = kIsa>
inline void TransposeImage(const unsigned char* s, std::ptrdiff_t ss, unsigned char* d, std::ptrdiff_t ds,
                           TpxSize roi, CacheSizeQuery query = tpxGetMaxCacheSizeB) {
  const bool aligned = roi.width >= 1025 && roi.width % 64 == 0 && roi.height % 64 == 0 && ss % 16 == 0 &&
                       reinterpret_cast<std::uintptr_t>(s) % 16 == 0 && ds % 64 == 0 &&
                       reinterpret_cast<std::uintptr_t>(d) % 64 == 0;
  if (aligned) {
    int cache = 0;
    query(&cache);
    if (static_cast<long long>(roi.height) * roi.width * 2 > cache) {
      TransposeLarge<kE, kI>(s, ss, d, ds, roi);
      return;
    }
  }
  TransposeTiles<kE, false, 0, kI>(s, ss, d, ds, roi);
}

// In-place transpose of an n x n image: tile edge min(n, 32). A diagonal tile goes through a
// stack copy of itself; an off-diagonal pair is swapped through a stack copy of its upper tile.
template <int kE, Isa kI = kIsa>
inline void TransposeSquareInPlace(unsigned char* p, std::ptrdiff_t step, int n) {
  const int t = n < 32 ? n : 32;
  constexpr std::ptrdiff_t kRow = 32 * kE;
  alignas(32) unsigned char block[32 * kRow];
  auto at = [&](int r, int c) { return p + r * step + c * static_cast<std::ptrdiff_t>(kE); };
  auto save = [&](int r, int c, int rows, int cols) {
    for (int k = 0; k < rows; ++k) CopyBytes<kI>(at(r + k, c), block + k * kRow, static_cast<std::size_t>(cols) * kE);
  };
  for (int i = 0; i < n; i += t) {
    const int ti = n - i < t ? n - i : t;
    save(i, i, ti, ti);
    TransposeTile<kI, kE, false>(block, kRow, at(i, i), step, ti, ti);
    for (int j = i + t; j < n; j += t) {
      const int tj = n - j < t ? n - j : t;
      save(i, j, ti, tj);                                                 // upper tile, ti x tj
      TransposeTile<kI, kE, false>(at(j, i), step, at(i, j), step, tj, ti);  // lower into upper
      TransposeTile<kI, kE, false>(block, kRow, at(j, i), step, ti, tj);     // saved upper into lower
    }
  }
}

}  // namespace tpx
