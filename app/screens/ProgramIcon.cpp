#include "app/screens/ProgramIcon.h"

// The pictures lie in a static library, which gives them up only when asked.
static void loadArt() {
  Q_INIT_RESOURCE(art);
}

namespace tavoli {

QIcon programIcon() {
  loadArt();
  return QIcon(QStringLiteral(":/art/icon.svg"));
}

}  // namespace tavoli
