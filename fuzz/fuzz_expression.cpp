// Any text as an expression, in every base and angle unit.

#include "FuzzInput.h"

using namespace vexa;
using namespace vexa::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  CalcEngine engine;
  input.TakeModes(engine.angleMode, engine.baseMode);
  std::wstring expression = input.TakeText();
  engine.EvaluateExpression(expression);
  CheckOutcome(engine);

  // Nothing of an evaluation is left behind for the next one.
  CalcEngine used = engine;
  used.EvaluateExpression(expression);
  CheckSame(used, engine);
  used.EvaluateExpression(L"1+(1*1)");
  used.EvaluateExpression(expression);
  CheckOutcome(used);
  CheckSame(used, engine);

  // Capitals are small letters.
  for (wchar_t& c : expression) {
    if (c >= L'a' && c <= L'z') c += L'A' - L'a';
  }
  CalcEngine capitals;
  capitals.angleMode = engine.angleMode;
  capitals.baseMode = engine.baseMode;
  capitals.EvaluateExpression(expression);
  CheckSame(capitals, engine);
  return 0;
}
