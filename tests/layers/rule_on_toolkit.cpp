#include <QString>

QString Sentence() {
  return QStringLiteral("a rule never speaks the toolkit's language");
}
