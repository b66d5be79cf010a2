// tpxiThreshold_*: clamp to a threshold or replace by a value, per sample and channel.
// Checks: pointers (image and, outside C1, the per-channel arguments), size, step; then the
// family's own argument. Two members depart from that: _Val tests cmpOp ahead of everything,
// and LTValGTVal tests the threshold order last.
#include "arith/threshold.h"

#include "core/checks.h"
#include "core/export.h"

namespace tpx {
namespace {

template <class Op, class T, Layout kL, class... A>
void Run(const T* s, int sStep, T* d, int dStep, TpxSize roi, A... args) {
  T params[Op::kParams][4] = {};
  const ChannelArg<T, kL> list[] = {args...};
  for (int j = 0; j < Op::kParams; ++j)
    for (int c = 0; c < Processed(kL); ++c) params[j][c] = ArgAt<T, kL>(list[j], c);
  ThresholdRegion<Op, T, kL>(s, sStep, d, dStep, roi, params);
}

template <class T, Layout kL, class... A>
TpxStatus Check(const T* s, int sStep, const T* d, int dStep, TpxSize roi, A... args) {
  return CheckImage<CheckOrder::kPtrSizeStep>({s, d, ArgPtr(args)...}, roi, {sStep, dStep});
}

template <class Op, class T, Layout kL, class... A>
TpxStatus Checked(const T* s, int sStep, T* d, int dStep, TpxSize roi, A... args) {
  if (const TpxStatus st = Check<T, kL>(s, sStep, d, dStep, roi, args...); st != tpxOk) return st;
  Run<Op, T, kL>(s, sStep, d, dStep, roi, args...);
  return tpxOk;
}

template <class T, Layout kL>
TpxStatus ThresholdGT(const T* s, int sStep, T* d, int dStep, TpxSize roi, ChannelArg<T, kL> t) {
  return Checked<ThreshGT, T, kL>(s, sStep, d, dStep, roi, t);
}
template <class T, Layout kL>
TpxStatus ThresholdLT(const T* s, int sStep, T* d, int dStep, TpxSize roi, ChannelArg<T, kL> t) {
  return Checked<ThreshLT, T, kL>(s, sStep, d, dStep, roi, t);
}
template <class T, Layout kL>
TpxStatus ThresholdGTVal(const T* s, int sStep, T* d, int dStep, TpxSize roi, ChannelArg<T, kL> t,
                         ChannelArg<T, kL> v) {
  return Checked<ThreshGTVal, T, kL>(s, sStep, d, dStep, roi, t, v);
}
template <class T, Layout kL>
TpxStatus ThresholdLTVal(const T* s, int sStep, T* d, int dStep, TpxSize roi, ChannelArg<T, kL> t,
                         ChannelArg<T, kL> v) {
  return Checked<ThreshLTVal, T, kL>(s, sStep, d, dStep, roi, t, v);
}

// cmpOp 0 is LT, 4 is GT; anything else is refused after the step checks.
template <class T, Layout kL>
TpxStatus ThresholdByOp(const T* s, int sStep, T* d, int dStep, TpxSize roi, ChannelArg<T, kL> t,
                        int cmpOp) {
  if (const TpxStatus st = Check<T, kL>(s, sStep, d, dStep, roi, t); st != tpxOk) return st;
  if ((cmpOp & ~4) != 0) return tpxErrNotSupportedMode;
  if (cmpOp == tpxCmpLess)
    Run<ThreshLT, T, kL>(s, sStep, d, dStep, roi, t);
  else
    Run<ThreshGT, T, kL>(s, sStep, d, dStep, roi, t);
  return tpxOk;
}

// cmpOp 0 is LTVal, 4 is GTVal; the cmpOp test stands ahead of the pointer checks here.
template <class T, Layout kL>
TpxStatus ThresholdValByOp(const T* s, int sStep, T* d, int dStep, TpxSize roi, ChannelArg<T, kL> t,
                           ChannelArg<T, kL> v, int cmpOp) {
  if ((cmpOp & ~4) != 0) return tpxErrNotSupportedMode;
  if (cmpOp == tpxCmpLess) return Checked<ThreshLTVal, T, kL>(s, sStep, d, dStep, roi, t, v);
  return Checked<ThreshGTVal, T, kL>(s, sStep, d, dStep, roi, t, v);
}

// The order of the two thresholds is tested per channel after the image checks.
template <class T, Layout kL>
TpxStatus ThresholdLTValGTVal(const T* s, int sStep, T* d, int dStep, TpxSize roi,
                              ChannelArg<T, kL> tLT, ChannelArg<T, kL> vLT, ChannelArg<T, kL> tGT,
                              ChannelArg<T, kL> vGT) {
  if (const TpxStatus st = Check<T, kL>(s, sStep, d, dStep, roi, tLT, vLT, tGT, vGT); st != tpxOk)
    return st;
  for (int c = 0; c < Processed(kL); ++c)
    if (ArgAt<T, kL>(tGT, c) < ArgAt<T, kL>(tLT, c)) return tpxErrThresholdOrder;
  Run<ThreshLTValGTVal, T, kL>(s, sStep, d, dStep, roi, tLT, vLT, tGT, vGT);
  return tpxOk;
}

}  // namespace
}  // namespace tpx

using tpx::Layout;
using tpx::ChannelArg;

#define TPX_UNPAREN(...) __VA_ARGS__

// The R and IR exports of one member; the IR form passes its image as source and destination.
#define TPX_THRESHOLD_PAIR(Fam, T, L, Impl, Decl, Pass)                                          \
  TPX_API TpxStatus tpxiThreshold##Fam##_##T##_##L##R(const Tpx##T* pSrc, int srcStep,            \
                                                       Tpx##T* pDst, int dstStep, TpxSize roiSize, \
                                                       TPX_UNPAREN Decl) {                        \
    return tpx::Impl<Tpx##T, Layout::L>(pSrc, srcStep, pDst, dstStep, roiSize, TPX_UNPAREN Pass); \
  }                                                                                               \
  TPX_API TpxStatus tpxiThreshold##Fam##_##T##_##L##IR(Tpx##T* pSrcDst, int srcDstStep,           \
                                                        TpxSize roiSize, TPX_UNPAREN Decl) {      \
    return tpx::Impl<Tpx##T, Layout::L>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize,        \
                                        TPX_UNPAREN Pass);                                        \
  }

#define TPX_ARG(T, L) ChannelArg<Tpx##T, Layout::L>

#define TPX_DEF_THRESHOLD(T, L)                                                              \
  TPX_THRESHOLD_PAIR(, T, L, ThresholdByOp, (TPX_ARG(T, L) threshold, TpxCmpOp cmpOp),       \
                     (threshold, cmpOp))
#define TPX_DEF_THRESHOLD_GT(T, L) \
  TPX_THRESHOLD_PAIR(_GT, T, L, ThresholdGT, (TPX_ARG(T, L) threshold), (threshold))
#define TPX_DEF_THRESHOLD_LT(T, L) \
  TPX_THRESHOLD_PAIR(_LT, T, L, ThresholdLT, (TPX_ARG(T, L) threshold), (threshold))
#define TPX_DEF_THRESHOLD_VAL(T, L)                                                          \
  TPX_THRESHOLD_PAIR(_Val, T, L, ThresholdValByOp,                                           \
                     (TPX_ARG(T, L) threshold, TPX_ARG(T, L) value, TpxCmpOp cmpOp),         \
                     (threshold, value, cmpOp))
#define TPX_DEF_THRESHOLD_GTVAL(T, L)                                                        \
  TPX_THRESHOLD_PAIR(_GTVal, T, L, ThresholdGTVal, (TPX_ARG(T, L) threshold, TPX_ARG(T, L) value), \
                     (threshold, value))
#define TPX_DEF_THRESHOLD_LTVAL(T, L)                                                        \
  TPX_THRESHOLD_PAIR(_LTVal, T, L, ThresholdLTVal, (TPX_ARG(T, L) threshold, TPX_ARG(T, L) value), \
                     (threshold, value))
#define TPX_DEF_THRESHOLD_LTVALGTVAL(T, L)                                                   \
  TPX_THRESHOLD_PAIR(_LTValGTVal, T, L, ThresholdLTValGTVal,                                 \
                     (TPX_ARG(T, L) thresholdLT, TPX_ARG(T, L) valueLT,                      \
                      TPX_ARG(T, L) thresholdGT, TPX_ARG(T, L) valueGT),                     \
                     (thresholdLT, valueLT, thresholdGT, valueGT))

TPX_THRESHOLD_MEMBERS(TPX_DEF_THRESHOLD)
TPX_THRESHOLD_MEMBERS(TPX_DEF_THRESHOLD_GT)
TPX_THRESHOLD_MEMBERS(TPX_DEF_THRESHOLD_LT)
TPX_THRESHOLD_MEMBERS(TPX_DEF_THRESHOLD_VAL)
TPX_THRESHOLD_VAL_MEMBERS(TPX_DEF_THRESHOLD_GTVAL)
TPX_THRESHOLD_VAL_MEMBERS(TPX_DEF_THRESHOLD_LTVAL)
TPX_THRESHOLD_MEMBERS(TPX_DEF_THRESHOLD_LTVALGTVAL)
