// SPDX-License-Identifier: GPL-3.0-or-later

#include "contentbuilder/SourceText.h"

#include <QStringDecoder>

#include <algorithm>

#include "data/Text.h"
#include "data/TextFile.h"

namespace tavoli {

namespace {

bool isUtf8(const QByteArray& bytes) {
  QStringDecoder decoder(QStringDecoder::Utf8);
  const QString text = decoder(bytes);
  return !decoder.hasError() && !text.contains(QChar::Null);
}

}  // namespace

std::optional<SourceText> readSource(const SourceFile& file, Problems& problems) {
  if (!isUtf8(file.bytes)) {
    const QList<QByteArray> lines = file.bytes.split('\n');
    const auto bad = std::find_if_not(lines.begin(), lines.end(), isUtf8);
    problems.push_back({file.name, static_cast<int>(bad - lines.begin()) + 1,
                        QStringLiteral("UTF-8の文字ではありません。"
                                       "ファイルをUTF-8で保存しなおしてください。")});
    return std::nullopt;
  }
  SourceText source{file.name, {}, {}};
  int number = 0;
  for (const QString& line : splitLines(storedSpelling(*decodeText(file.bytes)))) {
    ++number;
    (line.startsWith(u'#') ? source.headings : source.lines).push_back({number, line});
  }
  return source;
}

}  // namespace tavoli
