// tpxiComputeThreshold_Otsu_8u_C1R. Checks: pointers, size, then width > srcStep (this export's
// own step rule, the one compare of a step against the row).
#include "arith/otsu.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "core/checks.h"
#include "core/export.h"
#include "core/rows.h"

namespace tpx {

// Four banks of 32-bit counts, so that runs of one value do not serialise on one counter;
// they are folded into the 64-bit histogram before any bank could wrap.
void Histogram256(const Tpx8u* src, int srcStep, TpxSize roi, std::uint64_t hist[256]) {
  std::uint32_t bank[4][256];
  std::memset(bank, 0, sizeof(bank));
  std::memset(hist, 0, 256 * sizeof(std::uint64_t));
  auto fold = [&] {
    for (int v = 0; v < 256; ++v) {
      hist[v] += std::uint64_t{bank[0][v]} + bank[1][v] + bank[2][v] + bank[3][v];
      bank[0][v] = bank[1][v] = bank[2][v] = bank[3][v] = 0;
    }
  };
  const long long w = roi.width;
  long long pending = 0;  // samples counted into the banks since the last fold
  const Tpx8u* row = src;
  for (int y = 0; y < roi.height; ++y, row = Advance(row, srcStep)) {
    if (pending + w > 0xFFFFFFFFLL) {
      fold();
      pending = 0;
    }
    long long x = 0;
    for (; x + 8 <= w; x += 8) {
      std::uint64_t q;
      std::memcpy(&q, row + x, 8);
      ++bank[0][q & 0xFF];
      ++bank[1][(q >> 8) & 0xFF];
      ++bank[2][(q >> 16) & 0xFF];
      ++bank[3][(q >> 24) & 0xFF];
      ++bank[0][(q >> 32) & 0xFF];
      ++bank[1][(q >> 40) & 0xFF];
      ++bank[2][(q >> 48) & 0xFF];
      ++bank[3][q >> 56];
    }
    for (; x < w; ++x) ++bank[x & 3][row[x]];
    pending += w;
  }
  fold();
}

// The loop as it stands: class 0 weighs bins at k + 0.5 and the mean at plain i; m is advanced
// only for bins that pass the weight test; a tie keeps the lower bin.
Tpx8u OtsuThreshold(const std::uint64_t hist[256]) {
  constexpr double kEps = 1.1920928955078125e-7;     // FLT_EPSILON
  constexpr double kNearOne = 0.9999998807907104;    // 1 - FLT_EPSILON
  double n = 0;
  std::uint64_t moment = 0;
  for (int i = 0; i < 256; ++i) {
    n += static_cast<double>(hist[i]);
    moment += static_cast<std::uint64_t>(i) * hist[i];
  }
  const double inv = std::abs(n) > kEps ? 1.0 / n : 0.0;
  const double mu = inv * static_cast<double>(moment);
  double w0 = 0, m = 0, best = 0, t = 0;
  for (int k = 0; k < 256; ++k) {
    const double p = inv * static_cast<double>(hist[k]);
    w0 += p;
    const double w1 = 1.0 - w0;
    if (std::min(w0, w1) < kEps || std::max(w0, w1) > kNearOne) continue;
    m += p * (k + 0.5);
    const double a = w1 * m + (m - mu) * w0;
    const double v = a * a / (w1 * w0);
    if (v > best) {
      best = v;
      t = k + 0.5;
    }
  }
  return static_cast<Tpx8u>(static_cast<int>(t));
}

}  // namespace tpx

TPX_API TpxStatus tpxiComputeThreshold_Otsu_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize,
                                                   Tpx8u* pThreshold) {
  const TpxStatus st = tpx::CheckImage<tpx::CheckOrder::kPtrSize>({pSrc, pThreshold}, roiSize);
  if (st != tpxOk) return st;
  if (roiSize.width > srcStep) return tpxErrStep;
  std::uint64_t hist[256];
  tpx::Histogram256(pSrc, srcStep, roiSize, hist);
  *pThreshold = tpx::OtsuThreshold(hist);
  return tpxOk;
}
