#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include "system/Files.h"
#include "tests/support/Print.h"
#include "tests/support/TestStore.h"

using namespace Qt::StringLiterals;

namespace tavoli {
namespace {

using test::TestStore;

class TableCursorTest : public testing::Test {
 protected:
  TableCursorTest() {
    for (const char* key :
         {"may", "apple", "～ or so", "May", "3D", "apple pie", "Zoo", "zzz", "'em", "café",
          "@home", "in time", "in ～", "in-box", "zzzzzzzzzzzzzzzzzzzz2"})
      store.addWord(tableJTDIC, QString::fromUtf8(key), u"||000意味^|"_s);
  }
  TestStore store;
  /// In the order of a walk: symbols, digits, letters, reserved keys.
  const QStringList keys =
      (u"'em,@home,～ or so,3D,apple,apple pie,café,in ～,in time,in-box,May,may,Zoo,zzz,"
       u"zzzzzzzzzzzzzzzzzzzz1,zzzzzzzzzzzzzzzzzzzz2"_s)
          .split(u',');
};

TEST_F(TableCursorTest, WalksAndSeeksInKeyOrder) {
  using enum SeekOp;
  auto rows = store.database().OpenRecordset(tableJTDIC);
  QStringList forward, backward;
  for (rows->MoveFirst(); !rows->atEOF(); rows->MoveNext()) forward.append(rows->key());
  for (rows->MoveLast(); !rows->atBOF(); rows->MovePrevious()) backward.prepend(rows->key());
  EXPECT_EQ(forward, keys);
  EXPECT_EQ(backward, keys);
  const struct {
    const char* name;
    SeekOp op;
    const char* key;
    const char* found;  // "" for no match
  } cases[] = {
      {"exact row among case variants", Equal, "may", "may"},
      {"no exact row: the first variant", Equal, "MAY", "May"},
      {"nothing equal", Equal, "banana", ""},
      {"at or after", AtOrAfter, "b", "café"},
      {"at or after lands on an equal key", AtOrAfter, "MAY", "May"},
      {"at or before", AtOrBefore, "b", "apple pie"},
      {"at or before takes the last equal key", AtOrBefore, "may", "may"},
      {"behind everything", AtOrAfter, "zzzzzzzzzzzzzzzzzzzz3", ""},
      {"before everything", AtOrBefore, "!", ""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    rows->Seek(c.op, QString::fromUtf8(c.key));
    EXPECT_EQ(rows->NoMatch(), *c.found == '\0');
    EXPECT_EQ(rows->key(), QString::fromUtf8(c.found));
    const qsizetype place = keys.indexOf(rows->key());
    rows->MoveNext();
    EXPECT_EQ(rows->key(), place < 0 ? QString() : keys.value(place + 1));
    rows->Seek(c.op, QString::fromUtf8(c.key));
    rows->MovePrevious();
    EXPECT_EQ(rows->key(), place < 0 ? QString() : keys.value(place - 1));
  }
}

TEST_F(TableCursorTest, EditsTheCurrentRowAndAddsBesideIt) {
  auto rows = store.database().OpenRecordset(tableJTDIC);
  rows->Seek(SeekOp::Equal, u"apple"_s);
  rows->Edit();
  rows->setValue(field記憶, u"2"_s);
  rows->setValue(field読上, QString());
  ASSERT_TRUE(rows->Update());
  EXPECT_EQ(rows->text(field記憶), u"2"_s);

  rows->AddNew();
  rows->setValue(field英語, u"apple juice"_s);
  ASSERT_TRUE(rows->Update());
  EXPECT_EQ(rows->key(), u"apple"_s);
  rows->MoveNext();
  EXPECT_EQ(rows->key(), u"apple juice"_s);
  EXPECT_EQ(rows->value(field読上), std::nullopt) << "a field never set is NULL";
  EXPECT_EQ(store.stored(tableJTDIC, u"apple"_s, field読上), QString())
      << "the empty text is not NULL";
  EXPECT_FALSE(rows->Update()) << "nothing was begun";
}

TEST_F(TableCursorTest, WriteKeepsAllOrNothing) {
  auto rows = store.database().OpenRecordset(tableJTDIC);
  for (const bool succeeds : {false, true}) {
    const bool written = store.database().write([&] {
      rows->Seek(SeekOp::Equal, u"apple"_s);
      rows->Edit();
      rows->setValue(field記憶, u"2"_s);
      return rows->Update() && succeeds;
    });
    EXPECT_EQ(written, succeeds);
    EXPECT_EQ(store.stored(tableJTDIC, u"apple"_s, field記憶), succeeds ? u"2"_s : u"0"_s);
  }
}

TEST(OpenDatabaseTest, TellsWhyAFileCannotBeOpened) {
  TestStore store;
  store.addSentence(u"000010"_s, QString(200'000, u'x'));
  store.close();
  SystemFiles files;
  const QByteArray content = files.read(store.path()).value();
  QByteArray newer = content;
  newer[63] = 2;  // where SQLite keeps the last byte of the version
  const struct {
    const char* name;
    std::optional<QByteArray> content;
    int expected;
  } cases[] = {{"missing", std::nullopt, openError::fileNotFound},
               {"empty", QByteArray(), openError::notADatabase},
               {"foreign", QByteArray(2000, 'x'), openError::notADatabase},
               {"cut inside its first page", content.left(60), openError::notADatabase},
               {"cut in half", content.left(content.size() / 2), openError::notADatabase},
               {"of a newer program", newer, openError::notADatabase},
               {"sound", content, openError::none}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const QString path = store.folder() + u"/case.mdb"_s;
    if (c.content) EXPECT_EQ(files.write(path, *c.content), FileResult::Ok);
    const auto [database, errorNumber] = openDatabase(path);
    EXPECT_EQ(errorNumber, c.expected);
    EXPECT_EQ(database.has_value(), c.expected == openError::none);
  }
}

TEST(OpenDatabaseTest, ListsTheSpecialistDictionariesOnly) {
  TestStore store;
  EXPECT_EQ(specialTables(store.database()), QStringList{u"BusinessTOEIC"_s});
  for (const char16_t* table : {u"MSysObjects", u"USysOwn", u"医学MSys", u"Anatomy"})
    ASSERT_TRUE(store.database().createTable(QString::fromUtf16(table)));
  EXPECT_EQ(specialTables(store.database()),
            QStringList({u"BusinessTOEIC"_s, u"医学MSys"_s, u"Anatomy"_s}));
}

TEST_F(TableCursorTest, TellsBytesThatAreNoUtf8FromAStoredReplacementCharacter) {
  SQLite::Database raw(store.path().toStdString(), SQLite::OPEN_READWRITE);
  raw.exec("UPDATE JTDIC SET 発同日コ=CAST(x'41FF42' AS TEXT) WHERE 英語='apple'");
  raw.exec("UPDATE JTDIC SET 発同日コ=CAST(x'41EFBFBD42' AS TEXT) WHERE 英語='Zoo'");
  auto rows = store.database().OpenRecordset(tableJTDIC);
  for (const auto& [key, damaged] :
       {std::pair(u"apple"_s, true), std::pair(u"Zoo"_s, false), std::pair(u"may"_s, false)}) {
    rows->Seek(SeekOp::Equal, key);
    EXPECT_EQ(rows->isDamaged(field発同日コ), damaged) << qPrintable(key);
  }
}

}  // namespace
}  // namespace tavoli
