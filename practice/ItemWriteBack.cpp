// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/ItemWriteBack.h"

#include "data/Schema.h"
#include "data/Text.h"

using namespace Qt::StringLiterals;

namespace tavoli {

ItemWriteBack::ItemWriteBack(Database& database, const CourseChoice& course)
    : m_COURSE(course.COURSE), m_rsBDIC(database.OpenRecordset(tableBDIC, {field記憶})) {
  for (const QString& table : prWhichTable(course))
    m_rsTDIC.push_back(database.OpenRecordset(table, {field記憶}));
}

bool ItemWriteBack::WriteBackItem(const PracticeItem& item) {
  const ItemState summed =
      itemState(ParseRecord(item.itemRecord, item.itemEnglish, item.itemTable), item.itemEnglish);
  m_complaints += summed.complaints;
  TableCursor* rows = item.isSentence()
                          ? m_rsBDIC.get()
                          : m_rsTDIC[static_cast<size_t>(placeOf(item.itemTable) - 1)].get();
  if (!rows) return false;
  return item.isSentence() ? updateSentenceRow(*rows, item, summed.state)
                           : updateDictionaryRow(*rows, item, summed.state);
}

void ItemWriteBack::follow(const TableCursor& rows, const PracticeItem& item, MemoryState state) {
  // The row's own state, not the one that was loaded: so the counts stay those of a survey.
  const QString code = rows.text(field記憶);
  const auto old = code.size() == 1 ? codeOf<MemoryState>(code) : MemoryState::none;
  if (!memoryPlace(old)) {
    m_complaints.append((item.isSentence() ? u"Stop37 "_s : u"Stop3B "_s) + item.itemEnglish);
  }
  m_growth.move(m_COURSE, item.itemTable, item.itemEnglish, old, state);
}

bool ItemWriteBack::updateSentenceRow(TableCursor& rows, const PracticeItem& item,
                                      MemoryState state) {
  rows.Seek(SeekOp::Equal, item.itemEnglish);
  if (rows.NoMatch()) return !rows.failed();
  follow(rows, item, state);
  rows.Edit();
  rows.setValue(field記憶, QString(stored(state)));
  rows.setValue(field回数, digits(item.itemTimes, 2));
  if (!item.damaged) rows.setValue(field問正コ, item.itemRecord);
  return rows.Update();
}

bool ItemWriteBack::updateDictionaryRow(TableCursor& rows, const PracticeItem& item,
                                        MemoryState state) {
  rows.Seek(SeekOp::Equal, item.itemEnglish);
  if (rows.failed()) return false;
  if (rows.NoMatch()) {
    m_complaints.append(u"No Match rsTDIC :##%1##"_s.arg(item.itemEnglish));
    return true;
  }
  // Seek lands on the exactly equal row wherever there is one.
  if (rows.key() != item.itemEnglish) {
    m_complaints.append(u":%1: not found in rsTDIC"_s.arg(item.itemEnglish));
    return true;
  }
  follow(rows, item, state);
  rows.Edit();
  rows.setValue(fieldレベル, item.itemLevel);
  rows.setValue(field記憶, QString(stored(state)));
  rows.setValue(field回数, digits(item.itemTimes, 2));
  if (!item.damaged) rows.setValue(field発同日コ, item.itemRecord);
  return rows.Update();
}

}  // namespace tavoli
