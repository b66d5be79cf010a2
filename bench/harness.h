// Benchmark harness: each case registers the tpx export and its peer (OpenCV or FFTW) under
// one name, "<case>/<W>x<H>/tpx" and ".../cv", and declares how many bytes one call moves and
// which memory pattern it has, so that bench/report.py can print the ratio to the peer and to
// this machine's bandwidth for the same amount of data.
#pragma once
#include <benchmark/benchmark.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tpxbench {

// The memory pattern of a call, matched to a bandwidth baseline of the same kind and size.
enum class Bw { kNone = 0, kCopy = 1, kRead = 2, kTwoReadsOneWrite = 3 };

struct Extent {
  int w, h;
};
inline const std::vector<Extent> kHdAndLarge = {{1920, 1080}, {4096, 4096}};
inline const std::vector<Extent> kHd = {{1920, 1080}};

// A case's per-run state: built before timing, torn down after. `tpx` and `peer` are called
// once per iteration on the same state.
template <class State>
struct Case {
  std::string name;                                    // e.g. "Add/8u_C1RSfs/sf0"
  std::vector<Extent> extents = kHdAndLarge;
  Bw bw = Bw::kNone;
  // Bytes of one image of the call (the size each stream of the baseline moves).
  std::function<long long(Extent)> streamBytes;
  std::function<std::unique_ptr<State>(Extent)> make;
  std::function<void(State&)> tpx;
  std::function<void(State&)> peer;
  std::string peerName = "cv";
};

// Registers the baselines a case needs; defined in bandwidth.cpp.
void NeedBaseline(Bw kind, long long streamBytes);

template <class State>
void Register(const Case<State>& c) {
  for (Extent e : c.extents) {
    const std::string base = c.name + "/" + std::to_string(e.w) + "x" + std::to_string(e.h);
    const long long bytes = c.streamBytes ? c.streamBytes(e) : 0;
    if (c.bw != Bw::kNone) NeedBaseline(c.bw, bytes);
    auto reg = [&](const std::string& who, std::function<void(State&)> fn) {
      if (!fn) return;
      auto make = c.make;
      const Bw bw = c.bw;
      benchmark::RegisterBenchmark((base + "/" + who).c_str(), [=](benchmark::State& st) {
        std::unique_ptr<State> s = make(e);
        fn(*s);  // warm: pages touched, caches in their steady state
        for (auto _ : st) {
          fn(*s);
          benchmark::ClobberMemory();
        }
        st.counters["bw"] = static_cast<double>(bw);
        st.counters["stream_bytes"] = static_cast<double>(bytes);
      })->Unit(benchmark::kMicrosecond);
    };
    reg("tpx", c.tpx);
    reg(c.peerName, c.peer);
  }
}

}  // namespace tpxbench
