// The floating-point rounding control of this thread (MXCSR), set for the length of a row
// or call and restored on every exit path.
#pragma once
#include <xmmintrin.h>

namespace tpx {

enum class FpRound : unsigned {
  kNearest = _MM_ROUND_NEAREST,  // ties to even
  kDown = _MM_ROUND_DOWN,
  kUp = _MM_ROUND_UP,
  kZero = _MM_ROUND_TOWARD_ZERO,
};

class RoundingScope {
 public:
  explicit RoundingScope(FpRound mode) : saved_(_mm_getcsr()) {
    const unsigned want = (saved_ & ~_MM_ROUND_MASK) | static_cast<unsigned>(mode);
    if (want != saved_) _mm_setcsr(want);
  }
  // Only the rounding bits go back: exception flags raised meanwhile stay raised.
  ~RoundingScope() {
    const unsigned now = _mm_getcsr();
    const unsigned back = (now & ~_MM_ROUND_MASK) | (saved_ & _MM_ROUND_MASK);
    if (back != now) _mm_setcsr(back);
  }
  RoundingScope(const RoundingScope&) = delete;
  RoundingScope& operator=(const RoundingScope&) = delete;

 private:
  unsigned saved_;
};

}  // namespace tpx
