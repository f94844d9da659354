#pragma once

#include "toolkit/LineText.h"

class QLineEdit;

namespace vexa {

/// `field` holds no more than `length` says. What a user adds without room is refused whole, and a
/// quiet notice beside the field says why. A text that the program sets is shown as it is.
void LimitLength(QLineEdit* field, FieldLength length);

}  // namespace vexa
