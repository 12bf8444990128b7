// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace tavoli {

/// What type is used for. Every one holds Latin and Japanese, so that both stand on one line and in
/// one weight.
enum class TypeFace {
  Windows,
  Answers,  ///< of fixed pitch, so that a missing blank shows
  PrintedMincho,
  PrintedGothic,
};

/// The families to look for, the best one first. For windows all may be missing: the desktop's own
/// is then to follow.
QStringList familiesOf(TypeFace face);

}  // namespace tavoli
