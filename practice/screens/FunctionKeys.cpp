#include "practice/screens/FunctionKeys.h"

#include <QLayout>

#include <utility>

namespace tavoli {

namespace {

const QString exitTip = QStringLiteral("F6 ｷｰでプログラムを終了します。");

}  // namespace

const KeyButtons& practiceKeys() {
  static const KeyButtons keys{
      {{FunctionKey::F1, 0, QStringLiteral("正解F1(&Z)"),
        QStringLiteral("F1 ｷｰ又は Ａlt ｷｰ ＋ Z ｷｰで正解を表示します。")},
       {FunctionKey::F2, 1, QStringLiteral("次小問F2(&X)"),
        QStringLiteral("F２ ｷｰ又は Ａlt ｷｰ ＋ X ｷｰで次の小問に移ります。")},
       {FunctionKey::F3, 2, QStringLiteral("次問題F3(&C)"),
        QStringLiteral("Ｆ３ ｷｰ又は Ａlt ｷｰ ＋ C ｷｰで次の問題に移ります。")},
       {FunctionKey::F4, 3, QStringLiteral("前問題F4(&V)"),
        QStringLiteral("Ｆ４ ｷｰ又は  Ａlｔ ｷｰ ＋ Ｖ ｷｰで一つ前の問題に移ります。")},
       {FunctionKey::F11, 10, QStringLiteral("知っているF11(&L)"),
        QStringLiteral("F11 ｷｰ又は Ａlt ｷｰ ＋ L ｷｰで『全然』の小問を『うろ覚え』にします。")}},
      {{FunctionKey::F9, 8, QStringLiteral("問題印刷 F9"),
        QStringLiteral("F９ｷｰで この問題を終了時に印刷します。")},
       {FunctionKey::F7, 6, QStringLiteral("レッスン変更 F7"),
        QStringLiteral("F7 ｷｰで別のレッスンファイルに変更します。")},
       {FunctionKey::F6, 5, QStringLiteral("終了 F6"), exitTip}}};
  return keys;
}

const KeyButtons& reviewKeys() {
  static const KeyButtons keys{
      {{FunctionKey::F1, 0, QStringLiteral("正解 F1(&Z)"),
        QStringLiteral("F1 ｷｰ又は Ａlt ｷｰ ＋ Z ｷｰで正解を表示します。")},
       {FunctionKey::F11, 10, QStringLiteral(" 次へ F11 ( &L )"),
        QStringLiteral("F11 ｷｰ又は Ａlt ｷｰ ＋ L ｷｰで次の問題に移ります。")}},
      {{FunctionKey::F6, 5, QStringLiteral("終了 F6"), exitTip}}};
  return keys;
}

FunctionKeys::FunctionKeys(const KeyButtons& keys, Pressed pressed, QWidget* parent)
    : QWidget(parent), m_pressed(std::move(pressed)) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(4);
  for (const KeyButton& key : keys.left) addButton(key);
  row->addStretch(1);
  for (const KeyButton& key : keys.right) addButton(key);
}

void FunctionKeys::addButton(const KeyButton& key) {
  auto* button = new QPushButton(key.caption, this);
  button->setObjectName(QStringLiteral("Command1(%1)").arg(key.index));
  button->setToolTip(key.tip);
  button->setFocusPolicy(Qt::NoFocus);
  // Less than a style's own room around a caption, so that the row fits a small screen.
  QString caption = key.caption;
  caption.remove(u'&');
  button->setMinimumWidth(button->fontMetrics().horizontalAdvance(caption) + 12);
  connect(button, &QPushButton::clicked, this, [this, which = key.key] { m_pressed(which, true); });
  layout()->addWidget(button);
  m_buttons.emplace(key.key, button);
}

void FunctionKeys::enableKey(FunctionKey key, bool enabled) {
  m_buttons.at(key)->setEnabled(enabled);
}

bool FunctionKeys::press(int key) {
  const auto found = m_buttons.find(static_cast<FunctionKey>(key - Qt::Key_F1 + 1));
  if (found == m_buttons.end()) return false;
  if (found->second->isEnabled()) m_pressed(found->first, false);
  return true;
}

}  // namespace tavoli
