// SPDX-License-Identifier: GPL-3.0-or-later

#include "speech/voices/Synthesis.h"

namespace tavoli {

QString withoutControls(QString text) {
  for (QChar& c : text)
    if (c.category() == QChar::Other_Control) c = u' ';
  return text;
}

}  // namespace tavoli
