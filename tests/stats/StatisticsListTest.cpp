// The data list on both screens: adding, editing, deleting, clearing, sorting, by mouse and keys.

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QSignalSpy>
#include <QTest>

#include "stats/DataTableModel.h"
#include "stats/StatisticsScreenDriver.h"
#include "toolkit/FileDialogs.h"
#include "toolkit/KeyboardOnFocus.h"

namespace vexa {

using test::StatisticsScreenDriver;

class StatisticsListTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    one = std::make_unique<StatisticsScreenDriver>(Mode::OneVarStatistics);
    two.reset();
  }
  void OpensEmpty();
  void AddsTheNewestFirst();
  void EnterAdds();
  void AHeldEnterAddsOnce();
  void TwoVariables();
  void KeysAfterEachRow();
  void SaysWhatIsWrongAndGoesThere_data();
  void SaysWhatIsWrongAndGoesThere();
  void ReadsNumbersAsOthersWriteThem_data();
  void ReadsNumbersAsOthersWriteThem();
  void TakesTextThatAssistiveTechnologySets();
  void SelectingEnablesEditAndDelete();
  void EditingShowsOkAndCancel();
  void RowsStayReadableWhileOneIsEdited();
  void RowsThatAreGoneShowNothing();
  void AViewTakesMillionsOfRowsInPieces();
  void OkWritesTheRow();
  void EnterIsOkWhileEditing();
  void AnUnreadableEditLeavesEditingOn();
  void CancelAndEscapeLeaveTheRow();
  void EscapeAsksBeforeTypedTextIsLost();
  void CancelPutsTheEditsBack();
  void OkPutsTheCountBack();
  void TheFirstNumberTakesThePlaceOfTheZero();
  void EnterMeansWhatHasTheFocus_data();
  void EnterMeansWhatHasTheFocus();
  void EnterEditsTheRowThatTheKeysCameTo();
  void ANumberTypedInTheListIsTheNextValue();
  void F2AndADoubleClickEdit();
  void DeleteAsksAndDeletesTheTopmostOnly();
  void TheDeleteKeyAsksToo();
  void NothingSelectedIsSaid();
  void DeletingDisablesKeys();
  void ClearAsks();
  void ListCommandsTakeTheKeyboardAway_data();
  void ListCommandsTakeTheKeyboardAway();
  void HeadingsSort();
  void SortingByMenu();
  void SelectionStaysInPlaceWhenSorting();
  void ColumnsShareTheWidth();
  void ListKeysMoveAndSelect();
  void TabLeavesTheList();

 private:
  std::unique_ptr<StatisticsScreenDriver> one;
  std::unique_ptr<StatisticsScreenDriver> two;
};

void StatisticsListTest::OpensEmpty() {
  QCOMPARE(one->Edit("X")->text(), QStringLiteral("0"));
  QCOMPARE(one->Edit("Count")->text(), QStringLiteral("1"));
  QCOMPARE(one->Total(), QStringLiteral("0"));
  QVERIFY(one->Rows().isEmpty());
  QCOMPARE(one->Result(), QString());
  QCOMPARE(one->EnabledKeys(), (QStringList{"Add", "Load", "MEM"}));
  QVERIFY(one->Edit("X")->hasFocus());
  two = std::make_unique<StatisticsScreenDriver>(Mode::TwoVarStatistics);
  QCOMPARE(two->Edit("Y")->text(), QStringLiteral("0"));
  QCOMPARE(two->Edit("Cnt")->text(), QStringLiteral("1"));
  QCOMPARE(two->EnabledKeys(), (QStringList{"Add", "Load", "MEM"}));
}

void StatisticsListTest::AddsTheNewestFirst() {
  one->Add({"5", "1"});
  QCOMPARE(one->Total(), QStringLiteral("1"));
  QVERIFY(one->Edit("X")->hasFocus());
  QCOMPARE(one->Edit("X")->selectedText(), QStringLiteral("5"));
  one->Add({"7", "3"});
  QCOMPARE(one->Rows(), (QStringList{"7 3", "5 1"}));
  QCOMPARE(one->Total(), QStringLiteral("4"));
}

void StatisticsListTest::EnterAdds() {
  one->Type({"2.5", "2"});
  QTest::keyClick(one->Edit("Count"), Qt::Key_Return);
  // The X edit has the focus and all its text selected, ready for the next value.
  QTest::keyClicks(one->Edit("X"), QStringLiteral("1e-20"));
  QTest::keyClick(one->Edit("X"), Qt::Key_Enter);
  QCOMPARE(one->Rows(), (QStringList{"1.00000e-020 2", "2.5 2"}));
}

void StatisticsListTest::AHeldEnterAddsOnce() {
  one->Type({"2.5", "2"});
  QTest::keyPress(one->Edit("Count"), Qt::Key_Return);
  for (int n = 0; n < 3; ++n) {
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(one->Edit("X"), &repeated);
  }
  QCOMPARE(one->Rows(), (QStringList{"2.5 2"}));
}

void StatisticsListTest::TwoVariables() {
  two = std::make_unique<StatisticsScreenDriver>(Mode::TwoVarStatistics);
  two->Add({"1", "2", "3"});
  two->Add({"1234567.5", "-4", "-2147483648"});
  QCOMPARE(two->Rows(), (QStringList{"1234567.5 -4 -2147483648", "1 2 3"}));
  QCOMPARE(two->Total(), QStringLiteral("-2147483645"));
}

void StatisticsListTest::KeysAfterEachRow() {
  one->Add({"1", "1"});
  QCOMPARE(one->EnabledKeys(), (QStringList{"Add", "Clear", "Save", "Load", "MEM"}));
  one->Add({"2", "1"});
  QCOMPARE(one->EnabledKeys(), (QStringList{"Add", "Clear", "Save", "Load", "ΣX", "ΣX^2", "MEM",
                                            "Arithmetic Mean of X", "σ(n-1) of X", "σ(n) of X"}));
}

void StatisticsListTest::SaysWhatIsWrongAndGoesThere_data() {
  QTest::addColumn<QStringList>("texts");
  QTest::addColumn<QString>("sentence");
  QTest::addColumn<QString>("edit");
  const QString number = QStringLiteral("Please enter a number.");
  const QString integer = QStringLiteral("Please enter an integer.");
  QTest::newRow("no X") << QStringList{"", "1", "1"} << number << "X";
  QTest::newRow("words") << QStringList{"1", "abc", "1"} << number << "Y";
  QTest::newRow("infinite") << QStringList{"1e999", "1", "1"} << number << "X";
  QTest::newRow("a count with decimals") << QStringList{"1", "1", "1.5"} << integer << "Cnt";
  QTest::newRow("a large count")
      << QStringList{"1", "1", "2147483648"}
      << QStringLiteral("Please enter an integer between -2147483648 and 2147483647.") << "Cnt";
}

void StatisticsListTest::SaysWhatIsWrongAndGoesThere() {
  QFETCH(QStringList, texts);
  QFETCH(QString, sentence);
  QFETCH(QString, edit);
  two = std::make_unique<StatisticsScreenDriver>(Mode::TwoVarStatistics);
  two->Add(texts);
  QCOMPARE(two->BoxText(), sentence);
  QCOMPARE(two->Box()->icon(), QMessageBox::Critical);
  two->Answer(QMessageBox::Ok);
  QVERIFY(two->Edit(edit)->hasFocus());
  QVERIFY(two->Rows().isEmpty());
  QCOMPARE(two->Total(), QStringLiteral("0"));
}

void StatisticsListTest::ReadsNumbersAsOthersWriteThem_data() {
  QTest::addColumn<QString>("pasted");
  QTest::addColumn<QString>("edit");
  QTest::addColumn<QString>("row");
  QTest::newRow("typeset minus") << QStringLiteral("\u22123.5") << "X"
                                 << "-3.5 2 1";
  QTest::newRow("hard blank") << QStringLiteral("1\u00a0234.5") << "X"
                              << "1234.5 2 1";
  QTest::newRow("thin blank") << QStringLiteral("1\u2009234.5") << "Y"
                              << "1 1234.5 1";
  QTest::newRow("narrow blank") << QStringLiteral("1\u202f234\u202f567.5") << "Y"
                                << "1 1234567.5 1";
  QTest::newRow("commas") << QStringLiteral("-1,234.5") << "X"
                          << "-1234.5 2 1";
  QTest::newRow("blanks around") << QStringLiteral("\u2009\u00a07 ") << "X"
                                 << "7 2 1";
  QTest::newRow("typeset exponent") << QStringLiteral("25e\u22121") << "Y"
                                    << "1 2.5 1";
  QTest::newRow("grouped count") << QStringLiteral("1\u00a0234") << "Cnt"
                                 << "1 2 1234";
  QTest::newRow("negative count") << QStringLiteral("\u22121,234") << "Cnt"
                                  << "1 2 -1234";
}

void StatisticsListTest::ReadsNumbersAsOthersWriteThem() {
  QFETCH(QString, pasted);
  QFETCH(QString, edit);
  QFETCH(QString, row);
  two = std::make_unique<StatisticsScreenDriver>(Mode::TwoVarStatistics);
  two->Type({"1", "2", "1"});
  two->Edit(edit)->setFocus();
  two->Edit(edit)->selectAll();
  QApplication::clipboard()->setText(pasted);
  two->Command("Edit", "Paste");
  two->Press("Add");
  QCOMPARE(two->BoxText(), QStringLiteral("no box"));
  QCOMPARE(two->Rows(), QStringList{row});
}

void StatisticsListTest::TakesTextThatAssistiveTechnologySets() {
  const auto set = [this](const char* name, const QString& text) {
    QAccessibleInterface* const edit =
        QAccessible::queryAccessibleInterface(one->Edit(QString::fromLatin1(name)));
    edit->setText(QAccessible::Value, text);
    edit->editableTextInterface()->replaceText(0, edit->textInterface()->characterCount(), text);
  };
  set("X", QStringLiteral("2.5"));
  set("Count", QStringLiteral("3"));
  one->Press("Add");
  set("X", QStringLiteral("4"));
  one->Press("Add");
  QCOMPARE(one->Rows(), (QStringList{"4 3", "2.5 3"}));
  // While a row is edited such a text counts as typed: it is not lost without a question.
  one->SelectRows({0});
  one->Press("Edit");
  set("X", QStringLiteral("9"));
  QTest::keyClick(one->Edit("X"), Qt::Key_Escape);
  QVERIFY(one->Box());
  one->Answer(QMessageBox::No);
  one->Press("Ok");
  QCOMPARE(one->Rows(), (QStringList{"9 3", "2.5 3"}));
}

void StatisticsListTest::SelectingEnablesEditAndDelete() {
  one->Add({"1", "1"});
  one->SelectRows({0});
  QVERIFY(one->IsEnabled("Edit") && one->IsEnabled("Delete"));
  one->SelectRows({});
  QVERIFY(!one->IsEnabled("Edit") && !one->IsEnabled("Delete"));
}

void StatisticsListTest::EditingShowsOkAndCancel() {
  one->Add({"1", "3"});
  one->Add({"2", "1"});
  one->SelectRows({1, 0});
  one->Press("Edit");
  // The first selected row, whatever was selected first.
  QCOMPARE(one->Edit("X")->text(), QStringLiteral("2"));
  QCOMPARE(one->Edit("Count")->text(), QStringLiteral("1"));
  QCOMPARE(one->Edit("X")->selectedText(), QStringLiteral("2"));
  QVERIFY(one->IsShown("Ok") && one->IsShown("Cancel"));
  QVERIFY(!one->IsShown("Add") && !one->TotalIsShown());
  QVERIFY(!one->Table()->isEnabled());
  for (const char* caption : {"Edit", "Delete", "Clear", "Save", "Load"}) {
    QVERIFY2(!one->IsEnabled(caption), caption);
  }
  QVERIFY(one->IsEnabled("ΣX"));
}

void StatisticsListTest::RowsStayReadableWhileOneIsEdited() {
  one->Add({"1", "1"});
  one->SelectRows({0});
  one->Press("Edit");
  QVERIFY(!one->Table()->isEnabled());
  const QPalette colours = one->Table()->palette();
  const int text = colours.color(QPalette::Disabled, QPalette::Text).lightness();
  const int ground = colours.color(QPalette::Disabled, QPalette::Base).lightness();
  QVERIFY(std::abs(text - ground) > 110);
  QCOMPARE(colours.color(QPalette::Disabled, QPalette::Highlight),
           colours.color(QPalette::Active, QPalette::Highlight));
}

void StatisticsListTest::RowsThatAreGoneShowNothing() {
  DataList list(kOneVarColumns);
  DataTableModel model(list, nullptr);
  list.Add(std::vector<std::wstring>{L"1"}, 1);
  list.Add(std::vector<std::wstring>{L"2"}, 1);
  model.RowsReplaced();
  list.Delete(1);
  QCOMPARE(model.index(0, 0).data().toString(), QStringLiteral("2"));
  QVERIFY(!model.index(1, 0).data().isValid());
}

void StatisticsListTest::AViewTakesMillionsOfRowsInPieces() {
  constexpr int kRows = 4'500'000;
  DataSet data{PackedRows(2)};
  const std::vector<std::string> row{"1", "1"};
  for (int n = 0; n < kRows; ++n) data.rows.Append(row);
  DataList list(kOneVarColumns);
  DataTableModel model(list, nullptr);
  list.Load(std::move(data));
  QList<int> shown;
  model.RowsReplaced([&] { shown << model.rowCount(); });
  QCOMPARE(shown, (QList<int>{2'000'000, 4'000'000}));
  QCOMPARE(model.rowCount(), kRows);
  list.Clear();
  model.RowsReplaced();
  QCOMPARE(model.rowCount(), 0);
}

void StatisticsListTest::OkWritesTheRow() {
  one->Add({"1", "3"});
  one->Add({"2", "1"});
  one->SelectRows({1});
  one->Press("Edit");
  one->Type({"10", "1"});
  one->Press("Ok");
  QCOMPARE(one->Rows(), (QStringList{"2 1", "10 1"}));
  QCOMPARE(one->Total(), QStringLiteral("2"));
  QVERIFY2(one->Table()->hasFocus(), "the edits let the keyboard go");
  QVERIFY(one->IsShown("Add") && one->TotalIsShown());
  QVERIFY(!one->IsShown("Ok") && !one->IsShown("Cancel"));
  QVERIFY(one->Table()->isEnabled());
  for (const char* caption : {"Edit", "Delete", "Clear", "Save", "Load"}) {
    QVERIFY2(one->IsEnabled(caption), caption);
  }
}

void StatisticsListTest::EnterIsOkWhileEditing() {
  one->Add({"1", "3"});
  one->SelectRows({0});
  one->Press("Edit");
  QTest::keyClicks(one->Edit("X"), QStringLiteral("9"));
  QTest::keyClick(one->Edit("X"), Qt::Key_Return);
  QCOMPARE(one->Rows(), (QStringList{"9 3"}));
  // Once more, it means the row in the list, which is edited again and not doubled.
  QTest::keyClick(one->window->focusWidget(), Qt::Key_Return);
  QCOMPARE(one->Rows(), (QStringList{"9 3"}));
  QVERIFY(one->IsShown("Ok"));
}

void StatisticsListTest::AnUnreadableEditLeavesEditingOn() {
  one->Add({"1", "3"});
  one->SelectRows({0});
  one->Press("Edit");
  one->Type({"1", "x"});
  one->Press("Ok");
  QCOMPARE(one->BoxText(), QStringLiteral("Please enter an integer."));
  one->Answer(QMessageBox::Ok);
  QVERIFY(one->IsShown("Ok"));
  QVERIFY(one->Edit("Count")->hasFocus());
  QCOMPARE(one->Rows(), (QStringList{"1 3"}));
}

void StatisticsListTest::CancelAndEscapeLeaveTheRow() {
  one->Add({"1", "3"});
  for (const bool byKey : {false, true}) {
    one->SelectRows({0});
    one->Press("Edit");
    one->Type({"5", "5"});
    if (byKey) {
      QTest::keyClick(one->Edit("X"), Qt::Key_Escape);
      one->Answer(QMessageBox::Yes);
    } else {
      one->Press("Cancel");
    }
    QCOMPARE(one->Rows(), (QStringList{"1 3"}));
    QVERIFY(one->Table()->hasFocus());
    QVERIFY(one->IsShown("Add") && one->TotalIsShown() && one->Table()->isEnabled());
  }
  QCOMPARE(one->Total(), QStringLiteral("3"));
}

void StatisticsListTest::EscapeAsksBeforeTypedTextIsLost() {
  one->Add({"1", "3"});
  one->SelectRows({0});
  one->Press("Edit");
  QTest::keyClicks(one->Edit("X"), QStringLiteral("25"));
  QTest::keyClick(one->Edit("X"), Qt::Key_Escape);
  QCOMPARE(one->BoxText(), QStringLiteral("Are you sure you want to discard your changes?"));
  one->Answer(QMessageBox::No);
  QVERIFY(one->IsShown("Ok"));
  QCOMPARE(one->Edit("X")->text(), QStringLiteral("25"));
  // With nothing typed there is nothing to ask.
  one->Type({"1", "3"});
  QTest::keyClick(one->Edit("X"), Qt::Key_Escape);
  QVERIFY(!one->Box());
  QVERIFY(one->IsShown("Add"));
}

void StatisticsListTest::CancelPutsTheEditsBack() {
  one->Add({"1", "3"});
  one->Type({"12", "1"});
  one->SelectRows({0});
  one->Press("Edit");
  QCOMPARE(one->Edit("Count")->text(), QStringLiteral("3"));
  one->Press("Cancel");
  QCOMPARE(one->Edit("X")->text(), QStringLiteral("12"));
  QCOMPARE(one->Edit("Count")->text(), QStringLiteral("1"));
}

void StatisticsListTest::OkPutsTheCountBack() {
  one->Add({"1", "3"});
  one->Type({"1", "1"});
  one->SelectRows({0});
  one->Press("Edit");
  one->Type({"9", "4"});
  one->Press("Ok");
  QCOMPARE(one->Rows(), (QStringList{"9 4"}));
  QCOMPARE(one->Edit("Count")->text(), QStringLiteral("1"));
}

void StatisticsListTest::TheFirstNumberTakesThePlaceOfTheZero() {
  QCOMPARE(one->Edit("X")->selectedText(), QStringLiteral("0"));
  QTest::keyClicks(one->window->focusWidget(), QStringLiteral("-3"));
  QCOMPARE(one->Edit("X")->text(), QStringLiteral("-3"));
}

void StatisticsListTest::EnterMeansWhatHasTheFocus_data() {
  QTest::addColumn<QString>("focused");
  QTest::addColumn<QString>("result");
  QTest::addColumn<QString>("question");
  const QString deletes = QStringLiteral("Are you sure you want to delete the selected data?");
  QTest::newRow("a statistic") << "ΣX"
                               << "3"
                               << "no box";
  QTest::newRow("Delete") << "Delete"
                          << "" << deletes;
  QTest::newRow("the result") << "Result"
                              << ""
                              << "no box";
}

void StatisticsListTest::EnterMeansWhatHasTheFocus() {
  QFETCH(QString, focused);
  QFETCH(QString, result);
  QFETCH(QString, question);
  one->Add({"1", "1"});
  one->Add({"2", "1"});
  one->SelectRows({0});
  auto* const control = one->screen->findChild<QWidget*>(focused);
  control->setFocus();
  QTest::keyClick(control, Qt::Key_Return);
  QCOMPARE(one->Rows(), (QStringList{"2 1", "1 1"}));
  QCOMPARE(one->Result(), result);
  QCOMPARE(one->BoxText(), question);
}

void StatisticsListTest::EnterEditsTheRowThatTheKeysCameTo() {
  for (const char* value : {"1", "2", "3"}) one->Add({value, "1"});
  QTest::keyClick(one->Edit("X"), Qt::Key_Tab);
  one->Table()->setFocus(Qt::TabFocusReason);
  QVERIFY(one->SelectedRows().isEmpty());
  QTest::keyClick(one->Table(), Qt::Key_Return);
  QVERIFY(one->IsShown("Ok"));
  QCOMPARE(one->Edit("X")->text(), QStringLiteral("3"));
}

void StatisticsListTest::ANumberTypedInTheListIsTheNextValue() {
  one->Add({"1", "3"});
  one->SelectRows({0});
  one->Table()->setFocus();
  QTest::keyClicks(one->window->focusWidget(), QStringLiteral("-"));
  QTest::keyClicks(one->window->focusWidget(), QStringLiteral("4.5"));
  QCOMPARE(one->Edit("X")->text(), QStringLiteral("-4.5"));
}

void StatisticsListTest::F2AndADoubleClickEdit() {
  one->Add({"1", "3"});
  one->SelectRows({0});
  QTest::keyClick(one->Table(), Qt::Key_F2);
  QVERIFY(one->IsShown("Ok"));
  one->Press("Cancel");
  const QPoint cell = one->Table()->visualRect(one->Table()->model()->index(0, 0)).center();
  QTest::mouseClick(one->Table()->viewport(), Qt::LeftButton, Qt::NoModifier, cell);
  QTest::mouseDClick(one->Table()->viewport(), Qt::LeftButton, Qt::NoModifier, cell);
  QVERIFY(one->IsShown("Ok"));
}

void StatisticsListTest::DeleteAsksAndDeletesTheTopmostOnly() {
  for (const char* value : {"1", "2", "3", "4"}) one->Add({value, "2"});
  one->SelectRows({3, 1, 2});
  one->Press("Delete");
  QCOMPARE(one->BoxText(), QStringLiteral("Are you sure you want to delete the selected data?"));
  QCOMPARE(one->Box()->icon(), QMessageBox::Question);
  one->Answer(QMessageBox::No);
  QCOMPARE(one->Rows().size(), qsizetype{4});
  one->Press("Delete");
  one->Answer(QMessageBox::Yes);
  QCOMPARE(one->Rows(), (QStringList{"4 2", "2 2", "1 2"}));
  QCOMPARE(one->Total(), QStringLiteral("6"));
  // The other selected rows stay selected.
  QCOMPARE(one->SelectedRows(), (QList<int>{1, 2}));
  QVERIFY(one->IsEnabled("Edit") && one->IsEnabled("Delete"));
}

void StatisticsListTest::TheDeleteKeyAsksToo() {
  one->Add({"1", "2"});
  one->SelectRows({0});
  QTest::keyClick(one->Table(), Qt::Key_Delete);
  QCOMPARE(one->BoxText(), QStringLiteral("Are you sure you want to delete the selected data?"));
  one->Answer(QMessageBox::Yes);
  QVERIFY(one->Rows().isEmpty());
  QVERIFY(!one->IsEnabled("Edit") && !one->IsEnabled("Delete"));
}

void StatisticsListTest::NothingSelectedIsSaid() {
  one->Add({"1", "2"});
  QTest::keyClick(one->Table(), Qt::Key_Delete);
  QCOMPARE(one->BoxText(), QStringLiteral("No items were selected!"));
  QCOMPARE(one->Box()->icon(), QMessageBox::Critical);
  one->Answer(QMessageBox::Ok);
  QCOMPARE(one->Rows(), (QStringList{"1 2"}));
}

void StatisticsListTest::DeletingDisablesKeys() {
  one->Add({"1", "2"});
  one->Add({"1", "2"});
  for (const QStringList& enabled :
       {QStringList{"Add", "Clear", "Save", "Load", "MEM"}, QStringList{"Add", "Load", "MEM"}}) {
    one->SelectRows({0});
    one->Press("Delete");
    one->Answer(QMessageBox::Yes);
    QCOMPARE(one->EnabledKeys(), enabled);
  }
}

void StatisticsListTest::ClearAsks() {
  one->Add({"1", "2"});
  one->Add({"3", "2"});
  one->Press("ΣX");
  one->SelectRows({0});
  one->Press("Clear");
  QCOMPARE(one->BoxText(), QStringLiteral("Are you sure you want to delete all data?"));
  QCOMPARE(one->Box()->icon(), QMessageBox::Question);
  one->Answer(QMessageBox::No);
  QCOMPARE(one->Rows().size(), qsizetype{2});
  one->Press("Clear");
  one->Answer(QMessageBox::Yes);
  QVERIFY(one->Rows().isEmpty());
  QCOMPARE(one->Total(), QStringLiteral("0"));
  QCOMPARE(one->EnabledKeys(), (QStringList{"Add", "Load", "MEM"}));
  QCOMPARE(one->Result(), QStringLiteral("8"));
}

void StatisticsListTest::ListCommandsTakeTheKeyboardAway_data() {
  QTest::addColumn<QString>("command");
  QTest::addColumn<bool>("asksForFile");
  QTest::newRow("Delete") << "Delete" << false;
  QTest::newRow("Clear") << "Clear" << false;
  QTest::newRow("Save") << "Save" << true;
  QTest::newRow("Load") << "Load" << true;
}

void StatisticsListTest::ListCommandsTakeTheKeyboardAway() {
  QFETCH(QString, command);
  QFETCH(bool, asksForFile);
  one->Add({"1", "1"});
  one->SelectRows({0});
  one->Activate();
  one->Edit("X")->setFocus();
  QSignalSpy asked(one->Edit("X")->findChild<KeyboardOnFocus*>(), &KeyboardOnFocus::Asked);
  if (asksForFile) file_dialogs::AddNextAnswer(std::nullopt);
  one->Press(command);
  if (!asksForFile) one->Answer(QMessageBox::No);
  one->Activate();
  QCOMPARE(one->window->focusWidget(), one->Table());
  QVERIFY(!asked.isEmpty());
  QCOMPARE(asked.back().at(0).toBool(), false);
}

void StatisticsListTest::HeadingsSort() {
  two = std::make_unique<StatisticsScreenDriver>(Mode::TwoVarStatistics);
  two->Add({"10", "1", "1"});
  two->Add({"9", "2", "1"});
  two->Add({"-3", "1.5", "1"});
  const QHeaderView* const headings = two->Table()->horizontalHeader();
  QVERIFY(headings->isSortIndicatorShown());
  QCOMPARE(headings->sortIndicatorSection(), -1);
  two->ClickHeading(0);
  QCOMPARE(two->Rows(), (QStringList{"-3 1.5 1", "9 2 1", "10 1 1"}));
  QCOMPARE(headings->sortIndicatorSection(), 0);
  QCOMPARE(headings->sortIndicatorOrder(), Qt::AscendingOrder);
  two->ClickHeading(1);
  QCOMPARE(two->Rows(), (QStringList{"9 2 1", "-3 1.5 1", "10 1 1"}));
  QCOMPARE(headings->sortIndicatorSection(), 1);
  QCOMPARE(headings->sortIndicatorOrder(), Qt::DescendingOrder);
  two->Add({"0", "0", "1"});
  QCOMPARE(headings->sortIndicatorSection(), -1);
}

void StatisticsListTest::SortingByMenu() {
  one->Add({"1", "5"});
  one->Add({"2", "4"});
  one->Command("Edit", "Sort by Count");
  QCOMPARE(one->Rows(), (QStringList{"2 4", "1 5"}));
  one->Command("Edit", "Sort by X");
  QCOMPARE(one->Rows(), (QStringList{"2 4", "1 5"}));
  one->SelectRows({0});
  one->Press("Edit");
  for (const char* text : {"Sort by X", "Sort by Count"}) {
    QVERIFY(!one->MenuCommand("Edit", text)->isEnabled());
  }
  one->Press("Ok");
  QCOMPARE(one->Rows(), (QStringList{"2 4", "1 5"}));
  QVERIFY(one->MenuCommand("Edit", "Sort by X")->isEnabled());
}

void StatisticsListTest::SelectionStaysInPlaceWhenSorting() {
  for (const char* value : {"1", "2", "3"}) one->Add({value, "1"});
  one->SelectRows({0});
  one->ClickHeading(0);
  QCOMPARE(one->Rows(), (QStringList{"1 1", "2 1", "3 1"}));
  QCOMPARE(one->SelectedRows(), (QList<int>{0}));
}

void StatisticsListTest::ColumnsShareTheWidth() {
  const QTableView* const table = one->Table();
  QCOMPARE(table->columnWidth(0) + table->columnWidth(1), table->viewport()->width());
  QCOMPARE(table->columnWidth(0), table->viewport()->width() * 117 / 162);
  QCOMPARE(table->model()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("X"));
  QCOMPARE(table->model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Count"));
}

void StatisticsListTest::ListKeysMoveAndSelect() {
  for (const char* value : {"1", "2", "3"}) one->Add({value, "1"});
  one->SelectRows({0});
  QTest::keyClick(one->Table(), Qt::Key_Down);
  QCOMPARE(one->SelectedRows(), (QList<int>{1}));
  QTest::keyClick(one->Table(), Qt::Key_Down, Qt::ShiftModifier);
  QCOMPARE(one->SelectedRows(), (QList<int>{1, 2}));
  QTest::keyClick(one->Table(), Qt::Key_A, Qt::ControlModifier);
  QCOMPARE(one->SelectedRows(), (QList<int>{0, 1, 2}));
  QTest::keyClick(one->Table(), Qt::Key_Home);
  QCOMPARE(one->SelectedRows(), (QList<int>{0}));
  QTest::keyClick(one->Table(), Qt::Key_End);
  QCOMPARE(one->SelectedRows(), (QList<int>{2}));
  QTest::keyClick(one->Table(), Qt::Key_Home, Qt::ShiftModifier);
  QCOMPARE(one->SelectedRows(), (QList<int>{0, 1, 2}));
}

void StatisticsListTest::TabLeavesTheList() {
  one->Add({"1", "1"});
  one->Table()->setFocus();
  QTest::keyClick(one->Table(), Qt::Key_Tab);
  QVERIFY(!one->Table()->hasFocus());
}

}  // namespace vexa

QTEST_MAIN(vexa::StatisticsListTest)
#include "StatisticsListTest.moc"
