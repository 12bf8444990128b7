#include <gtest/gtest.h>

#include "data/Descent.h"
#include "data/Machine.h"
#include "system/Files.h"
#include "tests/support/Print.h"
#include "tests/support/TestStore.h"

namespace tavoli {
namespace {

class DescentTest : public testing::Test {
 protected:
  QString stored() {
    return store.stored(tableBDIC, rowDescent, field問正コ).value_or(QStringLiteral("none"));
  }
  bool writeASentence(bool andGiveUp = false) {
    return store.database().write([&] {
      store.addSentence(QStringLiteral("000010"), QStringLiteral("問||"));
      return !andGiveUp;
    });
  }
  Change lastOf(const QString& machine) {
    return readDescent(store.database()).value_or(Descent()).value(machine);
  }

  test::TestStore store;
  SystemFiles files;
};

TEST_F(DescentTest, CountsEveryStoredChangeOfAMachine) {
  writeASentence();
  EXPECT_EQ(stored(), QStringLiteral("none")) << "in the folder of no machine";
  ASSERT_TRUE(makeMachine(files, store.folder()));
  const QString machine = machineOf(store.folder());
  EXPECT_TRUE(makeMachine(files, store.folder()));
  EXPECT_EQ(machineOf(store.folder()), machine) << "made once";

  writeASentence();
  const Change first = lastOf(machine);
  EXPECT_EQ(first.number, 1) << "all that was written together";
  EXPECT_FALSE(writeASentence(true));
  EXPECT_TRUE(store.database().write([] { return true; }));
  EXPECT_EQ(lastOf(machine), first) << "nothing was changed";
  store.addSentence(QStringLiteral("000020"), QStringLiteral("問||"));
  EXPECT_EQ(lastOf(machine).number, 2) << "a row that is written alone";
  EXPECT_NE(lastOf(machine).token, first.token);
  EXPECT_EQ(store.stored(tableBDIC, rowDescent, field回数), QStringLiteral("00"));
}

TEST_F(DescentTest, AChangeThatCannotBeCountedRightlyNeverLooksAsIfItWereNone) {
  const auto path = store.folder() + u'/' + machineFileName;
  ASSERT_TRUE(makeMachine(files, store.folder()));
  writeASentence();
  const Descent before = *readDescent(store.database());
  EXPECT_EQ(files.remove(path), FileResult::Ok);
  writeASentence();
  const Descent lost = *readDescent(store.database());
  EXPECT_EQ(lost.size(), 2) << "the machine's id is gone";
  for (const char* damaged : {"", "a 1 b", "a x b;", "a 1 b;c", "a 01 b;", "a -1 b;"}) {
    EXPECT_FALSE(parseDescent(QString::fromUtf8(damaged))) << damaged;
    auto rows = store.database().OpenRecordset(tableBDIC);
    EXPECT_TRUE(rows->EditOrAddNew(rowDescent));
    rows->setValue(field問正コ, QString::fromUtf8(damaged));
    EXPECT_TRUE(rows->Update());
    EXPECT_EQ(files.write(path, "0123456789abcdef\n"), FileResult::Ok);
    writeASentence();
    EXPECT_GE(readDescent(store.database()).value_or(Descent()).size(), 2) << damaged;
  }
  EXPECT_EQ(files.write(path, "no id"), FileResult::Ok);
  EXPECT_TRUE(makeMachine(files, store.folder()));
  EXPECT_EQ(machineOf(store.folder()).size(), 16);
}

}  // namespace
}  // namespace tavoli
