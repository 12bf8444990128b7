// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

namespace tavoli {

/// Where something stands in the sources.
struct SourcePlace {
  QString file;
  int line = 1;

  QString text() const { return QStringLiteral("%1:%2").arg(file, QString::number(line)); }
};

/// Where each key of a table stands; a key may stand once in all files of its table.
using KeyPlaces = QHash<QString, SourcePlace>;

/// One item of the content, as its row holds it.
struct ContentRow {
  QString key;
  QString レベル;  ///< two digits; words only
  QString record;  ///< packed, every 小問 at 全然 with count 00
  QString 読上;    ///< empty for none
  SourcePlace place = {};
  int lastLine = 0;  ///< of the item in its source

  /// The place is no part of the item.
  bool operator==(const ContentRow& other) const {
    return key == other.key && レベル == other.レベル && record == other.record &&
           読上 == other.読上;
  }
};

/// What a source holds, line by line: keys, and headings that begin with "#".
struct SourceLayout {
  QString file;
  QStringList lines;
};

/// What becomes of one table: BDIC or a dictionary.
struct ContentTable {
  QString name;
  std::vector<ContentRow> rows;
  std::vector<SourceLayout> layouts = {};
};

/// A source as it lies in the content folder; its name is the path from there.
struct SourceFile {
  QString name;
  QByteArray bytes;
};

}  // namespace tavoli
