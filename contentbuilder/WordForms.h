// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace tavoli {

/// Whether an English sentence uses a word or idiom in any of its forms. What stands for other
/// words in an idiom (～, A, B, one's, doing) need not be there, and other words may stand in
/// between.
bool uses(const QString& sentence, const QString& headword);

}  // namespace tavoli
