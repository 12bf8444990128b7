// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/screens/FunctionKeys.h"

#include <QLayout>
#include <QShortcut>

#include <utility>

#include "system/screens/FoldingRow.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

constexpr int spacing = 4;

}  // namespace

FunctionKeys::FunctionKeys(const DrillKeys& keys, Used used, QWidget* parent)
    : QWidget(parent), m_keys(keys), m_used(std::move(used)) {
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

QBoxLayout* FunctionKeys::makeRow(const std::vector<DrillKey>& keys) {
  auto* part = new QWidget(this);
  auto* row = new QHBoxLayout(part);
  row->setContentsMargins({});
  row->setSpacing(spacing);
  for (const DrillKey& key : keys) row->addWidget(makeButton(key));
  return row;
}

QPushButton* FunctionKeys::makeButton(const DrillKey& key) {
  auto* button = new QPushButton(key.caption, this);
  button->setObjectName(u"Command1(%1)"_s.arg(key.index));
  button->setToolTip(key.tip);
  button->setFocusPolicy(Qt::NoFocus);
  QString caption = key.caption;
  caption.remove(u'&');
  button->setAccessibleName(caption.simplified());
  // Less than a style's own room around a caption, so that the row fits a small screen.
  button->setMinimumWidth(button->fontMetrics().horizontalAdvance(caption) + 8);
  connect(button, &QPushButton::clicked, this, [this, &key] { m_used(key, Pressed::Button); });
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
  const DrillKey* key = m_keys.find(static_cast<FunctionKey>(event.key() - Qt::Key_F1 + 1));
  if (!key) return false;
  if (m_buttons.at(key->key)->isEnabled() && !event.isAutoRepeat()) m_used(*key, Pressed::Key);
  return true;
}

}  // namespace tavoli
