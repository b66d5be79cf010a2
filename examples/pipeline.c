/* The example pipeline: builds a test scene in memory and runs it through the library as an
 * imaging application would: smooth, sharpen, segment, measure, normalise in float, rearrange
 * and pad. Each stage prints what it did, and a table gives the median time of each stage.
 * Plain C99 against the public header.
 *
 *   tpx_pipeline            1920x1080, every stage timed over 15 runs
 *   tpx_pipeline --small    one quick run on 160x90 (used by the install test)
 */
#define _POSIX_C_SOURCE 199309L
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

#include "tpxip.h"

enum { kPad = 16 };

typedef struct {
  TpxSize roi;
  Tpx8u *gray, *smooth, *detail, *sharp, *mask, *mirrored, *transposed, *padded, *restored;
  int grayStep, smoothStep, detailStep, sharpStep, maskStep, mirroredStep, transposedStep,
      paddedStep, restoredStep;
  Tpx32f* norm;
  int normStep;
  Tpx8u *spec, *buffer; /* filter spec and work buffer, from the size query */
  Tpx8u threshold;
  Tpx32u counted;
  Tpx64f mean;
  Tpx8u minV, maxV;
  int minX, minY, maxX, maxY;
  char note[160];
} Job;

static double Now(void) {
  struct timespec ts;
  clock_gettime(CLOCK_MONOTONIC, &ts);
  return (double)ts.tv_sec + 1e-9 * (double)ts.tv_nsec;
}

/* A synthetic scene: a diagonal ramp, concentric rings, a bright rectangle and a dark disc. */
static TpxStatus StageScene(Job* j) {
  int x, y;
  for (y = 0; y < j->roi.height; ++y) {
    Tpx8u* row = j->gray + (size_t)y * (size_t)j->grayStep;
    for (x = 0; x < j->roi.width; ++x) {
      const int dx = x - j->roi.width / 2, dy = y - j->roi.height / 2;
      const int ring = ((dx * dx + dy * dy) >> 9) & 31;
      int v = 40 + ((x + y) * 60) / (j->roi.width + j->roi.height) + ring;
      if (x > j->roi.width / 8 && x < j->roi.width / 3 && y > j->roi.height / 8 && y < j->roi.height / 2) v = 210 + ring;
      if ((dx + j->roi.width / 5) * (dx + j->roi.width / 5) + dy * dy < (j->roi.height / 6) * (j->roi.height / 6)) v = 15;
      row[x] = (Tpx8u)(v > 255 ? 255 : v);
    }
  }
  sprintf(j->note, "%dx%d 8u scene", j->roi.width, j->roi.height);
  return tpxOk;
}

/* 5x5 binomial smoothing, divisor 256, replicated border. */
static TpxStatus StageSmooth(Job* j) {
  static const Tpx16s k1[5] = {1, 4, 6, 4, 1};
  Tpx16s kernel[25];
  const TpxSize ksize = {5, 5};
  int i, specSize = 0, bufSize = 0;
  TpxStatus st;
  for (i = 0; i < 25; ++i) kernel[i] = (Tpx16s)(k1[i / 5] * k1[i % 5]);
  if (!j->spec) {
    st = tpxiFilterBorderGetSize(ksize, j->roi, tpxDt8u, tpxDt16s, 1, &specSize, &bufSize);
    if (st < 0) return st;
    j->spec = tpxiMalloc_8u_C1(specSize, 1, &i);
    j->buffer = tpxiMalloc_8u_C1(bufSize, 1, &i);
    if (!j->spec || !j->buffer) return tpxErrMemAlloc;
    st = tpxiFilterBorderInit_16s(kernel, ksize, 256, tpxDt8u, 1, tpxRndHalfEven, j->spec);
    if (st < 0) return st;
  }
  sprintf(j->note, "5x5 binomial / 256, replicated border");
  return tpxiFilterBorder_8u_C1R(j->gray, j->grayStep, j->smooth, j->smoothStep, j->roi,
                                 tpxBorderRepl, NULL, j->spec, j->buffer);
}

/* Unsharp mask: detail = gray - smooth (clamped at 0), sharp = gray + 2 * detail. */
static TpxStatus StageSharpen(Job* j) {
  TpxStatus st = tpxiSub_8u_C1RSfs(j->smooth, j->smoothStep, j->gray, j->grayStep, j->detail,
                                   j->detailStep, j->roi, 0);
  if (st < 0) return st;
  st = tpxiAdd_8u_C1RSfs(j->detail, j->detailStep, j->detail, j->detailStep, j->sharp,
                         j->sharpStep, j->roi, 0);
  if (st < 0) return st;
  sprintf(j->note, "gray - smooth, doubled and added back (saturating)");
  return tpxiAdd_8u_C1IRSfs(j->gray, j->grayStep, j->sharp, j->sharpStep, j->roi, 0);
}

static TpxStatus StageSegment(Job* j) {
  TpxStatus st = tpxiComputeThreshold_Otsu_8u_C1R(j->gray, j->grayStep, j->roi, &j->threshold);
  if (st < 0) return st;
  st = tpxiCompareC_8u_C1R(j->smooth, j->smoothStep, j->threshold, j->mask, j->maskStep, j->roi,
                           tpxCmpGreater);
  if (st < 0) return st;
  st = tpxiCountInRange_8u_C1R(j->mask, j->maskStep, j->roi, &j->counted, 255, 255);
  sprintf(j->note, "Otsu threshold %u, %u pixels above it", j->threshold, j->counted);
  return st;
}

static TpxStatus StageMeasure(Job* j) {
  TpxStatus st = tpxiMean_8u_C1R(j->sharp, j->sharpStep, j->roi, &j->mean);
  if (st < 0) return st;
  st = tpxiMinIndx_8u_C1R(j->sharp, j->sharpStep, j->roi, &j->minV, &j->minX, &j->minY);
  if (st < 0) return st;
  st = tpxiMaxIndx_8u_C1R(j->sharp, j->sharpStep, j->roi, &j->maxV, &j->maxX, &j->maxY);
  sprintf(j->note, "mean %.3f, min %u at (%d,%d), max %u at (%d,%d)", j->mean, j->minV, j->minX,
          j->minY, j->maxV, j->maxX, j->maxY);
  return st;
}

/* To float in [0, 1], then back to 8u rounding half to even. */
static TpxStatus StageFloat(Job* j) {
  TpxStatus st = tpxiConvert_8u32f_C1R(j->sharp, j->sharpStep, j->norm, j->normStep, j->roi);
  if (st < 0) return st;
  st = tpxiMulC_32f_C1IR(1.0f / 255.0f, j->norm, j->normStep, j->roi);
  if (st < 0) return st;
  st = tpxiMulC_32f_C1IR(255.0f, j->norm, j->normStep, j->roi);
  if (st < 0) return st;
  sprintf(j->note, "8u -> 32f, scaled to [0,1] and back, -> 8u nearest-even");
  return tpxiConvert_32f8u_C1R(j->norm, j->normStep, j->restored, j->restoredStep, j->roi, tpxRndHalfEven);
}

static TpxStatus StageRearrange(Job* j) {
  TpxStatus st = tpxiMirror_8u_C1R(j->sharp, j->sharpStep, j->mirrored, j->mirroredStep, j->roi,
                                   tpxAxisVertical);
  if (st < 0) return st;
  sprintf(j->note, "mirrored left-right, transposed to %dx%d", j->roi.height, j->roi.width);
  return tpxiTranspose_8u_C1R(j->mirrored, j->mirroredStep, j->transposed, j->transposedStep, j->roi);
}

static TpxStatus StagePad(Job* j) {
  const TpxSize big = {j->roi.width + 2 * kPad, j->roi.height + 2 * kPad};
  sprintf(j->note, "%d-pixel mirrored border, %dx%d", kPad, big.width, big.height);
  return tpxiCopyMirrorBorder_8u_C1R(j->sharp, j->sharpStep, j->roi, j->padded, j->paddedStep, big,
                                     kPad, kPad);
}

typedef TpxStatus (*Stage)(Job*);
typedef struct {
  const char* name;
  const char* exports;
  Stage run;
} StageInfo;

static const StageInfo kStages[] = {
    {"scene", "(plain C)", StageScene},
    {"smooth", "tpxiFilterBorder_8u_C1R", StageSmooth},
    {"sharpen", "tpxiSub/tpxiAdd_8u_C1RSfs", StageSharpen},
    {"segment", "Otsu, CompareC, CountInRange", StageSegment},
    {"measure", "Mean, MinIndx, MaxIndx", StageMeasure},
    {"float round trip", "Convert, MulC_32f", StageFloat},
    {"rearrange", "Mirror, Transpose", StageRearrange},
    {"pad", "tpxiCopyMirrorBorder_8u_C1R", StagePad},
};

static int Cmp(const void* a, const void* b) {
  const double x = *(const double*)a, y = *(const double*)b;
  return (x > y) - (x < y);
}

int main(int argc, char** argv) {
  const int small = argc > 1 && strcmp(argv[1], "--small") == 0;
  const int reps = small ? 1 : 15;
  const TpxLibraryVersion* v = tpxiGetLibVersion();
  double total = 0;
  Job j;
  size_t s;
  memset(&j, 0, sizeof j);
  j.roi.width = small ? 160 : 1920;
  j.roi.height = small ? 90 : 1080;

  j.gray = tpxiMalloc_8u_C1(j.roi.width, j.roi.height, &j.grayStep);
  j.smooth = tpxiMalloc_8u_C1(j.roi.width, j.roi.height, &j.smoothStep);
  j.detail = tpxiMalloc_8u_C1(j.roi.width, j.roi.height, &j.detailStep);
  j.sharp = tpxiMalloc_8u_C1(j.roi.width, j.roi.height, &j.sharpStep);
  j.mask = tpxiMalloc_8u_C1(j.roi.width, j.roi.height, &j.maskStep);
  j.mirrored = tpxiMalloc_8u_C1(j.roi.width, j.roi.height, &j.mirroredStep);
  j.restored = tpxiMalloc_8u_C1(j.roi.width, j.roi.height, &j.restoredStep);
  j.transposed = tpxiMalloc_8u_C1(j.roi.height, j.roi.width, &j.transposedStep);
  j.padded = tpxiMalloc_8u_C1(j.roi.width + 2 * kPad, j.roi.height + 2 * kPad, &j.paddedStep);
  j.norm = tpxiMalloc_32f_C1(j.roi.width, j.roi.height, &j.normStep);
  if (!j.gray || !j.smooth || !j.detail || !j.sharp || !j.mask || !j.mirrored || !j.restored ||
      !j.transposed || !j.padded || !j.norm) {
    fprintf(stderr, "allocation failed\n");
    return 1;
  }

  printf("%s, version %s, built %s\n\n", v->Name, v->Version, v->BuildDate);
  printf("%-17s %-30s %9s %8s  %s\n", "stage", "exports", "median ms", "Mpix/s", "result");
  for (s = 0; s < sizeof kStages / sizeof kStages[0]; ++s) {
    double t[32];
    TpxStatus st = tpxOk;
    int r;
    for (r = 0; r < reps; ++r) {
      const double t0 = Now();
      st = kStages[s].run(&j);
      t[r] = (Now() - t0) * 1e3;
      if (st < 0) break;
    }
    if (st < 0) {
      printf("%-17s failed with status %d\n", kStages[s].name, st);
      return 1;
    }
    qsort(t, (size_t)reps, sizeof t[0], Cmp);
    total += t[reps / 2];
    printf("%-17s %-30s %9.3f %8.0f  %s\n", kStages[s].name, kStages[s].exports, t[reps / 2],
           (double)j.roi.width * j.roi.height / (t[reps / 2] * 1e3), j.note);
  }
  printf("%-17s %-30s %9.3f\n", "total", "", total);
  {
    /* The float round trip must give back the sharpened image exactly. */
    int x, y, same = 1;
    for (y = 0; y < j.roi.height; ++y)
      for (x = 0; x < j.roi.width; ++x)
        same &= j.sharp[(size_t)y * j.sharpStep + x] == j.restored[(size_t)y * j.restoredStep + x];
    printf("\nfloat round trip exact: %s\n", same ? "yes" : "NO");
    if (!same) return 1;
  }
  tpxiFree(j.gray); tpxiFree(j.smooth); tpxiFree(j.detail); tpxiFree(j.sharp); tpxiFree(j.mask);
  tpxiFree(j.mirrored); tpxiFree(j.restored); tpxiFree(j.transposed); tpxiFree(j.padded);
  tpxiFree(j.norm); tpxiFree(j.spec); tpxiFree(j.buffer);
  return 0;
}
