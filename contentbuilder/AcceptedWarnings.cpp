// SPDX-License-Identifier: GPL-3.0-or-later

#include "contentbuilder/AcceptedWarnings.h"

#include <QHash>
#include <QSet>

#include <algorithm>

#include "contentbuilder/SourceText.h"
#include "data/Text.h"

namespace tavoli {

namespace {

const QString kindUnused = QStringLiteral("不要な行");

}  // namespace

void takeAccepted(const std::vector<SourceFile>& lists, Warnings& warnings, Problems& problems) {
  QHash<QString, SourcePlace> unused;
  QSet<QString> accepted;
  for (const SourceFile& list : lists) {
    const std::optional<SourceText> source = readSource(list, problems);
    if (!source) continue;
    for (const SourceLine& line : source->lines) {
      const QString name = trimBlanks(line.text);
      if (name.isEmpty()) continue;
      accepted.insert(name);
      unused.insert(name, {list.name, line.number});
    }
  }
  std::erase_if(warnings, [&](const Warning& warning) {
    unused.remove(warning.name());
    return accepted.contains(warning.name());
  });
  for (auto line = unused.cbegin(); line != unused.cend(); ++line)
    warnings.push_back(
        {{line->file, line->line,
          QStringLiteral("「%1」という警告はありません。この行を除いてください。").arg(line.key())},
         kindUnused,
         line.key()});
}

}  // namespace tavoli
