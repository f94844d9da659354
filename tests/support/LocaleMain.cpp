// Runs the tests under the user's locale, as the program runs: results must not depend on it.

#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>

int main(int argc, char** argv) {
  if (!std::setlocale(LC_ALL, "")) {
    std::fputs("The locale that the environment names is not installed.\n", stderr);
    return 1;
  }
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
