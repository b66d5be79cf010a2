// Test images with canary bytes around the region of interest: before the first row, in the
// padding of every row, and after the last row. Any step, any misalignment of the first sample.
#pragma once
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

#include "tpxip/types.h"

namespace tpxtest {

inline constexpr unsigned char kCanary = 0xA5;

template <class T>
class GuardedImage {
 public:
  // width in pixels of `channels` samples; padSamples extra samples per row (the step is the
  // row plus the padding); misalignSamples shifts the first sample off the 64-byte boundary.
  GuardedImage(int width, int height, int channels = 1, int padSamples = 0, int misalignSamples = 0,
               int guardBytes = 64)
      : width_(width), height_(height), channels_(channels),
        rowBytes_(static_cast<std::ptrdiff_t>(width) * channels * static_cast<std::ptrdiff_t>(sizeof(T))),
        step_(rowBytes_ + static_cast<std::ptrdiff_t>(padSamples) * static_cast<std::ptrdiff_t>(sizeof(T))),
        offset_(guardBytes + static_cast<std::ptrdiff_t>(misalignSamples) * static_cast<std::ptrdiff_t>(sizeof(T))),
        buf_(static_cast<std::size_t>(offset_ + step_ * (height > 0 ? height : 0) + guardBytes + 128), kCanary),
        base_(buf_.data() + ((0u - reinterpret_cast<std::uintptr_t>(buf_.data())) & 63u)) {
    for (int y = 0; y < height; ++y) std::memset(Row(y), 0, static_cast<std::size_t>(rowBytes_));
  }

  T* Data() { return Row(0); }
  const T* Data() const { return Row(0); }
  int Step() const { return static_cast<int>(step_); }
  int Width() const { return width_; }
  int Height() const { return height_; }
  int Channels() const { return channels_; }
  TpxSize Size() const { return {width_, height_}; }
  int RowSamples() const { return width_ * channels_; }

  T* Row(int y) { return reinterpret_cast<T*>(base_ + offset_ + step_ * y); }
  const T* Row(int y) const { return reinterpret_cast<const T*>(base_ + offset_ + step_ * y); }
  T& At(int x, int y, int c = 0) { return Row(y)[x * channels_ + c]; }
  const T& At(int x, int y, int c = 0) const { return Row(y)[x * channels_ + c]; }

  // True if every byte outside the region still holds the canary.
  bool GuardsIntact() const {
    const unsigned char* p = base_;
    for (int y = 0; y <= height_; ++y) {
      const unsigned char* stop = y < height_ ? reinterpret_cast<const unsigned char*>(Row(y)) : buf_.data() + buf_.size();
      if (std::any_of(p, stop, [](unsigned char b) { return b != kCanary; })) return false;
      p = stop + rowBytes_;
    }
    return true;
  }

  // Samples of the region, row after row, without padding.
  std::vector<T> Samples() const {
    std::vector<T> v;
    v.reserve(static_cast<std::size_t>(RowSamples()) * height_);
    for (int y = 0; y < height_; ++y) v.insert(v.end(), Row(y), Row(y) + RowSamples());
    return v;
  }

  void CopyFrom(const GuardedImage& o) {
    for (int y = 0; y < height_; ++y) std::memcpy(Row(y), o.Row(y), static_cast<std::size_t>(rowBytes_));
  }

 private:
  int width_, height_, channels_;
  std::ptrdiff_t rowBytes_, step_, offset_;
  std::vector<unsigned char> buf_;
  unsigned char* base_;
};

// Bytewise equality of two regions of equal shape; reports the first difference.
template <class T>
bool SameSamples(const GuardedImage<T>& a, const GuardedImage<T>& b, int* badX = nullptr, int* badY = nullptr) {
  for (int y = 0; y < a.Height(); ++y)
    for (int i = 0; i < a.RowSamples(); ++i)
      if (std::memcmp(&a.Row(y)[i], &b.Row(y)[i], sizeof(T)) != 0) {
        if (badX) *badX = i;
        if (badY) *badY = y;
        return false;
      }
  return true;
}

}  // namespace tpxtest
