// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/screens/ProgramIcon.h"

using namespace Qt::StringLiterals;

// The pictures lie in a static library, which gives them up only when asked.
static void loadArt() {
  Q_INIT_RESOURCE(art);
}

namespace tavoli {

QIcon programIcon() {
  loadArt();
  return QIcon(u":/art/icon.svg"_s);
}

}  // namespace tavoli
