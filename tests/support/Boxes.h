#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTest>

namespace vexa::test {

/// The open message box, or null.
inline QMessageBox* OpenBox() {
  return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

/// The open dialog with this object name, or null.
inline QDialog* OpenDialog(const QString& name) {
  auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  return dialog && dialog->objectName() == name ? dialog : nullptr;
}

/// What the open message box is: its icon and its text, or a text that says that there is none.
struct BoxContent {
  QMessageBox::Icon icon;
  QString text;

  bool operator==(const BoxContent&) const = default;
};
inline BoxContent ShownBox() {
  const QMessageBox* const box = OpenBox();
  if (!box) return {QMessageBox::NoIcon, QStringLiteral("no message box")};
  return {box->icon(), box->text()};
}
inline char* toString(const BoxContent& content) {
  return qstrdup(qPrintable(QString::number(content.icon) + u' ' + content.text));
}

inline BoxContent Error(const char* sentence) {
  return {QMessageBox::Critical, QString::fromLatin1(sentence)};
}
inline BoxContent Question(const char* sentence) {
  return {QMessageBox::Question, QString::fromLatin1(sentence)};
}

/// Answers the open message box.
inline void AnswerBox(QMessageBox::StandardButton answer = QMessageBox::Ok) {
  QMessageBox* const box = OpenBox();
  QVERIFY(box);
  QTest::mouseClick(box->button(answer), Qt::LeftButton);
  QVERIFY(OpenBox() != box);
}

}  // namespace vexa::test
