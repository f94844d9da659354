#include <string>

#include "engine/EngineErrors.h"

std::wstring Sentence() {
  return vexa::ErrorText(vexa::ErrorCode::NullExpression, L"", L"");
}
