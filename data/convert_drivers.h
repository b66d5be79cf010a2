// The drivers of tpxiConvert_*, one per member class. Each export is one call to one of these.
//
// Check orders. The argument-free members (plain widening and narrowing, C1Rs) are copies of
// a kind and, like tpxiCopy_*, check pointers and size and never the steps: a zero or
// negative step is used as given. The members that take a rounding mode (with or without a
// scale factor, the in-place one included) check pointers, width, height and then the steps.
// Neither roundMode nor scaleFactor is ever refused.
#pragma once
#include <type_traits>

#include "core/checks.h"
#include "core/float_to_int.h"
#include "core/layout.h"
#include "core/region.h"
#include "core/stream.h"
#include "data/convert_frame.h"
#include "data/convert_rows.h"
#include "tpxip/types.h"

namespace tpx::cvt {

// Query floors of the widening members that may stream, in samples of the image: the amount
// at which source and destination together reach 0x80000 bytes, rounded up. Other members
// never stream.
template <class S, class D>
inline constexpr long long kWidenStreamFloor =
    (std::is_same_v<D, Tpx32f> && sizeof(S) == 2) ? 0x15556
    : (std::is_same_v<S, Tpx8s> && (std::is_same_v<D, Tpx32f> || std::is_same_v<D, Tpx32s>)) ? 0x1999A
                                                                                               : 0;

// Argument-free members: pointers, size; no step check.
template <class S, class D, Layout kL>
TpxStatus ConvertPlain(const S* src, int srcStep, D* dst, int dstStep, TpxSize roi,
                       CacheSizeQuery query = tpxGetMaxCacheSizeB) {
  if (const TpxStatus st = CheckImage<CheckOrder::kPtrSize>({src, dst}, roi)) return st;
  constexpr long long kFloor = kWidenStreamFloor<S, D>;
  if constexpr (kFloor > 0) {
    const long long samples = static_cast<long long>(roi.width) * Stride(kL) * roi.height;
    if (ChooseStreaming(samples, kFloor, query)) {
      RunRows<kL, true>(src, srcStep, dst, dstStep, roi, CastOp<S, D>{});
      return tpxOk;
    }
  }
  RunRows<kL>(src, srcStep, dst, dstStep, roi, CastOp<S, D>{});
  return tpxOk;
}

// The float rule over a region: multiplier, rounding control, rows. No checks here.
template <class F, class D, Layout kL>
void FloatRows(const F* src, int srcStep, D* dst, int dstStep, TpxSize roi, int roundMode, int sf) {
  WithRoundKind(RoundKindOf(roundMode), [&](auto kr) {
    if (sf == 0) {
      const FloatToIntScope scope(kr);
      RunRows<kL>(src, srcStep, dst, dstStep, roi, FloatOp<F, D, kr, false>{});
    } else {
      FloatOp<F, D, kr, true> op;
      if constexpr (std::is_same_v<F, Tpx32f>) op.m = ScaleMultiplier32f(sf);
      else op.m = ScaleMultiplier64f(sf);
      const FloatToIntScope scope(kr);
      RunRows<kL>(src, srcStep, dst, dstStep, roi, op);
    }
  });
}

// Float sources: pointers, size, steps. sf 0 (and the members without a scale factor) skip
// the multiplication.
template <class F, class D, Layout kL>
TpxStatus ConvertFloat(const F* src, int srcStep, D* dst, int dstStep, TpxSize roi, int roundMode, int sf) {
  if (const TpxStatus st = CheckImage<CheckOrder::kPtrSizeStep>({src, dst}, roi, {srcStep, dstStep})) return st;
  FloatRows<F, D, kL>(src, srcStep, dst, dstStep, roi, roundMode, sf);
  return tpxOk;
}

// tpxiConvert_32f32u_C1IRSfs: each 32f sample is replaced by its 32u result.
inline TpxStatus ConvertFloatInPlace(Tpx32u* srcDst, int step, TpxSize roi, int roundMode, int sf) {
  if (const TpxStatus st = CheckImage<CheckOrder::kPtrSizeStep>({srcDst}, roi, {step})) return st;
  FloatRows<Tpx32f, Tpx32u, Layout::C1>(reinterpret_cast<const Tpx32f*>(srcDst), step, srcDst, step, roi,
                                        roundMode, sf);
  return tpxOk;
}

// Integer sources with a scale factor stream rows where the row test says so, for these three.
template <class S, class D>
inline constexpr bool kStreamsRows = (std::is_same_v<S, Tpx32s> && sizeof(D) == 2) ||
                                     (std::is_same_v<S, Tpx8u> && std::is_same_v<D, Tpx8s>);

// Integer sources: pointers, size, steps; then the kernel by the range of sf (see ShiftRightOp
// and its neighbours in data/convert_rows.h for the limits).
template <class S, class D>
TpxStatus ConvertIntSfs(const S* src, int srcStep, D* dst, int dstStep, TpxSize roi, int roundMode, int sf,
                        RowStreamQueries queries = {}) {
  if (const TpxStatus st = CheckImage<CheckOrder::kPtrSizeStep>({src, dst}, roi, {srcStep, dstStep})) return st;
  if (sf >= kSfsZeroLimit<S>) {
    ZeroRegion<D, Layout::C1>(dst, dstStep, roi);
    return tpxOk;
  }
  bool stream = false;
  if constexpr (kStreamsRows<S, D>) {
    const long long pixels = static_cast<long long>(roi.width) * roi.height;
    stream = ChooseStreamingRows(static_cast<long long>(roi.width) * sizeof(D),
                                 pixels * static_cast<long long>(sizeof(S) + sizeof(D)), queries);
  }
  auto run = [&](const auto& op) {
    if constexpr (kStreamsRows<S, D>) {
      if (stream) {
        RunRows<Layout::C1, true>(src, srcStep, dst, dstStep, roi, op);
        return;
      }
    }
    RunRows<Layout::C1>(src, srcStep, dst, dstStep, roi, op);
  };
  if (sf == 0) {
    run(CastOp<S, D>{});
  } else if (sf > 0) {
    WithRoundKind(RoundKindOf(roundMode), [&](auto kr) { run(ShiftRightOp<S, D, kr>(sf)); });
  } else if (sf >= kSfsNegLimit<D>) {
    run(ShiftLeftOp<S, D>{-sf});
  } else {
    run(SignOp<S, D>{});
  }
  return tpxOk;
}

// The C1RSfs members: the float rule for float sources, the integer rule for the others.
template <class S, class D>
TpxStatus ConvertSfs(const S* src, int srcStep, D* dst, int dstStep, TpxSize roi, int roundMode, int sf) {
  if constexpr (std::is_floating_point_v<S>)
    return ConvertFloat<S, D, Layout::C1>(src, srcStep, dst, dstStep, roi, roundMode, sf);
  else
    return ConvertIntSfs<S, D>(src, srcStep, dst, dstStep, roi, roundMode, sf);
}

}  // namespace tpx::cvt
