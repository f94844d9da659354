#pragma once

#include <string>

#include "stats/Lists.h"

/// The reference data sets of tests/nist, each row counted once.
namespace vexa::test {

/// The rows of the file `name` of one variable; none when it cannot be read.
Rows OneVarRows(const std::string& name);
/// The same of two variables.
Rows TwoVarRows(const std::string& name);

}  // namespace vexa::test
