// SPDX-License-Identifier: GPL-3.0-or-later

#include "conditions/screens/ChoicePanel.h"

#include <QEvent>
#include <QGridLayout>
#include <QKeyEvent>

#include "conditions/ConditionsRules.h"
#include "conditions/ConditionsText.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

constexpr int startModeCount = 4;
constexpr int memorySelectCount = 6;

}  // namespace

ChoicePanel::ChoicePanel(ConditionsRules& rules, QWidget* parent)
    : QWidget(parent),
      m_rules(rules),
      m_column(new QVBoxLayout(this)),
      m_courses(addGroup(u"中学／高校／専門の選択"_s)),
      m_course(u"Option11"_s, m_courses,
               [this](int i) { m_rules.chooseCourse(codeAt<Course>(i)); }),
      m_methods(addGroup(u"練習対象の選択方法"_s)),
      m_method(u"Option5"_s, m_methods,
               [this](int i) { m_rules.chooseMethod(codeAt<SelMethod>(i)); }),
      m_starts(addGroup(u"開始英語の指定"_s)),
      m_startMode(u"Option6"_s, m_starts,
                  [this](int i) { m_rules.chooseStartMode(codeAt<StartMode>(i)); }),
      m_memories(addGroup(u"記憶状態"_s)),
      m_memory(u"Option7"_s, m_memories,
               [this](int i) { m_rules.chooseMemory(codeAt<MemorySelect>(i)); }) {
  m_column->setContentsMargins({});
  addCourses();
  addMethods();
  addStarts();
  addMemories();
  m_column->addStretch(1);
  // The style's own indicators are too small beside an enlarged font.
  constexpr double part = 0.75;
  setStyleSheet(u"QRadioButton::indicator { width: %1px; height: %1px; }"_s.arg(
      static_cast<int>(fontMetrics().height() * part)));
}

QGroupBox* ChoicePanel::addGroup(const QString& title) {
  auto* group = new QGroupBox(title, this);
  m_column->addWidget(group);
  return group;
}

void ChoicePanel::addCourses() {
  const QStringList captions = {u"中学英語"_s, u"高校英語"_s, u"専門英語⇒"_s};
  auto* grid = new QGridLayout(m_courses);
  for (int i = 0; i < captions.size(); ++i) {
    QRadioButton* option = m_course.add(captions[i]);
    option->setToolTip(u"多義語の場合%1DBを優先します。"_s.arg(courseName(codeAt<Course>(i))));
    grid->addWidget(option, i, 0);
  }
  m_special = new QLineEdit(m_courses);
  m_special->setObjectName(u"Text18"_s);
  m_special->setAccessibleName(u"専門ＤＢ"_s);
  m_special->setReadOnly(true);
  m_special->setCursor(Qt::PointingHandCursor);
  m_special->setPlaceholderText(u"専門ＤＢの指定"_s);
  m_special->setToolTip(u"クリックして専門ＤＢを選択します。"_s);
  m_special->installEventFilter(this);
  grid->addWidget(m_special, 2, 1);
  grid->setColumnStretch(1, 1);
}

void ChoicePanel::addMethods() {
  const QStringList objects = {u"レッスンファイル"_s, u"単語・熟語"_s, u"例文"_s};
  // The captions of the sentences are told apart by their blank.
  const QStringList captions = {u"順に"_s,       u"ランダムに"_s, u"順に"_s,
                                u"ランダムに"_s, u"順 に"_s,      u"ランダムに"_s};
  auto* grid = new QGridLayout(m_methods);
  for (int row = 0; row < objects.size(); ++row) {
    auto* caption = new QLabel(objects[row], m_methods);
    caption->setObjectName(u"Label%1"_s.arg(4 + 2 * row));
    caption->setProperty("method", 2 * row);
    caption->installEventFilter(this);
    grid->addWidget(caption, row, 0);
    for (int i = 2 * row; i < 2 * row + 2; ++i)
      grid->addWidget(m_method.add(captions[i], objects[row] + u' ' + captions[i]), row, 1 + i % 2);
    if (row == 0) m_lessons = caption;
  }
  grid->setColumnStretch(2, 1);
}

void ChoicePanel::addStarts() {
  auto* grid = new QGridLayout(m_starts);
  for (int i = 0; i < startModeCount; ++i)
    grid->addWidget(m_startMode.add(startModeName(codeAt<StartMode>(i))), i, 0, 1,
                    i < startModeCount - 1 ? 2 : 1);
  m_start = new StartBox(m_starts);
  m_start->setObjectName(u"Combo1"_s);
  m_start->nameParts(u"開始英語"_s);
  connect(m_start, &QComboBox::editTextChanged, this,
          [this](const QString& text) { m_rules.typeStart(text); });
  grid->addWidget(m_start, startModeCount - 1, 1);
  grid->setColumnStretch(1, 1);
}

void ChoicePanel::addMemories() {
  auto* column = new QVBoxLayout(m_memories);
  for (int i = 0; i < memorySelectCount; ++i)
    column->addWidget(m_memory.add(memorySelectName(codeAt<MemorySelect>(i))));
}

void ChoicePanel::showCourse(Course COURSE, const QString& specialTable) {
  m_course.mark(indexOf(COURSE));
  m_special->setText(specialTable);
  m_special->setCursorPosition(0);
}

void ChoicePanel::showMethod(SelMethod selMethod) {
  m_method.mark(indexOf(selMethod));
  m_shownMethod = selMethod;
  colourLesson();
}

void ChoicePanel::showStartMode(StartMode startMode) {
  m_startMode.mark(indexOf(startMode));
  m_start->setEnabled(startMode == StartMode::named);
}

void ChoicePanel::colourLesson() {
  constexpr int darkBelow = 128;
  const bool lesson = materialOf(m_shownMethod) == Material::lesson;
  const bool dark = palette().color(QPalette::Window).lightness() < darkBelow;
  QPalette colours = palette();
  if (lesson)
    colours.setColor(QPalette::WindowText, dark ? QColor(130, 180, 255) : QColor(0, 0, 200));
  m_lessons->setPalette(colours);
  QFont lessonFont = font();
  lessonFont.setBold(lesson);
  m_lessons->setFont(lessonFont);
}

bool ChoicePanel::eventFilter(QObject* watched, QEvent* event) {
  if (watched == m_special) {
    const bool key = event->type() == QEvent::KeyPress;
    const int code = key ? static_cast<QKeyEvent*>(event)->key() : 0;
    if (event->type() == QEvent::MouseButtonPress || code == Qt::Key_Space ||
        code == Qt::Key_Return || code == Qt::Key_Enter) {
      m_rules.chooseSpecialTable();
      return true;
    }
  } else if (event->type() == QEvent::MouseButtonPress && watched->property("method").isValid()) {
    m_method.click(watched->property("method").toInt());
    return true;
  }
  return QWidget::eventFilter(watched, event);
}

void ChoicePanel::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) colourLesson();
}

}  // namespace tavoli
