// The macro editor's two states and what leads from one to the other.

#include "display/WideText.h"
#include "support/MacroEditorOnScreen.h"
#include "support/ScreenMain.h"

namespace vexa {

using test::AnswerBox;
using test::kThreeMacros;
using test::kType1;
using test::kType3;
using test::MacroEditorOnScreen;
using test::ShownBox;
using test::StoredMacro;

class MacroEditorDialogTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { editor = std::make_unique<MacroEditorOnScreen>(); }
  void cleanup() { editor.reset(); }
  void OpensInTheViewState();
  void TheListShowsItsMacros();
  void AnEmptyStoreOffersNewAndClose();
  void NewClearsTheFields();
  void EditLoadsTheMacro();
  void EditNeedsASelection();
  void KeysInTheListEditAndDelete();
  void CancelShowsTheEditedMacroAgain_data();
  void CancelShowsTheEditedMacroAgain();
  void EscapeAsksOnlyAfterAChange_data();
  void EscapeAsksOnlyAfterAChange();
  void EscapeInTheViewStateCloses();
  void DeleteAsksFirst();
  void DeletingTheLastMacroClearsTheFields();
  void SixtyMacrosCannotBeChanged();
  void ForeignMacrosAreShown();
  void HostileCountsAreHarmless_data();
  void HostileCountsAreHarmless();
  void TheWindowKeepsItsSize();

 private:
  std::unique_ptr<MacroEditorOnScreen> editor;
};

void MacroEditorDialogTest::OpensInTheViewState() {
  editor->Open();
  editor->ExpectViewState();
  QCOMPARE(editor->dialog->windowTitle(), QStringLiteral("Vexa Calculator"));
  QVERIFY(editor->dialog->isModal());
  QCOMPARE(editor->ShownButtons(), QStringLiteral("New Edit Delete Close"));
  QCOMPARE(editor->ListLabel(), QStringLiteral("List(3/60)"));
  QStringList types;
  for (int i = 0; i < editor->type->count(); ++i) types += editor->type->itemText(i);
  QCOMPARE(types, (QStringList{QStringLiteral("TYPE1 : F(X)"), QStringLiteral("TYPE2 : F(X,Y)"),
                               QStringLiteral("TYPE3 : F(X,Y,Z)")}));
}

void MacroEditorDialogTest::TheListShowsItsMacros() {
  editor->Open();
  QCOMPARE(editor->Lines(), QStringLiteral("twice(X) area(X,Y) sum(X,Y,Z)"));
  for (const int row : {2, 0, 1}) {
    editor->Tap(row);
    QVERIFY(editor->Fields() == kThreeMacros[static_cast<std::size_t>(row)]);
  }
  QTest::keyClick(editor->list, Qt::Key_Down);
  QVERIFY(editor->Fields() == kThreeMacros[2]);
}

void MacroEditorDialogTest::AnEmptyStoreOffersNewAndClose() {
  editor->Open({});
  editor->ExpectViewState();
  QCOMPARE(editor->ShownButtons(), QStringLiteral("New Close"));
  QCOMPARE(editor->ListLabel(), QStringLiteral("List(0/60)"));
  QVERIFY(editor->Fields() == StoredMacro());
}

void MacroEditorDialogTest::NewClearsTheFields() {
  editor->Open();
  editor->Press("New");
  editor->ExpectEditingState();
  QVERIFY(editor->Fields() == StoredMacro());
  QCOMPARE(editor->type->currentIndex(), -1);
  QVERIFY(editor->name->hasFocus());
}

void MacroEditorDialogTest::EditLoadsTheMacro() {
  editor->Open();
  editor->Tap(1);
  editor->Press("Edit");
  editor->ExpectEditingState();
  QVERIFY(editor->Fields() == kThreeMacros[1]);
  QVERIFY(editor->name->hasFocus());
}

void MacroEditorDialogTest::EditNeedsASelection() {
  editor->Open();
  editor->list->clearSelection();
  QVERIFY(editor->Fields() == StoredMacro());
  editor->Press("Edit");
  QVERIFY(!editor->name->isEnabled());
  QCOMPARE(editor->ShownButtons(), QStringLiteral("New Edit Delete Close"));
  editor->Press("Delete");
  QVERIFY(!test::OpenBox());
  QCOMPARE(editor->list->count(), 3);
}

void MacroEditorDialogTest::KeysInTheListEditAndDelete() {
  editor->Open();
  QTest::keyClick(editor->list, Qt::Key_Down);
  QTest::keyClick(editor->list, Qt::Key_F2);
  editor->ExpectEditingState();
  QVERIFY(editor->Fields() == kThreeMacros[1]);
  QTest::keyClick(editor->name, Qt::Key_Escape);
  editor->Tap(2);
  QTest::mouseDClick(editor->list->viewport(), Qt::LeftButton, {},
                     editor->list->visualItemRect(editor->list->item(2)).center());
  editor->ExpectEditingState();
  QVERIFY(editor->Fields() == kThreeMacros[2]);
  // In a field the key deletes a character.
  QTest::keyClick(editor->name, Qt::Key_Delete);
  QVERIFY(!test::OpenBox());
  editor->Press("Cancel");
  QTest::keyClick(editor->list, Qt::Key_Delete);
  QCOMPARE(ShownBox(), test::Question("Are you sure you want to delete the selected macro?"));
  AnswerBox(QMessageBox::Yes);
  QCOMPARE(editor->Lines(), QStringLiteral("twice(X) area(X,Y)"));
}

void MacroEditorDialogTest::CancelShowsTheEditedMacroAgain_data() {
  QTest::addColumn<QString>("opening");
  QTest::addColumn<QString>("leaving");
  for (const char* opening : {"New", "Edit"}) {
    for (const char* leaving : {"Cancel", "Escape", "close"}) {
      QTest::addRow("%s, %s", opening, leaving)
          << QString::fromLatin1(opening) << QString::fromLatin1(leaving);
    }
  }
}

void MacroEditorDialogTest::CancelShowsTheEditedMacroAgain() {
  QFETCH(QString, opening);
  QFETCH(QString, leaving);
  editor->Open();
  editor->Tap(1);
  editor->Press(qPrintable(opening));
  editor->Fill(QStringLiteral("other"), 2, QStringLiteral("z"));
  if (leaving == QStringLiteral("Cancel")) editor->Press("Cancel");
  if (leaving == QStringLiteral("Escape")) QTest::keyClick(editor->name, Qt::Key_Escape);
  if (leaving == QStringLiteral("close")) editor->dialog->close();
  if (leaving != QStringLiteral("Cancel")) {
    // What was typed is not thrown away unasked.
    QCOMPARE(ShownBox(), test::Question("Are you sure you want to discard your changes?"));
    AnswerBox(QMessageBox::No);
    editor->ExpectEditingState();
    QCOMPARE(editor->name->text(), QStringLiteral("other"));
    QTest::keyClick(editor->name, Qt::Key_Escape);
    AnswerBox(QMessageBox::Yes);
  }
  QVERIFY(editor->dialog && editor->dialog->isVisible());
  editor->ExpectViewState();
  QCOMPARE(editor->list->SelectedRow(), 1);
  QVERIFY(editor->Fields() == kThreeMacros[1]);
  QVERIFY(test::Stored(editor->store) == kThreeMacros);
}

void MacroEditorDialogTest::EscapeAsksOnlyAfterAChange_data() {
  QTest::addColumn<QString>("opening");
  QTest::addColumn<StoredMacro>("typed");
  QTest::addColumn<bool>("asks");
  const StoredMacro area = kThreeMacros[1];
  QTest::newRow("nothing new") << QStringLiteral("New") << StoredMacro() << false;
  QTest::newRow("a name") << QStringLiteral("New") << StoredMacro{L"a", L"", L""} << true;
  QTest::newRow("a type") << QStringLiteral("New") << StoredMacro{L"", kType1, L""} << true;
  QTest::newRow("a formula") << QStringLiteral("New") << StoredMacro{L"", L"", L"x"} << true;
  QTest::newRow("the macro as it is") << QStringLiteral("Edit") << area << false;
  QTest::newRow("its type") << QStringLiteral("Edit")
                            << StoredMacro{area.name, kType3, area.formula} << true;
  QTest::newRow("its formula") << QStringLiteral("Edit") << StoredMacro{area.name, area.type, L"x"}
                               << true;
}

void MacroEditorDialogTest::EscapeAsksOnlyAfterAChange() {
  QFETCH(QString, opening);
  QFETCH(StoredMacro, typed);
  QFETCH(bool, asks);
  editor->Open();
  editor->Tap(1);
  editor->Press(qPrintable(opening));
  editor->Fill(FromWide(typed.name), editor->type->findText(FromWide(typed.type)),
               FromWide(typed.formula));
  QTest::keyClick(editor->name, Qt::Key_Escape);
  QCOMPARE(test::OpenBox() != nullptr, asks);
  if (asks) AnswerBox(QMessageBox::Yes);
  editor->ExpectViewState();
  QVERIFY(editor->Fields() == kThreeMacros[1]);
}

void MacroEditorDialogTest::EscapeInTheViewStateCloses() {
  editor->Open();
  QTest::keyClick(editor->list, Qt::Key_Escape);
  QTRY_VERIFY(!editor->dialog);
  editor->Open();
  editor->Press("Close");
  QTRY_VERIFY(!editor->dialog);
}

void MacroEditorDialogTest::DeleteAsksFirst() {
  const auto question = test::Question("Are you sure you want to delete the selected macro?");
  editor->Open();
  editor->Press("Delete");
  QCOMPARE(ShownBox(), question);
  AnswerBox(QMessageBox::No);
  QVERIFY(test::Stored(editor->store) == kThreeMacros);
  // The first of three: the second takes its place.
  editor->Press("Delete");
  AnswerBox(QMessageBox::Yes);
  editor->ExpectViewState();
  QCOMPARE(editor->Lines(), QStringLiteral("area(X,Y) sum(X,Y,Z)"));
  QCOMPARE(editor->ListLabel(), QStringLiteral("List(2/60)"));
  QCOMPARE(editor->list->SelectedRow(), 0);
  QVERIFY(editor->Fields() == kThreeMacros[1]);
  // The last of two: the new last one.
  editor->Tap(1);
  editor->Press("Delete");
  QCOMPARE(ShownBox(), question);
  // Enter answers "No", and so does Escape.
  QTest::keyClick(test::OpenBox(), Qt::Key_Return);
  QCOMPARE(editor->list->count(), 2);
  editor->Press("Delete");
  QTest::keyClick(test::OpenBox(), Qt::Key_Escape);
  QCOMPARE(editor->list->count(), 2);
  editor->Press("Delete");
  AnswerBox(QMessageBox::Yes);
  QCOMPARE(editor->Lines(), QStringLiteral("area(X,Y)"));
  QCOMPARE(editor->list->SelectedRow(), 0);
  QVERIFY(test::Stored(editor->store) == std::vector{kThreeMacros[1]});
}

void MacroEditorDialogTest::DeletingTheLastMacroClearsTheFields() {
  editor->Open({kThreeMacros[0]});
  editor->Press("Delete");
  AnswerBox(QMessageBox::Yes);
  editor->ExpectViewState();
  QCOMPARE(editor->ShownButtons(), QStringLiteral("New Close"));
  QCOMPARE(editor->ListLabel(), QStringLiteral("List(0/60)"));
  QVERIFY(editor->Fields() == StoredMacro());
}

void MacroEditorDialogTest::SixtyMacrosCannotBeChanged() {
  std::vector<StoredMacro> macros;
  for (int i = 0; i < 60; ++i) macros.push_back({L"m" + std::to_wstring(i), kType1, L"x"});
  editor->Open(macros);
  QCOMPARE(editor->ListLabel(), QStringLiteral("List(60/60)"));
  QCOMPARE(editor->ShownButtons(), QStringLiteral("Edit Delete Close"));
  editor->Press("Edit");
  editor->Fill(QString(), -1, QString());
  editor->Press("Save");
  QCOMPARE(ShownBox(), test::Error("Maximum of macro is 60"));
  AnswerBox();
  editor->ExpectEditingState();
  editor->Press("Cancel");
  editor->Press("Delete");
  AnswerBox(QMessageBox::Yes);
  QCOMPARE(editor->ListLabel(), QStringLiteral("List(59/60)"));
  QCOMPARE(editor->ShownButtons(), QStringLiteral("New Edit Delete Close"));
}

void MacroEditorDialogTest::ForeignMacrosAreShown() {
  const std::wstring longFormula = std::wstring(200, L'1') + L"+x";
  editor->Open({{L"f(x)", L"TYPE9", L"x\n+1"}, {L"  ", L"", longFormula}, {L"", kType1, L""}});
  QCOMPARE(editor->list->item(0)->text(), QStringLiteral("f(x)(X,Y,Z)"));
  QVERIFY(editor->Fields() == (StoredMacro{L"f(x)", kType3, L"x +1"}));
  editor->Tap(1);
  QVERIFY(editor->Fields() == (StoredMacro{L"  ", kType3, longFormula}));
  editor->Press("Edit");
  editor->name->setText(QStringLiteral("long"));
  editor->type->setCurrentIndex(0);
  editor->Press("Save");
  QCOMPARE(ShownBox(), test::Error("Macro Expression exceeded length limit."));
  AnswerBox();
  QCOMPARE(editor->dialog->focusWidget(), editor->formula);
  editor->Press("Cancel");
  editor->Tap(2);
  editor->Press("Delete");
  AnswerBox(QMessageBox::Yes);
  QCOMPARE(editor->list->count(), 2);
}

void MacroEditorDialogTest::HostileCountsAreHarmless_data() {
  QTest::addColumn<int>("count");
  QTest::addColumn<int>("lines");
  QTest::newRow("largest") << 2147483647 << 60;
  QTest::newRow("negative") << -1 << 0;
  QTest::newRow("smallest") << -2147483647 - 1 << 0;
}

void MacroEditorDialogTest::HostileCountsAreHarmless() {
  QFETCH(int, count);
  QFETCH(int, lines);
  editor->Open();
  delete editor->dialog;
  Write(editor->store, settings::kMacroCount, count);
  editor->Reopen();
  QCOMPARE(editor->list->count(), lines);
  QCOMPARE(editor->ListLabel(), QStringLiteral("List(%1/60)").arg(lines));
}

void MacroEditorDialogTest::TheWindowKeepsItsSize() {
  editor->Open();
  const QSize size = editor->dialog->size();
  for (const char* caption : {"New", "Cancel", "Edit", "Cancel"}) {
    editor->Press(caption);
    QTest::qWait(1);
    QCOMPARE(editor->dialog->size(), size);
  }
}

}  // namespace vexa

VEXA_SCREEN_MAIN(vexa::MacroEditorDialogTest)
#include "MacroEditorDialogTest.moc"
