/* tpxIP: shared sample types, small records, enumerations and status codes. */
#ifndef TPXIP_TYPES_H
#define TPXIP_TYPES_H

#if defined(__GNUC__)
#define TPXAPI __attribute__((visibility("default")))
#else
#define TPXAPI
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Sample types ------------------------------------------------------------------------ */
typedef unsigned char Tpx8u;
typedef signed char Tpx8s;
typedef unsigned short Tpx16u;
typedef short Tpx16s;
typedef unsigned int Tpx32u;
typedef int Tpx32s;
typedef float Tpx32f;
typedef double Tpx64f;
typedef long long Tpx64s;
typedef unsigned long long Tpx64u;
typedef struct { Tpx16s re, im; } Tpx16sc;
typedef struct { Tpx32s re, im; } Tpx32sc;
typedef struct { Tpx32f re, im; } Tpx32fc;
typedef struct { Tpx64f re, im; } Tpx64fc;

/* ---- By-value records -------------------------------------------------------------------- */
typedef struct { int width, height; } TpxSize;
typedef struct { int x, y; } TpxPoint;
typedef struct { int x, y, width, height; } TpxRect;
typedef struct { long long width, height; } TpxSizeL;
typedef struct { long long x, y; } TpxPointL;
typedef struct { long long x, y, width, height; } TpxRectL;
typedef struct { int borderLeft, borderTop, borderRight, borderBottom; } TpxBorderSize;

/* ---- Status: 0 success, negative error, positive warning ---------------------------------- */
typedef int TpxStatus;
enum {
  tpxOk = 0,
  tpxWarnNoOperation = 1,
  tpxWarnZeroDenominator = 2,
  tpxWarnQuadNotParallelogram = 28,
  tpxWarnEmptySrcRoi = 29,
  tpxWarnNoOverlap = 30,
  tpxWarnOddSize = 35,
  tpxWarnEvenWeight = 39,
  tpxWarnAntialiasIgnored = 46,
  tpxWarnSizeReduced = 48,
  tpxWarnRoundFlagDropped = 52,
  tpxErrBadArg = -5,
  tpxErrSize = -6,
  tpxErrRange = -7,
  tpxErrNullPtr = -8,
  tpxErrMemAlloc = -9,
  tpxErrDivByZero = -10,
  tpxErrOutOfRange = -11,
  tpxErrScaleRange = -12,
  tpxErrContextMismatch = -13,
  tpxErrNotSupportedMode = -14,
  tpxErrStep = -16,
  tpxErrFftOrder = -17,
  tpxErrFftFlag = -18,
  tpxErrThresholdOrder = -19,
  tpxErrMomentZero = -21,
  tpxErrMirrorAxis = -22,
  tpxErrInterpolation = -23,
  tpxErrResizeFactor = -24,
  tpxErrMaskSize = -33,
  tpxErrAnchor = -34,
  tpxErrEpsilon = -36,
  tpxErrStepTooSmall = -37,
  tpxErrChannelCount = -47,
  tpxErrIlsMode = -49,
  tpxErrAlphaOp = -50,
  tpxErrZeroDivisorArg = -51,
  tpxErrNumChannels = -53,
  tpxErrSingular = -56,
  tpxErrRectangle = -57,
  tpxErrQuad = -58,
  tpxErrDataType = -59,
  tpxErrChannelOrder = -60,
  tpxErrLutLevels = -106,
  tpxErrHistLevels = -107,
  tpxErrStepAlign = -108,
  tpxErrNoiseRange = -125,
  tpxErrQualityIndex = -210,
  tpxErrWeight = -211,
  tpxErrDecimateFraction = -212,
  tpxErrRoundMode = -213,
  tpxErrBorder = -225,
  tpxErrYuvRoi = -227,
  tpxErrAlgorithm = -228,
  tpxErrDirection = -231,
  tpxErrExceededSize = -232,
  tpxErrWarpKind = -233
};

/* ---- Enumerations: passed as plain 32-bit integers; the values are the contract ------------ */
typedef int TpxDataType;
enum { tpxDt8u = 1, tpxDt16u = 5, tpxDt16s = 7, tpxDt32s = 11, tpxDt32f = 13, tpxDt64f = 19 };

typedef int TpxRoundMode;
enum { tpxRndZero = 0, tpxRndHalfEven = 1, tpxRndHalfAway = 2, tpxRndFlag16 = 16 };

typedef int TpxCmpOp;
enum { tpxCmpLess = 0, tpxCmpLessEq = 1, tpxCmpEq = 2, tpxCmpGreaterEq = 3, tpxCmpGreater = 4 };

typedef int TpxAxis;
enum {
  tpxAxisHorizontal = 0, tpxAxisVertical = 1, tpxAxisBoth = 2, tpxAxisDiag3 = 3, tpxAxisDiag4 = 4
};

typedef int TpxNormType;
enum { tpxNormL1 = 2, tpxNormL2 = 4 };

typedef int TpxMaskSize;
enum { tpxMsk3x3 = 33, tpxMsk5x5 = 55 };

typedef int TpxInterpolationType;
enum {
  tpxInterpNearest = 1, tpxInterpLinear = 2, tpxInterpCubic = 6, tpxInterpSuper = 8,
  tpxInterpLanczos = 16
};

/* Border type: the low nibble names the kind, bits 4..7 the sides that lie in memory. */
typedef int TpxBorderType;
enum {
  tpxBorderRepl = 1, tpxBorderWrap = 2, tpxBorderMirror = 3, tpxBorderMirrorEdge = 4,
  tpxBorderConst = 6, tpxBorderTransp = 7,
  tpxBorderInMemTop = 0x10, tpxBorderInMemBottom = 0x20, tpxBorderInMemLeft = 0x40,
  tpxBorderInMemRight = 0x80, tpxBorderInMem = 0xF0
};

typedef int TpxHintAlgorithm; /* never validated */
enum { tpxAlgHintNone = 0, tpxAlgHintFast = 1, tpxAlgHintAccurate = 2 };

/* FFT normalisation flags. */
#define TPX_FFT_DIV_FWD_BY_N 1
#define TPX_FFT_DIV_INV_BY_N 2
#define TPX_FFT_DIV_BY_SQRTN 4
#define TPX_FFT_NODIV_BY_ANY 8

/* algType of convolution and template SAD: low byte the engine, bits 16..23 the form. */
enum {
  tpxAlgAuto = 0x00000000, tpxAlgDirect = 0x00000001, tpxAlgFFT = 0x00000002,
  tpxAlgMask = 0x000000FF,
  tpxROIFull = 0x00000000, tpxROIValid = 0x00010000, tpxROIMask = 0x00FF0000
};

/* ---- Version record ---------------------------------------------------------------------- */
typedef struct {
  int major;
  int minor;
  int majorBuild;
  unsigned int build;
  char targetCpu[4];
  const char* Name;
  const char* Version;
  const char* BuildDate;
} TpxLibraryVersion;

#ifdef __cplusplus
}
#endif
#endif /* TPXIP_TYPES_H */
