// The guide in its window, and what it names.

#include "guide/GuideWindow.h"

#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include "app/CalculatorKeypad.h"
#include "app/MainFrame.h"
#include "display/MemorySettingsStore.h"
#include "display/SettingsLayout.h"
#include "display/WideText.h"
#include "engine/Functions.h"
#include "guide/GuideOnF1.h"
#include "guide/GuidePages.h"
#include "macros/MemoryMenu.h"
#include "plotter/PlotterKeypad.h"
#include "toolkit/Dialog.h"
#include "toolkit/ModeScreen.h"

using namespace vexa;

namespace {

const KeyGroup kGroups[] = {{"Scientific Calculator", CalculatorKeys()},
                            {"Function Plotter", PlotterKeys()}};

QString PageText(std::string_view name) {
  QFile file(
      QStringLiteral(":/guide/%1.md").arg(QString::fromUtf8(name.data(), qsizetype(name.size()))));
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QString::fromUtf8(file.readAll());
}

/// A text of a control without the mark of its shortcut and the dots of a command that asks.
QString Plain(QString text) {
  text.remove(QLatin1Char('&'));
  return text;
}

/// What is written on the controls and in the menus of a window.
void Collect(const QWidget* window, QSet<QString>& names) {
  for (const auto* button : window->findChildren<QAbstractButton*>()) {
    names.insert(Plain(button->text()));
    names.insert(button->accessibleName());
    names.insert(button->objectName());
  }
  for (const auto* label : window->findChildren<QLabel*>()) names.insert(Plain(label->text()));
  for (const auto* action : window->findChildren<QAction*>()) names.insert(Plain(action->text()));
}

/// Every caption of the program: of each mode's screen, and of every dialog that one command opens.
QSet<QString> AllNames() {
  QSet<QString> names;
  for (const KeyGroup& group : kGroups) {
    for (const Key& key : group.keys) names.insert(FromWide(key.caption));
  }
  for (const BaseChoice& choice : kBaseMenu) names.insert(FromWide(choice.name));
  for (const MemoryMenuItem& item : kMemoryMenu) names.insert(FromWide(item.caption));
  for (const ModeName& mode : kModes) {
    MemorySettingsStore store;
    Write(store, settings::kMode, static_cast<int>(mode.mode));
    MainFrame frame(store);
    frame.show();
    const auto screen = [&frame] { return frame.findChild<ModeScreen*>(); };
    if (!QTest::qWaitFor([&] { return screen() && screen()->isVisible(); })) return {};
    Collect(&frame, names);
    for (const char* command : {"Cnv", "Plot"}) {
      if (auto* const key = frame.findChild<QPushButton*>(QLatin1String(command))) {
        if (auto* const field = frame.findChild<QPlainTextEdit*>())
          field->setPlainText(QStringLiteral("x"));
        if (key->isEnabled()) key->click();
      }
    }
    if (auto* const memory = frame.findChild<QPushButton*>(QStringLiteral("MEM"))) {
      memory->click();
      if (QWidget* const popup = QApplication::activePopupWidget()) {
        for (QAction* const action : popup->actions()) {
          if (action->text() == QLatin1String("ReCall MemVar")) action->trigger();
        }
        popup->close();
      }
    }
    for (QAction* const action : frame.findChildren<QAction*>()) {
      const QString text = Plain(action->text());
      if (text == QLatin1String("Edit Macro...") || text == QLatin1String("Edit Unit Convert") ||
          text == QLatin1String("Config...") || text == QLatin1String("Graph Options")) {
        action->trigger();
      }
    }
    QTest::qWait(0);
    for (const QWidget* window : QApplication::topLevelWidgets()) Collect(window, names);
    for (QWidget* const window : QApplication::topLevelWidgets()) {
      if (auto* const dialog = qobject_cast<QDialog*>(window)) dialog->reject();
    }
  }
  return names;
}

}  // namespace

class GuideWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void EveryPageIsPartOfTheProgram() {
    for (const GuidePage& page : GuidePages()) {
      QVERIFY2(PageText(page.name).startsWith(
                   QStringLiteral("# ") +
                   QString::fromUtf8(page.title.data(), qsizetype(page.title.size()))),
               page.name.data());
    }
  }

  void EveryLinkLeadsToAPage() {
    const QRegularExpression link(QStringLiteral("\\]\\(([^)]*)\\)"));
    int links = 0;
    for (const GuidePage& page : GuidePages()) {
      auto found = link.globalMatch(PageText(page.name));
      while (found.hasNext()) {
        ++links;
        const QString target = found.next().captured(1);
        QVERIFY2(!PageText(target.chopped(3).toStdString()).isEmpty(), qPrintable(target));
      }
    }
    QVERIFY(links > 10);
  }

  /// Keys, buttons and labels stand in bold, menu commands in italics, where the guide names them.
  void EveryNameExists() {
    const QSet<QString> names = AllNames();
    QVERIFY(names.size() > 100);
    const QRegularExpression bold(QStringLiteral("\\*\\*((?:\\\\.|[^*])+)\\*\\*"));
    const QRegularExpression italics(QStringLiteral("(?<![*\\\\])\\*([A-Z][^*|`]*)\\*(?!\\*)"));
    int checked = 0;
    for (const GuidePage& page : GuidePages()) {
      QString text = PageText(page.name);
      text.remove(QRegularExpression(QStringLiteral("```[^`]*```")));
      for (auto found = bold.globalMatch(text); found.hasNext(); ++checked) {
        const QString name = found.next().captured(1).remove(QLatin1Char('\\'));
        QVERIFY2(names.contains(name),
                 qPrintable(QString::fromUtf8(page.name.data()) + ": " + name));
      }
      text.remove(bold);
      for (auto found = italics.globalMatch(text); found.hasNext(); ++checked) {
        for (const QString& step : found.next().captured(1).split(QStringLiteral(" > "))) {
          const bool isMenu = step == QLatin1String("File") || step == QLatin1String("Mode");
          QVERIFY2(isMenu || names.contains(step),
                   qPrintable(QString::fromUtf8(page.name.data()) + ": " + step));
        }
      }
    }
    QVERIFY(checked > 80);
  }

  void EveryFunctionIsExplained() {
    const QString page = PageText("functions");
    for (const Keyword& keyword : kKeywords) {
      QVERIFY2(page.contains(QStringLiteral("| `%1` |").arg(FromWide(keyword.name))),
               qPrintable(FromWide(keyword.name)));
    }
    const QRegularExpression row(QStringLiteral("^\\| `([a-z]+)` \\|"),
                                 QRegularExpression::MultilineOption);
    for (auto found = row.globalMatch(page); found.hasNext();) {
      const std::wstring name = found.next().captured(1).toStdWString();
      QVERIFY(std::ranges::find(kKeywords, name, &Keyword::name) != kKeywords.end());
    }
  }

  void ShowsAPageAndFollowsLinks() {
    GuideWindow guide(kGroups, nullptr);
    guide.ShowPage("plotter");
    auto* const browser = guide.findChild<QTextBrowser*>();
    QVERIFY(browser->toPlainText().startsWith(QLatin1String("Function Plotter")));
    QCOMPARE(guide.windowTitle(), QStringLiteral("Guide: Function Plotter"));
    emit browser->anchorClicked(QUrl(QStringLiteral("memory.md")));
    QVERIFY(browser->toPlainText().startsWith(QLatin1String("Memory")));
    guide.ShowPage("no such page");
    QVERIFY(browser->toPlainText().startsWith(QLatin1String("Vexa Calculator")));
  }

  void SearchListsTheMatchesAndLeadsThere() {
    GuideWindow guide(kGroups, nullptr);
    guide.ShowPage("index");
    auto* const browser = guide.findChild<QTextBrowser*>();
    auto* const search = guide.findChild<QLineEdit*>(QStringLiteral("Search"));
    QTest::keyClick(browser, Qt::Key_F, Qt::ControlModifier);
    QVERIFY(search->hasFocus() || guide.focusWidget() == search);
    QTest::keyClicks(search, QStringLiteral("kilobyte"));
    QVERIFY(browser->toPlainText().contains(QLatin1String("binary")));
    QTest::keyClicks(search, QStringLiteral("zzz"));
    QVERIFY(browser->toPlainText().startsWith(QLatin1String("Nothing in the guide")));
    search->clear();
    QVERIFY(browser->toPlainText().startsWith(QLatin1String("Vexa Calculator")));
  }

  void KeysAndFunctionsComeFromTheTables() {
    GuideWindow guide(kGroups, nullptr);
    guide.ShowPage(kKeysAndFunctionsPage);
    const QString text = guide.findChild<QTextBrowser*>()->toPlainText();
    for (const KeyGroup& group : kGroups) {
      for (const Key& key : group.keys) {
        QVERIFY2(text.contains(FromWide(key.caption)), qPrintable(FromWide(key.caption)));
        QVERIFY2(text.contains(FromWide(key.help)), qPrintable(FromWide(key.caption)));
      }
    }
  }

  void EscapeClosesTheGuide() {
    GuideWindow guide(kGroups, nullptr);
    guide.ShowPage("index");
    QTest::keyClick(&guide, Qt::Key_Escape);
    QVERIFY(!guide.isVisible());
  }

  void F1OpensThePageOfTheScreenInFront() {
    MemorySettingsStore store;
    MainFrame frame(store);
    std::string page;
    const GuideOnF1 onF1([&](std::string_view name) { page = name; });
    frame.show();
    QTRY_VERIFY(frame.findChild<ModeScreen*>());
    QTest::keyClick(frame.findChild<QPlainTextEdit*>(), Qt::Key_F1);
    QCOMPARE(page, std::string("calculator"));
    frame.findChild<QPushButton*>(QStringLiteral("Cnv"))->click();
    QTRY_VERIFY(QApplication::activeModalWidget());
    QWidget* const converter = QApplication::activeModalWidget();
    QTest::keyClick(converter, Qt::Key_F1);
    QCOMPARE(page, std::string("converter"));
  }

  /// A new screen or dialog needs a page.
  void EveryScreenHasAPage() {
    for (const ModeName& mode : kModes) {
      MemorySettingsStore store;
      Write(store, settings::kMode, static_cast<int>(mode.mode));
      MainFrame frame(store);
      frame.show();
      QTRY_VERIFY(frame.findChild<ModeScreen*>());
      QVERIFY(GuidePageOf(frame.findChild<ModeScreen*>()) != GuidePages().front().name);
    }
  }
};

QTEST_MAIN(GuideWindowTest)
#include "GuideWindowTest.moc"
