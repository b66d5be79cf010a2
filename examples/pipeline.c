/* The example pipeline: builds a test image in memory, runs it through the library's stages
 * and prints what each stage did and how long it took. Plain C99 against the public header.
 *
 *   tpx_pipeline            1920x1080, every stage timed over several runs
 *   tpx_pipeline --small    a quick run on a small image (used by the install test)
 */
#define _POSIX_C_SOURCE 199309L
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

#include "tpxip.h"

typedef struct {
  int width, height;
  Tpx8u* gray; int grayStep; /* the built-in image */
  Tpx8u* work; int workStep; /* a second 8u plane */
} Images;

static double Now(void) {
  struct timespec ts;
  clock_gettime(CLOCK_MONOTONIC, &ts);
  return (double)ts.tv_sec + 1e-9 * (double)ts.tv_nsec;
}

/* A synthetic scene: a diagonal ramp, concentric rings and a bright rectangle. */
static void DrawScene(Images* im) {
  int x, y;
  for (y = 0; y < im->height; ++y) {
    Tpx8u* row = im->gray + (size_t)y * (size_t)im->grayStep;
    for (x = 0; x < im->width; ++x) {
      const int dx = x - im->width / 2, dy = y - im->height / 2;
      const int ring = ((dx * dx + dy * dy) >> 9) & 63;
      int v = ((x + y) * 255) / (im->width + im->height) / 2 + ring * 2;
      if (x > im->width / 8 && x < im->width / 4 && y > im->height / 8 && y < im->height / 3) v = 240;
      row[x] = (Tpx8u)(v > 255 ? 255 : v);
    }
  }
}

static unsigned long Checksum(const Tpx8u* p, int step, int width, int height) {
  unsigned long s = 0;
  int x, y;
  for (y = 0; y < height; ++y)
    for (x = 0; x < width; ++x) s = s * 31u + p[(size_t)y * (size_t)step + (size_t)x];
  return s;
}

/* A stage returns a status; the runner times it and prints one line. */
typedef TpxStatus (*Stage)(Images*);
typedef struct { const char* name; const char* what; Stage run; } StageInfo;

static TpxStatus StageScene(Images* im) { DrawScene(im); return tpxOk; }

static TpxStatus StageAllocWork(Images* im) {
  if (im->work) return tpxOk;
  im->work = tpxiMalloc_8u_C1(im->width, im->height, &im->workStep);
  return im->work ? tpxOk : tpxErrMemAlloc;
}

static const StageInfo kStages[] = {
    {"scene", "draw the built-in test image", StageScene},
    {"tpxiMalloc_8u_C1", "allocate a work plane with 64-byte rows", StageAllocWork},
};

int main(int argc, char** argv) {
  const int small = argc > 1 && strcmp(argv[1], "--small") == 0;
  const int reps = small ? 1 : 20;
  const TpxLibraryVersion* v = tpxiGetLibVersion();
  Images im;
  size_t i;
  int r;
  memset(&im, 0, sizeof im);
  im.width = small ? 160 : 1920;
  im.height = small ? 90 : 1080;

  printf("%s, version %s, built %s\n", v->Name, v->Version, v->BuildDate);
  im.gray = tpxiMalloc_8u_C1(im.width, im.height, &im.grayStep);
  if (!im.gray) {
    fprintf(stderr, "allocation failed\n");
    return 1;
  }
  printf("image %dx%d 8u, step %d bytes\n\n", im.width, im.height, im.grayStep);
  printf("%-28s %10s %8s  %s\n", "stage", "median ms", "status", "what");
  for (i = 0; i < sizeof kStages / sizeof kStages[0]; ++i) {
    double t[64];
    TpxStatus st = tpxOk;
    int a, b;
    for (r = 0; r < reps; ++r) {
      const double t0 = Now();
      st = kStages[i].run(&im);
      t[r] = (Now() - t0) * 1e3;
      if (st < 0) break;
    }
    for (a = 0; a < r; ++a) /* median of the runs */
      for (b = a + 1; b < r; ++b)
        if (t[b] < t[a]) { const double s = t[a]; t[a] = t[b]; t[b] = s; }
    printf("%-28s %10.3f %8d  %s\n", kStages[i].name, r ? t[r / 2] : 0.0, st, kStages[i].what);
    if (st < 0) return 1;
  }
  printf("\nchecksum of the image: %08lx\n", Checksum(im.gray, im.grayStep, im.width, im.height) & 0xffffffffUL);
  tpxiFree(im.work);
  tpxiFree(im.gray);
  return 0;
}
