// Runs every registered case single-threaded; OpenCV is held to one thread as well.
#include <benchmark/benchmark.h>

#include <opencv2/core.hpp>

namespace tpxbench {
void RegisterBaselines();
}

int main(int argc, char** argv) {
  cv::setNumThreads(1);
  tpxbench::RegisterBaselines();
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
