#pragma once

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

#include "lookup/LookUp.h"
#include "practice/PracticeLoop.h"
#include "tests/support/Fakes.h"
#include "tests/support/TestStore.h"
#include "ui/screens/MarkedView.h"

namespace tavoli::test {

/// The window of the practice or of the review with what both hold, driven through its controls.
/// The dictionary that words are looked up in is JTDIC.
template <class Window>
class AnswerWindow : public testing::Test {
 protected:
  void add(const QString& key, TableCode table, const QString& record) {
    PracticeItem item;
    item.itemEnglish = key;
    item.itemTable = table;
    item.itemRecord = record;
    set.append(item);
  }
  template <class T>
  T* find(const char16_t* name) {
    return window.template findChild<T*>(QString::fromUtf16(name));
  }
  static void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
  void type(const QString& text) {
    QTest::keyClicks(answer, text);
    press(Qt::Key_Return);
  }

  PracticeSet set;
  CourseChoice course;
  PracticeConditions conditions;
  RunClock times;
  ScriptedDialogs dialogs;
  FakeRandom random;
  FakeClock clock;
  RecordingSpeaker speaker;
  TestStore store;
  std::unique_ptr<TableCursor> cursor = store.database().OpenRecordset(tableJTDIC);
  LookUp dictionary{*cursor};
  Window window;
  QLineEdit* answer = find<QLineEdit>(u"Text2");
  MarkedView* question = find<MarkedView>(u"RichTextBox4");
  MarkedView* fullAnswer = find<MarkedView>(u"RichTextBox2");
  QLabel* message = find<QLabel>(u"RichTextBox5");
};

}  // namespace tavoli::test
