#include "toolkit/LimitLength.h"

#include <QLineEdit>
#include <QToolTip>
#include <QValidator>

#include "display/WideText.h"

namespace vexa {
namespace {

/// The field's own limit would cut a text that is pasted; a validator takes it back whole.
class LengthValidator : public QValidator {
 public:
  LengthValidator(std::size_t longestText, QObject* parent)
      : QValidator(parent), longest(static_cast<qsizetype>(longestText)) {}

  State validate(QString& text, int&) const override {
    return text.size() <= longest ? Acceptable : Invalid;
  }

 private:
  qsizetype longest;
};

}  // namespace

void LimitLength(QLineEdit* field, FieldLength length) {
  field->setValidator(new LengthValidator(length.longest, field));
  QObject::connect(field, &QLineEdit::inputRejected, field, [field, length] {
    QToolTip::showText(field->mapToGlobal(field->rect().bottomLeft()), FromWide(length.sentence),
                       field);
  });
}

}  // namespace vexa
