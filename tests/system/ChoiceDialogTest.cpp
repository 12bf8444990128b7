#include <QComboBox>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include "system/screens/ChoiceDialog.h"
#include "tests/support/Print.h"

namespace tavoli {
namespace {

TEST(ChoiceDialogTest, ShowsThePresentEntryAndGivesWhatIsChosen) {
  const QStringList entries = {QStringLiteral("Anatomy"), QStringLiteral("Botany")};
  const struct {
    const char* name;
    QStringList entries;
    const char16_t* present;
    Qt::Key key;
    const char16_t* chosen;
  } cases[] = {
      {"nothing chosen so far", entries, u"", Qt::Key_Return, u"Anatomy"},
      {"one chosen earlier", entries, u"Botany", Qt::Key_Return, u"Botany"},
      {"that is gone", entries, u"Zoology", Qt::Key_Return, u"Zoology"},
      {"another one", entries, u"Anatomy", Qt::Key_Down, u"Botany"},
      {"from one that is gone", entries, u"Zoology", Qt::Key_Down, u"Anatomy"},
      {"typing chooses, and adds nothing", entries, u"", Qt::Key_B, u"Botany"},
      {"an empty list", {}, u"", Qt::Key_Down, u""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    ChoiceDialog dialog({QStringLiteral("title"), QStringLiteral("label"), c.entries,
                         QString::fromUtf16(c.present)});
    dialog.show();
    auto* list = dialog.findChild<QComboBox*>(QStringLiteral("Combo2"));
    EXPECT_EQ(dialog.focusWidget(), list);
    QTest::keyClick(list, c.key);
    EXPECT_EQ(dialog.chosen(), QString::fromUtf16(c.chosen));
    EXPECT_EQ(list->count(), c.entries.size());
  }
}

TEST(ChoiceDialogTest, TheButtonsSayWhichWayItEnded) {
  ChoiceDialog dialog({QString(), QString(), {QStringLiteral("Anatomy")}, QString()});
  dialog.show();
  QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  dialog.show();
  QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("Command2")), Qt::LeftButton);
  EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

}  // namespace
}  // namespace tavoli
