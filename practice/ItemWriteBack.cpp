#include "practice/ItemWriteBack.h"

#include "data/Schema.h"
#include "data/Text.h"

namespace tavoli {

ItemState itemState(const CurrentRecord& record, const QString& key) {
  bool any全然 = false;
  bool anyうろ覚え = false;
  bool any完全 = false;
  ItemState result;
  for (int k = 1; k <= record.小問数 && !record.記(k).isNull(); ++k) {
    const QChar code = record.記(k);
    any全然 = any全然 || code == memory全然;
    anyうろ覚え = anyうろ覚え || code == memoryうろ覚え;
    any完全 = any完全 || code == memory完全;
    if (memoryName(code).isEmpty()) {
      result.complaints.append(
          (record.sentence ? QStringLiteral("Stop34") : QStringLiteral("Stop38")) + u' ' + key);
    }
  }
  if (!any全然 && !anyうろ覚え) {
    if (any完全) {
      result.state = memory完全;
    } else {
      result.complaints.append(
          (record.sentence ? QStringLiteral("Stop36") : QStringLiteral("Stop39")) + u' ' + key);
    }
  }
  // One blank of a sentence that is not known makes the sentence unknown; a word is known a little
  // as soon as one of its meanings is.
  if (any全然 && (record.sentence || (!anyうろ覚え && !any完全))) result.state = memory全然;
  if (!record.sentence && !any全然 && !anyうろ覚え && !any完全)
    result.complaints.append(QStringLiteral("Stop3A ") + key);
  return result;
}

ItemWriteBack::ItemWriteBack(Database& database, const CourseChoice& course)
    : m_COURSE(course.COURSE), m_rsBDIC(database.OpenRecordset(tableBDIC, {field記憶})) {
  for (const QString& table : prWhichTable(course))
    m_rsTDIC.push_back(database.OpenRecordset(table, {field記憶}));
}

bool ItemWriteBack::WriteBackItem(PracticeItem& item) {
  const ItemState summed =
      itemState(ParseRecord(item.itemRecord, item.itemEnglish, item.itemTable), item.itemEnglish);
  m_complaints += summed.complaints;
  item.itemMemory = summed.state;
  TableCursor* rows = item.isSentence()
                          ? m_rsBDIC.get()
                          : m_rsTDIC[static_cast<size_t>(item.itemTable.unicode() - u'1')].get();
  if (!rows) return false;
  return item.isSentence() ? updateSentenceRow(*rows, item) : updateDictionaryRow(*rows, item);
}

void ItemWriteBack::follow(const TableCursor& rows, const PracticeItem& item) {
  // The row's own state, not the one that was loaded: so the counts stay those of a survey.
  const QString code = rows.text(field記憶);
  const QChar old = code.size() == 1 ? code[0] : QChar();
  if (!memoryPlace(old)) {
    m_complaints.append(
        (item.isSentence() ? QStringLiteral("Stop37 ") : QStringLiteral("Stop3B ")) +
        item.itemEnglish);
  }
  m_growth.move(m_COURSE, item.itemTable, item.itemEnglish, old, item.itemMemory);
}

bool ItemWriteBack::updateSentenceRow(TableCursor& rows, const PracticeItem& item) {
  rows.Seek(SeekOp::Equal, item.itemEnglish);
  if (rows.NoMatch()) return !rows.failed();
  follow(rows, item);
  rows.Edit();
  rows.setValue(field記憶, QString(item.itemMemory));
  rows.setValue(field回数, digits(item.itemTimes, 2));
  if (!item.damaged) rows.setValue(field問正コ, item.itemRecord);
  return rows.Update();
}

bool ItemWriteBack::updateDictionaryRow(TableCursor& rows, const PracticeItem& item) {
  rows.Seek(SeekOp::Equal, item.itemEnglish);
  if (rows.failed()) return false;
  if (rows.NoMatch()) {
    m_complaints.append(QStringLiteral("No Match rsTDIC :##%1##").arg(item.itemEnglish));
    return true;
  }
  // Seek lands on the exactly equal row wherever there is one.
  if (rows.key() != item.itemEnglish) {
    m_complaints.append(QStringLiteral(":%1: not found in rsTDIC").arg(item.itemEnglish));
    return true;
  }
  follow(rows, item);
  rows.Edit();
  rows.setValue(fieldレベル, item.itemLevel);
  rows.setValue(field記憶, QString(item.itemMemory));
  rows.setValue(field回数, digits(item.itemTimes, 2));
  if (!item.damaged) rows.setValue(field発同日コ, item.itemRecord);
  return rows.Update();
}

}  // namespace tavoli
