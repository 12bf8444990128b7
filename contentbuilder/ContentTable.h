#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace tavoli {

/// One item of the content, as its row holds it.
struct ContentRow {
  QString key;
  QString レベル;  ///< two digits; words only
  QString record;  ///< packed, every 小問 at 全然 with count 00
  QString 読上;    ///< empty for none

  bool operator==(const ContentRow&) const = default;
};

/// What becomes of one table: BDIC or a dictionary.
struct ContentTable {
  QString name;
  std::vector<ContentRow> rows;
};

/// A source as it lies in the content folder.
struct SourceFile {
  QString name;
  QByteArray bytes;
};

}  // namespace tavoli
