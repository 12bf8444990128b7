// SPDX-License-Identifier: GPL-3.0-or-later

#include "system/TypeFaces.h"

namespace tavoli {

QStringList familiesOf(TypeFace face) {
  switch (face) {
    case TypeFace::Windows:
      return {QStringLiteral("Noto Sans CJK JP"), QStringLiteral("BIZ UDPGothic"),
              QStringLiteral("IPAPGothic")};
    case TypeFace::Answers:
      return {QStringLiteral("ＭＳ ゴシック"), QStringLiteral("Noto Sans Mono CJK JP"),
              QStringLiteral("IPAGothic"), QStringLiteral("monospace")};
    case TypeFace::PrintedMincho:
      return {QStringLiteral("MS Mincho"), QStringLiteral("IPAMincho"),
              QStringLiteral("Noto Serif CJK JP"), QStringLiteral("serif")};
    case TypeFace::PrintedGothic:
      return {QStringLiteral("MS Gothic"), QStringLiteral("IPAGothic"),
              QStringLiteral("Noto Sans Mono CJK JP"), QStringLiteral("monospace")};
  }
  return {};
}

}  // namespace tavoli
