// SPDX-License-Identifier: GPL-3.0-or-later

#include "conditions/AutoPlaySettings.h"

#include <algorithm>

#include "data/Schema.h"
#include "data/Text.h"

using namespace Qt::StringLiterals;

namespace tavoli {

AutoPlaySettings readAutoPlaySettings(TableCursor& rsBDIC) {
  AutoPlaySettings settings;
  rsBDIC.Seek(SeekOp::Equal, rowAutoPlay);
  if (rsBDIC.NoMatch()) {
    // Standard values count without being stored.
    static_cast<void>(saveAutoPlaySettings(rsBDIC, settings));
    return settings;
  }
  const QString text = rsBDIC.text(field問正コ);
  settings.autoCount = numberOf(cut(text, 1, 4));
  settings.autoKeyTime = numberOf(cut(text, 5, 4));
  settings.autoEnterTime = numberOf(cut(text, 9, 5));
  settings.timeUpSound = std::clamp(numberOf(cut(text, 14, 1)), 0, 2);
  return settings;
}

bool saveAutoPlaySettings(TableCursor& rsBDIC, const AutoPlaySettings& settings) {
  if (!rsBDIC.EditOrAddNew(rowAutoPlay, {{field回数, u"67"_s}, {field記憶, u"2"_s}})) return false;
  rsBDIC.setValue(field問正コ, digits(settings.autoCount, 4) + digits(settings.autoKeyTime, 4) +
                                   digits(settings.autoEnterTime, 5) +
                                   digits(settings.timeUpSound, 1));
  return rsBDIC.Update();
}

}  // namespace tavoli
