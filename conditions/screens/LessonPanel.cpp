// SPDX-License-Identifier: GPL-3.0-or-later

#include "conditions/screens/LessonPanel.h"

#include <QDir>
#include <QScrollBar>

#include "conditions/ConditionsRules.h"
#include "conditions/screens/FolderTree.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

constexpr int listRow = 1;
constexpr int previewRow = 2;

}  // namespace

LessonPanel::LessonPanel(ConditionsRules& rules, QWidget* parent)
    : QGroupBox(u"レッスンファイルの選択"_s, parent),
      m_rules(rules),
      m_name(new QLineEdit(this)),
      m_standard(new QPushButton(u"標準の場所"_s, this)),
      m_folders(new FolderTree([this] { listFiles(); }, this)),
      m_files(makeList(u"File1"_s, u"レッスンファイル"_s, m_fileNames)),
      m_preview(makeList(u"RichTextBox1"_s, u"レッスンファイルの内容"_s, m_lines)),
      m_trouble(new QLabel(this)),
      m_grid(new QGridLayout(this)) {
  m_name->setObjectName(u"Text2"_s);
  m_name->setAccessibleName(u"レッスンファイルの名前"_s);
  connect(m_name, &QLineEdit::textEdited, this, [this](const QString& text) {
    m_rules.typeLessonName(text, m_folders->folder());
    markFile();
  });
  m_standard->setObjectName(u"Command4"_s);
  m_standard->setToolTip(m_rules.standardFolder());
  m_standard->setAutoDefault(true);
  connect(m_standard, &QPushButton::clicked, this,
          [this] { showFolder(m_rules.standardFolder()); });
  m_folders->setObjectName(u"Dir1"_s);
  m_folders->setAccessibleName(u"フォルダ"_s);
  connect(m_files, &QListView::clicked, this, &LessonPanel::pick);
  connect(m_files, &QListView::activated, this, &LessonPanel::pick);
  m_preview->setSelectionMode(QAbstractItemView::NoSelection);
  m_preview->verticalScrollBar()->setObjectName(u"VScroll1"_s);
  m_trouble->setTextFormat(Qt::PlainText);
  m_trouble->setWordWrap(true);
  arrange();
}

QListView* LessonPanel::makeList(const QString& name, const QString& accessibleName,
                                 QStringListModel& model) {
  auto* list = new QListView(this);
  list->setObjectName(name);
  list->setAccessibleName(accessibleName);
  list->setModel(&model);
  list->setEditTriggers(QAbstractItemView::NoEditTriggers);
  list->setUniformItemSizes(true);
  return list;
}

void LessonPanel::arrange() {
  constexpr int fewLines = 5;
  for (QAbstractItemView* view :
       std::initializer_list<QAbstractItemView*>{m_folders, m_files, m_preview}) {
    view->setMinimumHeight(fewLines * view->fontMetrics().lineSpacing());
    view->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
  }
  m_grid->addWidget(m_name, 0, 0);
  m_grid->addWidget(m_standard, 0, 1);
  m_grid->addWidget(m_folders, listRow, 0);
  m_grid->addWidget(m_files, listRow, 1);
  m_grid->addWidget(m_preview, previewRow, 0, 1, 2);
  m_grid->addWidget(m_trouble, previewRow + 1, 0, 1, 2);
  m_grid->setColumnStretch(0, 1);
  m_grid->setColumnStretch(1, 1);
  m_grid->setRowStretch(listRow, 1);
}

void LessonPanel::showMethod(SelMethod selMethod) {
  m_previewed = materialOf(selMethod) == Material::lesson;
  m_name->setEnabled(m_previewed);
  m_preview->setVisible(m_previewed);
  m_grid->setRowStretch(previewRow, m_previewed ? 1 : 0);
  m_trouble->setVisible(m_previewed && !m_trouble->text().isEmpty());
}

void LessonPanel::showFolder(const QString& folder) {
  m_folders->open(folder);
}

void LessonPanel::listFiles() {
  m_fileNames.setStringList(QDir(m_folders->folder())
                                .entryList({u"*.txt"_s, u"*.tav"_s}, QDir::Files,
                                           QDir::Name | QDir::IgnoreCase | QDir::LocaleAware));
  markFile();
}

void LessonPanel::pick(const QModelIndex& file) {
  m_rules.pickLesson(m_folders->folder(), file.data().toString());
}

void LessonPanel::markFile() {
  const qsizetype row = m_fileNames.stringList().indexOf(m_name->text());
  m_files->setCurrentIndex(m_fileNames.index(static_cast<int>(row)));
}

void LessonPanel::showName(const QString& name) {
  m_name->setText(name);
  markFile();
}

void LessonPanel::showLesson(const QStringList& lines, const QString& trouble) {
  m_lines.setStringList(lines);
  m_trouble->setText(trouble);
  m_trouble->setVisible(m_previewed && !trouble.isEmpty());
}

}  // namespace tavoli
