#include <QApplication>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include "app/LoginLayout.h"
#include "app/Module1.h"
#include "app/screens/TAVO1.h"
#include "app/screens/TAVO11.h"
#include "system/Files.h"
#include "tests/support/Fakes.h"
#include "tests/support/Print.h"

namespace tavoli {
namespace {

class TAVO1Test : public testing::Test {
 protected:
  TAVO1Test() {
    QObject::connect(&window, &TAVO1::next, [this](const QString& id, const QString& password) {
      typed = {id, password};
      if (id != QStringLiteral("000")) return;
      ++logins;
      window.letIn();
    });
    QObject::connect(&window, &TAVO1::left, [this] { ++ends; });
    window.show();
    window.activateWindow();
    QApplication::processEvents();
  }

  template <class Control>
  Control* control(const char* name) {
    return window.findChild<Control*>(QLatin1String(name));
  }
  QWidget* focus() const { return window.focusWidget(); }

  QTemporaryDir folder;
  SystemFiles files;
  test::FakeClock clock;
  test::ScriptedDialogs dialogs;
  Module1 module = startModule1(files, clock, folder.path());
  TAVO1 window{module, files, dialogs, QStringLiteral("1.2.3")};
  QStringList typed;
  int logins = 0;
  int ends = 0;
};

TEST_F(TAVO1Test, KeysLeadThroughTheFieldsToTheLogin) {
  auto* text1 = control<QLineEdit>("Text1");
  auto* text2 = control<QLineEdit>("Text2");
  EXPECT_EQ(focus(), text2);
  EXPECT_EQ(text2->echoMode(), QLineEdit::Password);
  QTest::keyClick(text2, Qt::Key_Down);
  EXPECT_EQ(focus(), text1);
  QTest::keyClick(text1, Qt::Key_Up);
  EXPECT_EQ(focus(), text2);
  QTest::keyClick(text2, Qt::Key_A);
  QTest::keyClick(text2, Qt::Key_Return);
  EXPECT_EQ(focus(), text1);
  EXPECT_TRUE(typed.isEmpty());

  QTest::keyClick(text1, Qt::Key_Return);
  EXPECT_TRUE(window.isVisible()) << "the login was refused";
  window.setUserId(QStringLiteral("000"));
  QTest::keyClick(text1, Qt::Key_Return);
  EXPECT_EQ(typed, QStringList({QStringLiteral("000"), QStringLiteral("a")}));
  EXPECT_EQ(logins, 1);
  EXPECT_FALSE(window.isVisible());
}

TEST_F(TAVO1Test, TheTimerTakesTheFocusOnlyFromALearnerWhoHasNotBegun) {
  auto* text1 = control<QLineEdit>("Text1");
  auto* timer1 = control<QTimer>("Timer1");
  const auto elapse = [&] {
    timer1->setInterval(0);
    QApplication::processEvents();
  };
  text1->setFocus();
  elapse();
  EXPECT_EQ(focus(), control<QLineEdit>("Text2"));

  text1->setFocus();
  timer1->start(2000);
  QTest::keyClick(text1, Qt::Key_0);
  elapse();
  EXPECT_EQ(focus(), text1);
}

TEST_F(TAVO1Test, ANewLayoutKeepsWhatWasTyped) {
  auto* text1 = control<QLineEdit>("Text1");
  QTest::keyClick(text1, Qt::Key_7);
  window.showNormal();
  for (const QSize& size : {QSize(700, 560), QSize(1900, 1000), QSize(3800, 2100)}) {
    window.resize(size);
    QApplication::processEvents();
    const auto* frame2 = control<QWidget>("Frame2");
    EXPECT_TRUE(frame2->parentWidget()->rect().contains(frame2->geometry())) << size.width();
  }
  EXPECT_EQ(text1->text(), QStringLiteral("7"));
  control<QPushButton>("Command1")->click();
  EXPECT_EQ(ends, 1);
  EXPECT_FALSE(window.isVisible());
}

TEST_F(TAVO1Test, APasswordGuardsThePlacement) {
  QString opened;
  const auto answer = [&](const QString& password) {
    QTimer::singleShot(0, &window, [&opened, password] {
      auto* box = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
      box->setTextValue(password);
      QTimer::singleShot(0, box, [&opened] {
        opened = QApplication::activeModalWidget()->objectName();
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
      });
      box->accept();
    });
    control<QAction>("menu11")->trigger();
  };
  answer(QStringLiteral("letmein"));
  EXPECT_EQ(dialogs.shown.value(0), QStringLiteral("パスワードが間違っています。"));
  EXPECT_TRUE(opened.isEmpty());
  answer(QStringLiteral("8642097531b"));
  EXPECT_EQ(opened, QStringLiteral("TAVO11"));
}

TEST_F(TAVO1Test, TAVO11PlacesTheFilesAndTellsSo) {
  TAVO11 dialog(module, files, dialogs, &window);
  dialog.show();
  const auto place = [&](const QString& where) {
    dialog.findChild<QLineEdit*>(QStringLiteral("Text1"))->setText(where);
    dialog.findChild<QPushButton*>(QStringLiteral("Command1"))->click();
  };
  place(folder.path());
  EXPECT_TRUE(dialog.isVisible()) << "the files lie there already";
  const QString parent = folder.filePath(QStringLiteral("共有"));
  place(parent);
  EXPECT_EQ(dialogs.shown.value(1),
            parent + QStringLiteral("/TavoliPersonalData に個人用ベータベースを配置しました。"));
  EXPECT_FALSE(dialog.isVisible());
}

TEST(LoginLayout, ShowsAllPicturesWholeAndLargeOnALargeScreen) {
  EXPECT_EQ(loginLayout({3840, 2160}).pixelsPerUnit({3840, 2100}), 2);
  for (int width = 640; width <= 4000; width += 240) {
    for (int height = 480; height <= 2400; height += 60) {
      const LoginLayout layout = loginLayout({width, height});
      const QSize area(width, height - 90);
      const double unit = layout.pixelsPerUnit(area);
      const QPoint mottoEnd =
          layout.motto + QPoint(LoginLayout::mottoSize.width(), LoginLayout::mottoSize.height());
      EXPECT_LE(mottoEnd.x() * unit, width + 0.5) << width << 'x' << height;
      EXPECT_LE(mottoEnd.y() * unit, area.height() + 0.5) << width << 'x' << height;
      EXPECT_LE((layout.spriteTop + LoginLayout::walkingSize.height()) * unit, area.height() + 0.5);
      EXPECT_TRUE(unit > 0.5 && unit <= layout.scale);
    }
  }
}

}  // namespace
}  // namespace tavoli
