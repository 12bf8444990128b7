// SPDX-License-Identifier: GPL-3.0-or-later

#include "contentbuilder/WordWarnings.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

#include "contentbuilder/Comments.h"
#include "contentbuilder/WordChecks.h"
#include "contentbuilder/WordForms.h"
#include "data/Schema.h"
#include "data/Text.h"
#include "itemtext/MarkedText.h"

namespace tavoli {

namespace {

const QString kindNoWord = QStringLiteral("例文に語なし");
const QString kindForm = QStringLiteral("例文の形");
const QString kindCount = QStringLiteral("例文の数");
const QString kindShared = QStringLiteral("同じ意味");
const QString kindTrailing = QStringLiteral("末尾の～");
const QString kindInQuestion = QStringLiteral("答が問題に");

/// "～", "～ing" and the like as the last word.
bool endsInSlot(const QString& english) {
  return english.section(u' ', -1).contains(u'～');
}

/// An idiom with "～" for its A and B.
QString slotForm(const QString& key) {
  QStringList words = key.split(u' ');
  words.replaceInStrings(QRegularExpression(QStringLiteral("^[AB]$")), QStringLiteral("～"));
  return words.join(u' ');
}

bool holdsWord(const QString& text, const QString& word) {
  const QRegularExpression whole(
      QStringLiteral("(?<![A-Za-z])%1(?![A-Za-z])").arg(QRegularExpression::escape(word)),
      QRegularExpression::CaseInsensitiveOption);
  return text.contains(whole);
}

/// What is compared of a meaning: each of its parts with all hints, which hold for every part.
QStringList partsOf(const QString& meaning) {
  static const QRegularExpression hint(QStringLiteral("（[^（）]*）"));
  QString text = parseMarks(meaning).text;
  QString hints;
  for (auto found = hint.globalMatch(text); found.hasNext();) hints += found.next().captured();
  QStringList parts;
  for (const QString& part : text.remove(hint).split(u'、', Qt::SkipEmptyParts))
    parts.append(hints + trimBlanks(part));
  return parts;
}

/// A learner meets the words of a table together with those of the stages before it.
bool meet(const QString& one, const QString& other) {
  return one == other || !isSpecialTable(one) || !isSpecialTable(other);
}

bool names(const KnownWord& word, const QString& key) {
  return std::any_of(word.同.begin(), word.同.end(),
                     [&](const QString& synonym) { return sameTyped(synonym, key); });
}

class SharedMeanings {
 public:
  Warnings find(const std::vector<KnownWord>& words) {
    for (const KnownWord& word : words)
      for (const QString& meaning : word.meanings)
        for (const QString& part : partsOf(meaning)) m_words[part].push_back(&word);
    for (const KnownWord& word : words)
      for (const QString& meaning : word.meanings)
        for (const QString& part : partsOf(meaning)) compare(word, part);
    return std::move(m_warnings);
  }

 private:
  void compare(const KnownWord& word, const QString& part) {
    for (const KnownWord* other : m_words[part]) {
      const QString& key = other->row->key;
      if (key.compare(word.row->key, Qt::CaseInsensitive) == 0 || !meet(word.table, other->table) ||
          names(word, key))
        continue;
      const QString name = QStringLiteral("%1 = %2").arg(wordName(word.table, word.row->key),
                                                         wordName(other->table, key));
      if (m_told.contains(name)) continue;
      m_told.insert(name);
      m_warnings.push_back(
          {{word.row->place.file, word.row->place.line,
            QStringLiteral("意味「%1」は %2（%3）にもあります。「同」に加えるか、意味に（ ）で"
                           "違いを書いてください。")
                .arg(part, key, other->row->place.text())},
           kindShared,
           name});
    }
  }

  QHash<QString, std::vector<const KnownWord*>> m_words;  ///< by a part of a meaning
  QSet<QString> m_told;
  Warnings m_warnings;
};

}  // namespace

QString wordName(const QString& table, const QString& key) {
  return table + u'/' + key;
}

Warnings wordWarnings(const QString& table, const ContentRow& row, const CurrentRecord& record) {
  Warnings warnings;
  const auto warn = [&](const QString& kind, const QString& message) {
    warnings.push_back({{row.place.file, row.place.line, message}, kind, wordName(table, row.key)});
  };
  size_t examples = 0;
  for (const QString& line : commentLines(record.コメント)) {
    const std::optional<Example> example = exampleIn(line);
    if (!example) {
      warn(kindForm,
           QStringLiteral("コメントの「%1」が「英語、空白二つ、日本語」の形ではありません。")
               .arg(line));
      continue;
    }
    ++examples;
    if (!uses(example->english, row.key))
      warn(kindNoWord, QStringLiteral("例文「%1」に「%2」がどの形でも出てきません。")
                           .arg(example->english, row.key));
  }
  if (examples < record.小問.size())
    warn(kindCount, QStringLiteral("意味が%1個で例文が%2個です。意味ごとに例文を書いてください。")
                        .arg(record.小問.size())
                        .arg(examples));
  const auto slotted = [&](const QString& synonym) {
    return endsInSlot(synonym) && synonym != slotForm(row.key);
  };
  if (endsInSlot(row.key) || std::any_of(record.同.begin(), record.同.end(), slotted))
    warn(kindTrailing,
         QStringLiteral("「英語」か「同」が「～」で終わっています。「～」を入力しないと"
                        "正解になりません。"));
  for (const SubQuestion& s : record.小問) {
    if (holdsWord(parseMarks(s.日本語).text, row.key))
      warn(kindInQuestion, QStringLiteral("意味「%1」の中に答があります。").arg(s.日本語));
  }
  for (const QString& fragment : spokenFragments(record.コメント))
    warnings.push_back(fragmentWarning(row, wordName(table, row.key), fragment));
  return warnings;
}

Warnings sharedMeanings(const std::vector<KnownWord>& words) {
  return SharedMeanings().find(words);
}

}  // namespace tavoli
