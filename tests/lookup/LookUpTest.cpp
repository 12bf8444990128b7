#include <QFile>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include "lookup/LookUp.h"
#include "lookup/screens/LookUpPane.h"
#include "tests/support/Print.h"
#include "tests/support/TestStore.h"

using namespace Qt::StringLiterals;

namespace tavoli {
namespace {

TEST(WordAtTest, FindsTheWordOfAClickOrASelection) {
  const struct {
    const char* name;
    const char16_t* text;
    int start;
    int length;
    const char16_t* word;
  } cases[] = {
      {"caret inside a word", u"an apple pie", 5, 0, u"apple"},
      {"caret on the blank behind a word", u"an apple pie", 8, 0, u"apple"},
      {"caret on the second of two blanks", u"an  apple", 3, 0, u""},
      {"caret between Japanese and English", u"林檎apple", 2, 0, u"apple"},
      {"caret on Japanese behind English", u"apple林檎", 5, 0, u"apple"},
      {"caret on an apostrophe", u"don't", 3, 0, u"don"},
      {"word of one letter", u"a pie", 0, 0, u""},
      {"digits are no letters", u"42nd", 1, 0, u""},
      {"caret outside the text", u"pie", 99, 0, u"pie"},
      {"selected part of a word", u"an apple pie", 4, 3, u"ppl"},
      {"selected idiom is cut at its blank", u"look after it", 0, 10, u"look"},
      {"selection that runs into Japanese", u"apple林檎", 0, 7, u"apple"},
      {"selection that begins with a blank", u"an apple", 2, 6, u""},
      {"selection that goes beyond the text", u"apple", 2, 99, u"ple"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(wordAt(QString::fromUtf16(c.text), c.start, c.length), QString::fromUtf16(c.word));
  }
}

class LookUpTest : public testing::Test {
 protected:
  LookUpTest() {
    for (const char16_t* key : {u"may", u"apple", u"～ or so", u"May", u"apple pie", u"café", u"3D",
                                u"nan", u"zoo", u"zzzzzzzzzzzzzzzzzzzz2"})
      store.addWord(tableJTDIC, QString::fromUtf16(key), test::wordRecord({u"意味"_s}));
  }

  /// The headword of a shown text; all of a text that is no entry.
  static QString headOf(const std::optional<MarkedText>& shown) {
    return shown ? shown->text.section(u"　（"_s, 0, 0) : u"(nothing)"_s;
  }

  test::TestStore store;
  std::unique_ptr<TableCursor> rows = store.database().OpenRecordset(tableJTDIC);
  LookUp lookUp{*rows};
};

TEST_F(LookUpTest, FindsTheEntryAtOrBehindAText) {
  const struct {
    const char* name;
    const char16_t* text;
    const char16_t* found;
  } cases[] = {
      {"idiom by its beginning", u"apple p", u"apple pie"},
      {"the asked-for one of two that differ in case", u"may", u"may"},
      {"neither of the two", u"MAY", u"May"},
      {"the wave dash of an input method", u"〜 or", u"～ or so"},
      {"signed decimal number", u"-1.5e3", u"(nothing)"},
      {"a word that begins with a digit", u"3D", u"3D"},
      {"a word that reads like no number", u"nan", u"nan"},
      {"an end mark", u"zzzzzzzzzzzzzzzzzzzz1", u"zoo"},
      {"behind every row", u"zzzzzzzzzzzzzzzzzzzz3", u"zzzzzzzzzzzzzzzzzzzz3：Not found."},
      {"Japanese", u"林檎", u"zoo"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(headOf(lookUp.find(QString::fromUtf16(c.text))), QString::fromUtf16(c.found));
  }
}

TEST_F(LookUpTest, StepsOverAllEntriesAndStaysAtBothEnds) {
  const QStringList entries = u"～ or so,3D,apple,apple pie,café,May,may,nan,zoo"_s.split(u',');
  for (const QString& entry : entries) EXPECT_EQ(headOf(lookUp.next()), entry);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(headOf(lookUp.next()), entries.last());
  for (auto i = entries.size() - 1; i-- > 0;) EXPECT_EQ(headOf(lookUp.previous()), entries[i]);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(headOf(lookUp.previous()), entries.first());
  EXPECT_EQ(headOf(lookUp.next()), entries[1]) << "staying does not lose the place";
}

TEST_F(LookUpTest, StepsFromWhatWasFound) {
  const struct {
    const char* name;
    const char16_t* text;
    const char16_t* previous;
    const char16_t* next;
  } cases[] = {
      {"in the middle", u"banana", u"apple pie", u"May"},
      {"between case variants", u"may", u"May", u"nan"},
      {"at the end marks", u"zzzz", u"nan", u"zoo"},
      {"up from an empty box leads to the end", u"", u"zoo", u"zoo"},
      {"not found", u"zzzzzzzzzzzzzzzzzzzz3", u"zoo", u"～ or so"},
  };
  for (const auto& c : cases) {
    for (const bool forward : {false, true}) {
      lookUp.find(u"nan"_s);
      lookUp.find(QString::fromUtf16(c.text));
      EXPECT_EQ(headOf(forward ? lookUp.next() : lookUp.previous()),
                QString::fromUtf16(forward ? c.next : c.previous))
          << c.name;
    }
  }
  lookUp.find(QString());
  lookUp.previous();
  EXPECT_EQ(headOf(lookUp.previous()), u"nan"_s) << "then it steps on";
}

TEST_F(LookUpTest, StepsOnFromItsOwnEntryWhereADictionaryIsShared) {
  LookUp other(*rows);
  lookUp.find(u"apple"_s);
  other.find(u"nan"_s);
  EXPECT_EQ(headOf(lookUp.next()), u"apple pie"_s);
  EXPECT_EQ(headOf(other.previous()), u"may"_s);
  EXPECT_EQ(headOf(lookUp.previous()), u"apple"_s);
}

TEST_F(LookUpTest, ADictionaryWithoutEntriesShowsNone) {
  const auto end = store.database().OpenRecordset(tableSTDIC);
  LookUp empty(*end);
  EXPECT_EQ(headOf(empty.next()), u"(nothing)"_s);
  EXPECT_EQ(headOf(empty.previous()), u"(nothing)"_s);
  EXPECT_EQ(headOf(empty.find(u"[a]"_s)), u"[a]：Not found."_s);
}

TEST_F(LookUpTest, ShowsEntriesToTheLetter) {
  const struct {
    const char* name;
    const char16_t* record;
    const char16_t* text;  // below the head
  } cases[] = {
      {"full", u"te′st|exam^trial^|000試験^112検査^|名詞。％動詞も",
       u"   (exam ＝ trial )\n試験  検査  \n名詞。\n動詞も"},
      {"marks", u"||000[試]験^|{注}意", u"試験  \n注意"},
      {"a meaning that stays empty ends the list", u"||000試験^000^000検査^|", u"試験  \n"},
      {"damaged: no list", u"試験", u"\n試験"},
      {"damaged: torn off in a list", u"|exam^|000試験^1", u"   (exam )\n\n000試験^1"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const QString key = u"test "_s + QLatin1String(c.name);
    store.addWord(tableJTDIC, key, QString::fromUtf16(c.record), MemoryState::うろ覚え, 3);
    const auto shown = lookUp.find(key);
    ASSERT_TRUE(shown);
    EXPECT_EQ(shown->text, key + u"　（ うろ覚え　00　ﾚﾍﾞﾙ 03 ）\n"_s + QString::fromUtf16(c.text));
  }
  const auto marked = lookUp.find(u"test marks"_s);
  ASSERT_EQ(marked->spans.size(), 2U);
  EXPECT_EQ(marked->spans[0].kind, MarkedText::Span::Kind::Underlined);
  EXPECT_EQ(marked->text.mid(marked->spans[1].offset, marked->spans[1].length), u"注");
}

TEST_F(LookUpTest, SaysSoWhenTheFileCannotBeRead) {
  for (int i = 0; i < 400; ++i) store.addWord(tableSTDIC, u"word%1"_s.arg(i), QString(500, u'x'));
  rows.reset();
  store.close();
  QFile file(store.path());
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  file.seek(file.size() * 3 / 4);
  file.write(QByteArray(5'000, '\xAA'));
  file.close();
  store.open();
  const auto damaged = store.database().OpenRecordset(tableSTDIC);
  ASSERT_TRUE(damaged);
  LookUp words(*damaged);
  int unread = 0;
  for (int i = 0; i < 400; ++i) {
    const QString word = u"word%1"_s.arg(i);
    const QString head = headOf(words.find(word));
    EXPECT_TRUE(head == word || head.startsWith(u"辞書を読めませんでした。"_s));
    unread += head != word;
  }
  EXPECT_GT(unread, 0);
  EXPECT_LT(unread, 400);
}

TEST_F(LookUpTest, PaneShowsWhatIsTypedSteppedToAndClicked) {
  LookUpPane pane(1, u"中学DB"_s, lookUp);
  pane.resize(400, 300);
  pane.show();
  auto* box = pane.findChild<QLineEdit*>(u"Text3(1)"_s);
  auto* view = pane.findChild<WordView*>(u"RichTextBox3(1)"_s);
  const auto head = [&] { return view->toPlainText().section(u"　（"_s, 0, 0); };
  QTest::keyClicks(box, u"app"_s);
  EXPECT_EQ(head(), u"apple"_s);
  QTest::keyClick(box, Qt::Key_Down);
  EXPECT_EQ(head(), u"apple pie"_s);
  const auto buttons = pane.findChild<QWidget*>(u"UpDown1(1)"_s)->findChildren<QToolButton*>();
  ASSERT_EQ(buttons.size(), 2);
  QTest::mouseClick(buttons[1], Qt::LeftButton);
  EXPECT_EQ(head(), u"café"_s);
  QTest::mouseClick(buttons[0], Qt::LeftButton);
  QTest::keyClick(box, Qt::Key_Up);
  EXPECT_EQ(head(), u"apple"_s);
  EXPECT_EQ(box->text(), u"app"_s) << "stepping leaves the box alone";
  box->clear();
  EXPECT_EQ(head(), u"apple"_s) << "an empty box keeps the entry on show";
  QTest::keyClick(box, Qt::Key_0, Qt::ShiftModifier);
  QTest::keyClick(box, '~');
  EXPECT_EQ(box->text(), u"～～"_s);
  for (int i = 0; i < 2; ++i) {
    pane.setWord(u"apple pie"_s);
    EXPECT_EQ(head(), u"apple pie"_s) << "the same word again, too";
    QTest::keyClick(box, Qt::Key_Down);
  }

  pane.setWord(u"apple pie"_s);
  QSignalSpy words(&pane, &LookUpPane::wordClicked);
  QTextCursor cursor(view->document());
  cursor.setPosition(7);
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->cursorRect(cursor).center());
  ASSERT_EQ(words.size(), 1);
  EXPECT_EQ(words[0][0], u"pie"_s);
}

}  // namespace
}  // namespace tavoli
