#pragma once

#include "engine/CalcModes.h"
#include "engine/ExprParser.h"
#include "engine/Tokenizer.h"

namespace vexa {

/// The dialect of expressions in `base`; a value outside the enum reads decimal.
const Dialect& ExpressionDialect(BaseType base);

/// The dialect of formulas of `type`: decimal with variables. Variables that the type does not have
/// are refused with their sentence.
const Dialect& FormulaDialect(FormulaType type);

}  // namespace vexa
