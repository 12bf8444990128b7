#include "practice/screens/FunctionKeys.h"

#include <QLayout>
#include <QShortcut>

#include <utility>

#include "system/screens/FoldingRow.h"

namespace tavoli {

namespace {

constexpr int spacing = 4;

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
  auto* parts = new FoldingRow(this);
  parts->setSpacing(spacing);
  auto* left = makeRow(keys.left);
  left->addStretch(1);
  auto* right = makeRow(keys.right);
  right->insertStretch(0, 1);
  for (QLayout* row : {left, right}) parts->add(row->parentWidget());
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->addWidget(parts);
}

QBoxLayout* FunctionKeys::makeRow(const std::vector<KeyButton>& keys) {
  auto* part = new QWidget(this);
  auto* row = new QHBoxLayout(part);
  row->setContentsMargins({});
  row->setSpacing(spacing);
  for (const KeyButton& key : keys) row->addWidget(makeButton(key));
  return row;
}

QPushButton* FunctionKeys::makeButton(const KeyButton& key) {
  auto* button = new QPushButton(key.caption, this);
  button->setObjectName(QStringLiteral("Command1(%1)").arg(key.index));
  button->setToolTip(key.tip);
  button->setFocusPolicy(Qt::NoFocus);
  QString caption = key.caption;
  caption.remove(u'&');
  button->setAccessibleName(caption.simplified());
  // Less than a style's own room around a caption, so that the row fits a small screen.
  button->setMinimumWidth(button->fontMetrics().horizontalAdvance(caption) + 8);
  connect(button, &QPushButton::clicked, this, [this, which = key.key] { m_pressed(which, true); });
  // The button's own hot key would go on pressing it while it is held.
  button->setShortcut({});
  auto* hotKey = new QShortcut(QKeySequence::mnemonic(key.caption), button);
  hotKey->setAutoRepeat(false);
  connect(hotKey, &QShortcut::activated, button, &QPushButton::click);
  m_buttons.emplace(key.key, button);
  return button;
}

void FunctionKeys::enableKey(FunctionKey key, bool enabled) {
  m_buttons.at(key)->setEnabled(enabled);
}

bool FunctionKeys::press(const QKeyEvent& event) {
  const auto found = m_buttons.find(static_cast<FunctionKey>(event.key() - Qt::Key_F1 + 1));
  if (found == m_buttons.end()) return false;
  if (found->second->isEnabled() && !event.isAutoRepeat()) m_pressed(found->first, false);
  return true;
}

}  // namespace tavoli
