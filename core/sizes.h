// Size arithmetic for GetSize/GetBufferSize formulas: a value that passes 0x7fffffff at any
// step poisons the expression, and Store() reports tpxErrExceededSize instead of wrapping.
#pragma once
#include <cstdint>

#include "tpxip/types.h"

namespace tpx {

class ByteCount {
 public:
  constexpr ByteCount(long long v = 0) : v_(v), over_(v < 0 || v > kLimit) {}
  ByteCount operator+(ByteCount o) const { return Make(v_ + o.v_, over_ || o.over_); }
  ByteCount operator*(ByteCount o) const {
    long long r = 0;
    const bool ovf = __builtin_mul_overflow(v_, o.v_, &r);
    return Make(r, over_ || o.over_ || ovf);
  }
  // Rounds up to a multiple of `align` (a power of two).
  ByteCount RoundUp(long long align) const { return Make((v_ + align - 1) & ~(align - 1), over_); }
  // The common tail of the buffer queries: 0 stays 0, anything else is (n + 191) & ~63.
  ByteCount BufferTail() const { return v_ == 0 ? *this : Make((v_ + 191) & ~63LL, over_); }
  bool Exceeded() const { return over_; }
  long long Value() const { return v_; }
  // Writes the count, or returns tpxErrExceededSize and writes nothing.
  TpxStatus Store(int* out) const {
    if (over_) return tpxErrExceededSize;
    *out = static_cast<int>(v_);
    return tpxOk;
  }

 private:
  static constexpr long long kLimit = 0x7fffffff;
  static ByteCount Make(long long v, bool over) {
    ByteCount c(v);
    c.over_ = over || c.over_;
    return c;
  }
  long long v_;
  bool over_;
};

}  // namespace tpx
