// Byte counts of the general filter: the spec record and the work buffer (the border engine's
// scratch plus the row routines' work area). Callers allocate by these numbers, so they are
// exact behaviour; values are taken modulo 2^32 as the formulas say.
#pragma once
#include <cstdint>

#include "filter/border_engine.h"

namespace tpx::filter {

using FeatureQuery = int (*)(unsigned long long mask);

// R(x): 0 stays 0, anything else gets the alignment slack and is rounded to 64.
inline std::uint32_t WorkTail(std::uint32_t x) { return x ? (x + 191u) & ~63u : 0u; }

// Work area of the row routines for 8u/16u/16s/32f data, by the effective kernel type
// (13 float, 7 16-bit). `wide`: the processor has 512-bit rows, which for 8u with a float
// kernel want room for the kernel in groups of four.
inline std::uint32_t WorkBytes(int kw, int kh, int W, int dataType, int eff, int ch, bool wide) {
  using U = std::uint32_t;
  const U w = static_cast<U>(W), kwu = static_cast<U>(kw), khu = static_cast<U>(kh);
  const U kk = kwu * khu;
  if (eff == 13) {
    U v = 0;
    bool have = true;
    switch (dataType) {
      case 1:
        if (ch == 1) {
          v = kw == 1 ? ((w * 3 + ((khu * 4 + 4) & 0x3ffffff8u)) * 4 + 56) & ~15u
            : kh == 1 ? w * 16
                      : ((kk * 16 + w * 8 + 40) & ~15u) + ((w * 8 + 24) & ~31u);
        } else if (ch == 3) {
          v = kw == 1 ? ((w * 3 + ((khu * 4 + 4) & 0x3ffffff8u)) * 4 + 56) & ~15u
            : kh == 1 ? w * 48
                      : ((w * 24 + 24) & ~31u) + (((kk * 4 + w * 6) * 4 + 40) & ~15u);
        } else if (ch == 4) {
          v = kw == 1 ? (w * 16 + ((khu * 16 + 16) & ~31u) + 56) & ~15u : w * 64 + (kh == 1 ? 0 : kk * 16);
        } else {
          have = false;
        }
        if (have && wide) {
          const U raise = khu * ((kwu + 3u) >> 2) * 64u;
          if (static_cast<std::int32_t>(raise) >= static_cast<std::int32_t>(v)) v = raise;
        }
        break;
      case 5:
      case 7:
        if (ch == 1 && dataType == 5) {
          v = kh == 1 ? w * 8 : kw == 1 ? (w * 4 + khu * 16 + 12) & ~15u : (w * 4 + 40) & ~15u;
        } else if (ch == 1) {
          v = kw == 1 ? (w * 4 + 28) & ~15u
            : kh == 1 ? w * 8
                      : ((w * 8 + 24) & ~31u) + ((kk * 16 + w * 8 + 40) & ~15u);
        } else if (ch == 3) {
          v = kh == 1 ? w * 24
            : kw == 1 ? (khu * 16 + w * 12 + 12) & ~15u
                      : ((w * 24 + 24) & ~31u) + (((kk * 4 + w * 6) * 4 + 40) & ~15u);
        } else if (ch == 4) {
          v = kh == 1 ? w * 32 : kw == 1 ? (w + khu) * 16 : w * 64 + kk * 16;
        } else {
          have = false;
        }
        break;
      case 13:
        if (ch == 1) v = kk * 32;
        else if (ch == 3 || ch == 4) v = kk * 16;
        else have = false;
        break;
      default:
        have = false;
    }
    return have ? WorkTail(v) : 0u;
  }
  // 16-bit kernel
  U v = 0;
  if (dataType == 7) {
    if (ch == 1) v = ((w + kk * 8) * 4 + 12) & ~15u;
    else if (ch == 3) v = ((w * 3 + kk * 4) * 4 + 124) & ~15u;
    else if (ch == 4) v = ((kk + w) * 16 + 124) & ~15u;
  } else if (dataType == 1) {
    if (ch == 1) {
      v = kw == 1 ? ((w * 8 + 24) & ~31u) + khu * 80
        : kh == 1 ? (kwu * 16 + w * 4 + 12) & ~15u
                  : ((((kwu * 8 + 8) & 0x3ffffff0u) * khu + w) * 4 + 28) & ~31u;
    } else if (ch == 3) {
      v = kw == 1 ? (((w * 8 + 24) & ~31u) + khu * 80) * 3 : ((w * 3 + kk * 4) * 4 + 12) & ~15u;
    } else if (ch == 4) {
      v = kw == 1 ? ((w * 32 + 96) & ~127u) + khu * 5 * 64 : (kk + w) * 16;
    }
  }
  return WorkTail(v);
}

// Bytes of one sample of a data type code of this family.
inline int SampleBytes(int dataType) {
  return dataType == 1 ? 1 : dataType == 13 ? 4 : dataType == 19 ? 8 : 2;
}

// The buffer of the older 64f filter: room for a column kernel of four-wide rows.
inline int Filter64fBufBytes(int kw, int kh, int roiWidth) {
  return (kw == 1 && kh >= 3 && roiWidth >= 16) ? kh * 32 : 0;
}

}  // namespace tpx::filter
