#include "terminal/Completion.h"

#include <gtest/gtest.h>

#include "converter/UserConversions.h"
#include "display/MemorySettingsStore.h"
#include "macros/MacroTable.h"
#include "terminal/UnitSearch.h"

namespace vexa::terminal {
namespace {

using Texts = std::vector<std::string>;

class CompletionTest : public testing::Test {
 protected:
  CompletionTest() {
    MacroTable(store).AddMacro(L"hyp", L"TYPE2 : F(X,Y)", L"sqrt(x^2+y^2)");
    UserConversions(store).Add({L"Smoot -> Meters", L"1.7018"});
  }
  Texts Line(std::string_view text) { return CompleteLine(text, store).texts; }
  Texts Command(const std::vector<std::string>& words) { return CompleteWords(words, store).texts; }

  MemorySettingsStore store;
};

TEST_F(CompletionTest, Lines) {
  EXPECT_EQ(Line("1+sq"), Texts{"sqrt("});
  EXPECT_EQ(Line("SIN"), (Texts{"sin(", "sinh("}));
  EXPECT_EQ(Line("2*M:"), Texts{"M:hyp("});
  EXPECT_EQ(Line("2*"), Texts{});
  EXPECT_EQ(Line(":b"), Texts{":base "});
  EXPECT_EQ(Line(":convert 1 smo"), Texts{"Smoot"});
  EXPECT_EQ(CompleteLine("1+sq", store).start, 2u);
}

TEST_F(CompletionTest, CommandLines) {
  EXPECT_EQ(Command({"mac"}), Texts{"macro"});
  EXPECT_EQ(Command({"macro", "s"}), (Texts{"show", "set"}));
  EXPECT_EQ(Command({"macro", "show", ""}), Texts{"hyp"});
  EXPECT_EQ(Command({"eval", "--base", "h"}), Texts{"hex"});
  EXPECT_EQ(Command({"plot", "x", "--no-g"}), Texts{"--no-grid"});
  EXPECT_EQ(Command({"plot", "x", "-o", ""}), Texts{"<file>"});
  EXPECT_EQ(Command({"regress", "quad"}), Texts{"quadratic"});
  EXPECT_EQ(Command({"convert", "1", "Acr"}), Texts{"Acres"});
  EXPECT_EQ(Command({"nonsense", "x", ""}), Texts{});
}

TEST_F(CompletionTest, CommonBeginnings) {
  EXPECT_EQ(CommonBeginning({"Megabits", "Megabytes"}), "Megab");
  EXPECT_EQ(CommonBeginning({"one"}), "one");
  EXPECT_EQ(CommonBeginning({}), "");
}

TEST_F(CompletionTest, UnitsByTheirBeginnings) {
  UnitSearch search(store);
  EXPECT_EQ(search.Convert({L"1", L"kilomet", L"MET"}).shown, L"1,000");
  EXPECT_EQ(search.Convert({L"100", L"celsius", L"fahr"}).shown, L"212");
  EXPECT_EQ(search.Convert({L"2", L"smoot", L"meters"}).shown, L"3.4036");
  EXPECT_EQ(search.Convert({L"1", L"megab", L"bytes"}).error,
            L"The units may be Megabits to Bytes, Megabytes to Bytes.");
  EXPECT_EQ(search.Convert({L"1", L"cubits", L"meters"}).error,
            L"There is no unit \"cubits\"; \"vexa convert --list\" shows all.");
  EXPECT_EQ(search.Convert({L"one", L"Acres", L"Ares"}).error, L"Please enter a number.");
  EXPECT_EQ(search.Convert({L"1", L"Acres", L"Bytes"}).error,
            L"There is no conversion from \"Acres\" to \"Bytes\".");
}

TEST_F(CompletionTest, ConversionLines) {
  ConversionRequest request;
  ASSERT_TRUE(ReadConversionLine(L" 3  Square Feet to Square Meters", request));
  EXPECT_EQ(request.value, L"3");
  EXPECT_EQ(request.from, L"Square Feet");
  EXPECT_EQ(request.to, L"Square Meters");
  ASSERT_TRUE(ReadConversionLine(L"3\tSquare Feet\tAcres", request));
  EXPECT_EQ(request.to, L"Acres");
  EXPECT_FALSE(ReadConversionLine(L"3 Acres", request));
  EXPECT_FALSE(ReadConversionLine(L"", request));
}

}  // namespace
}  // namespace vexa::terminal
