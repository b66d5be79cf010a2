// The border-type value every neighbourhood, resize and warp family takes: the low nibble is
// the kind of synthesised border, bits 4..7 say which sides lie in memory. The test is written
// here once; a family only names the kinds it allows.
#pragma once
#include <cstdint>
#include <initializer_list>

#include "tpxip/types.h"

namespace tpx {

enum class BorderKind : int {
  kRepl = 1,        // nearest edge pixel
  kWrap = 2,        // the image repeated
  kMirror = 3,      // mirrored about the edge pixel, which is not repeated
  kMirrorEdge = 4,  // mirrored with the edge pixel repeated
  kConst = 6,       // a value given by the caller
  kTransp = 7,      // nothing written: the destination keeps what it has
};

inline constexpr int kBorderInMemTop = 0x10;
inline constexpr int kBorderInMemBottom = 0x20;
inline constexpr int kBorderInMemLeft = 0x40;
inline constexpr int kBorderInMemRight = 0x80;
inline constexpr int kBorderInMemAll = 0xF0;  // nothing synthesised at all

constexpr int BorderNibble(int type) { return type & 15; }
constexpr BorderKind BorderKindOf(int type) { return static_cast<BorderKind>(type & 15); }
constexpr int BorderInMemFlags(int type) { return type & 0xF0; }

// A family's allowed kinds, as a set of low nibbles (bit n allows nibble n).
struct BorderSet {
  std::uint16_t nibbles;
  constexpr bool Has(int nibble) const { return ((nibbles >> nibble) & 1u) != 0; }
};
constexpr BorderSet MakeBorderSet(std::initializer_list<BorderKind> kinds) {
  std::uint16_t m = 0;
  for (BorderKind k : kinds) m = static_cast<std::uint16_t>(m | (1u << static_cast<int>(k)));
  return {m};
}

// The sets families name most. ReplMirror is the test (v & 13) != 1, ConstTransp (v & 14) != 6.
inline constexpr BorderSet kBorderConstOnly = MakeBorderSet({BorderKind::kConst});
inline constexpr BorderSet kBorderReplMirror = MakeBorderSet({BorderKind::kRepl, BorderKind::kMirror});
inline constexpr BorderSet kBorderConstTransp = MakeBorderSet({BorderKind::kConst, BorderKind::kTransp});
inline constexpr BorderSet kBorderReplMirrorConst =
    MakeBorderSet({BorderKind::kRepl, BorderKind::kMirror, BorderKind::kConst});

// The three steps, in order: anything above 255 is refused (no flag of a later version can
// pass), exactly 240 (every side in memory) is accepted, then the low nibble must be allowed.
// Flags beside an allowed nibble pass: the nibble test masks them away. The comparison is
// signed, as the value is an int: a negative value is judged by its low nibble alone.
constexpr TpxStatus CheckBorderType(int type, BorderSet allowed) {
  if (type > 255) return tpxErrBorder;
  if (type == kBorderInMemAll) return tpxOk;
  return allowed.Has(BorderNibble(type)) ? tpxOk : tpxErrBorder;
}

}  // namespace tpx
