// Rows far apart: a reserved address range in which row y of image k starts at
// base + y * step + k * kImageGap, with a step beyond what a 32-bit step can say. Only the pages
// touched are ever backed, so a small image with a step above 0x7ffffffe costs a few pages.
#pragma once
#include <sys/mman.h>

#include <cstddef>
#include <cstdint>

namespace tpxtest {

class FarRows {
 public:
  static constexpr long long kImageGap = 1 << 16;
  FarRows(long long step, int rows) : step_(step) {
    bytes_ = static_cast<std::size_t>(step * rows + 4 * kImageGap);
    void* p = mmap(nullptr, bytes_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    base_ = p == MAP_FAILED ? nullptr : static_cast<unsigned char*>(p);
  }
  ~FarRows() {
    if (base_) munmap(base_, bytes_);
  }
  FarRows(const FarRows&) = delete;
  FarRows& operator=(const FarRows&) = delete;

  bool Ok() const { return base_ != nullptr; }
  long long Step() const { return step_; }
  template <class T>
  T* Row(int image, long long y) {
    return reinterpret_cast<T*>(base_ + y * step_ + image * kImageGap);
  }

 private:
  long long step_;
  std::size_t bytes_ = 0;
  unsigned char* base_ = nullptr;
};

}  // namespace tpxtest
