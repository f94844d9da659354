#include "guide/GuideWindow.h"

#include <QFile>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "guide/GuidePages.h"

namespace vexa {
namespace {

constexpr QSize kOpeningSize{560, 640};

QString FromName(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// A page's file is part of the program.
std::string TextOf(std::string_view name) {
  QFile file(QStringLiteral(":/guide/%1.md").arg(FromName(name)));
  if (!file.open(QIODevice::ReadOnly)) return "This page of the guide cannot be read.\n";
  return file.readAll().toStdString();
}

}  // namespace

GuideWindow::GuideWindow(std::span<const KeyGroup> keys, QWidget* parent)
    : QWidget(parent, Qt::Window) {
  setObjectName(QStringLiteral("Guide"));
  setWindowTitle(tr("Guide"));
  LoadPages(keys);
  BuildControls();
  resize(kOpeningSize);
}

void GuideWindow::LoadPages(std::span<const KeyGroup> keys) {
  for (const GuidePage& page : GuidePages()) {
    pages.push_back({std::string(page.name), std::string(page.title), TextOf(page.name)});
  }
  pages.push_back({std::string(kKeysAndFunctionsPage), "Keys and Functions", KeysPage(keys)});
}

void GuideWindow::BuildControls() {
  auto* const layout = new QVBoxLayout(this);
  auto* const row = new QHBoxLayout;
  layout->addLayout(row);

  const auto addButton = [&](const QString& text, const QString& tip) {
    auto* const button = new QPushButton(text, this);
    button->setObjectName(text);
    button->setToolTip(tip);
    button->setAutoDefault(false);
    row->addWidget(button);
    return button;
  };
  browser = new QTextBrowser(this);
  browser->setObjectName(QStringLiteral("Page"));
  browser->setAccessibleName(tr("Page"));
  browser->setOpenLinks(false);
  connect(browser, &QTextBrowser::anchorClicked, this, &GuideWindow::Follow);

  connect(addButton(tr("Contents"), tr("The table of contents")), &QPushButton::clicked, this,
          [this] { ShowPage(GuidePages().front().name); });
  searchField = new QLineEdit(this);
  searchField->setObjectName(QStringLiteral("Search"));
  searchField->setAccessibleName(tr("Search"));
  searchField->setPlaceholderText(tr("Search the guide"));
  searchField->setClearButtonEnabled(true);
  searchField->setMaxLength(100);
  connect(searchField, &QLineEdit::textChanged, this, &GuideWindow::Search);
  row->addWidget(searchField, 1);
  layout->addWidget(browser, 1);
}

void GuideWindow::ShowPage(std::string_view name) {
  const auto found = std::ranges::find(pages, name, &GuideText::name);
  const GuideText& page = found == pages.end() ? pages.front() : *found;
  browser->setMarkdown(QString::fromStdString(page.text));
  setWindowTitle(tr("Guide: %1").arg(QString::fromStdString(page.title)));
  if (isMinimized()) setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
  browser->setFocus();
}

void GuideWindow::Search(const QString& words) {
  const std::string wanted = words.toStdString();
  if (words.trimmed().isEmpty()) {
    browser->setMarkdown(QString::fromStdString(pages.front().text));
    return;
  }
  browser->setMarkdown(QString::fromStdString(MatchesPage(SearchGuide(pages, wanted), wanted)));
}

void GuideWindow::Follow(const QUrl& link) {
  const QString name = link.path();
  if (!name.endsWith(QLatin1String(".md"))) return;
  ShowPage(name.chopped(3).toStdString());
}

void GuideWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
  } else if (event->matches(QKeySequence::Find)) {
    searchField->setFocus();
    searchField->selectAll();
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace vexa
