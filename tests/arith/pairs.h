// Every ordered pair of a set of samples, as two rows x and y of equal length.
#pragma once
#include <vector>

namespace tpxtest {

template <class T>
void CrossPairs(const std::vector<T>& values, std::vector<T>& x, std::vector<T>& y) {
  x.clear();
  y.clear();
  for (T a : values)
    for (T b : values) {
      x.push_back(a);
      y.push_back(b);
    }
}

}  // namespace tpxtest
