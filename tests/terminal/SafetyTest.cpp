// What befalls a program in a terminal: closed pipes, full disks, endless lines, bytes that are no
// text, no home.

#include <gtest/gtest.h>

#include <cstdio>

#include "support/TemporaryFolder.h"
#include "terminal/VexaProcess.h"

namespace vexa {
namespace {

using test::Lines;
using test::VexaRun;

class SafetyTest : public testing::Test {
 protected:
  VexaRun Run(const std::vector<std::string>& words, std::string_view input = "") {
    return test::RunVexa(words, input, {.home = home.path});
  }

  test::TemporaryFolder home;
};

TEST_F(SafetyTest, FullDisk) {
  const VexaRun run = test::RunVexa({"1+1"}, "", {.home = home.path, .output = "/dev/full"});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.errors, "vexa: standard output: No space left on device\n");
}

TEST_F(SafetyTest, FullDiskEndsALongRun) {
  std::string input;
  for (int i = 0; i < 200000; ++i) input += "1+1\n";
  const VexaRun run = test::RunVexa({"-"}, input, {.home = home.path, .output = "/dev/full"});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.errors, "vexa: standard output: No space left on device\n");
}

TEST_F(SafetyTest, ClosedPipe) {
  // Whoever reads only the beginning ends the program, too.
  FILE* const shell = popen("yes 1+1 | '" VEXA_PROGRAM "' | head -3", "r");
  ASSERT_NE(shell, nullptr);
  std::string out(100, '\0');
  out.resize(fread(out.data(), 1, out.size(), shell));
  EXPECT_EQ(pclose(shell), 0);
  EXPECT_EQ(out, "2\n2\n2\n");
}

TEST_F(SafetyTest, LinesOfAnyLength) {
  std::string input = "1+1\n";
  input.append(std::size_t{64} << 20, '1');
  input += "\n2+2\n";
  const VexaRun run = Run({"-"}, input);
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out, "2\n\n4\n");
  EXPECT_EQ(run.errors, "vexa: line 2: The line is longer than 65536 bytes.\n");
}

TEST_F(SafetyTest, LongestLineIsRead) {
  const VexaRun run = Run({"-"}, std::string(65535, ' ') + "7\n" + std::string(65536, ' ') + "7\n");
  EXPECT_EQ(run.out, "7\n\n");
}

TEST_F(SafetyTest, BytesThatAreNoText) {
  using namespace std::string_view_literals;
  const VexaRun run = Run({"-"}, "1+\0\n2+\xff\n\x1b[31m\n3+4\r\n\xc3\xa9\n"sv);
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out, "\n\n\n7\n\n");
  EXPECT_EQ(run.errors.find('\0'), std::string::npos);
  EXPECT_EQ(run.errors.find('\x1b'), std::string::npos);
  const auto lines = Lines(run.errors);
  ASSERT_EQ(lines.size(), 12u);
  EXPECT_EQ(lines[0], "vexa: line 1: \uFFFD is not supported.");
  EXPECT_EQ(lines[3], "vexa: line 2: \uFFFD is not supported.");
  EXPECT_EQ(lines[9], "vexa: line 5: \u00e9 is not supported.");
  EXPECT_EQ(Run({"\xff\xfe"}).status, 1);
}

TEST_F(SafetyTest, ExpressionsThatBeginWithMinus) {
  EXPECT_EQ(Run({"-5+3"}).out, "-2\n");
  EXPECT_EQ(Run({"-(2)"}).out, "-2\n");
  EXPECT_EQ(Run({"-.5"}).out, "-0.5\n");
  EXPECT_EQ(Run({"eval", "--", "-sin(30)"}).out, "-0.5\n");
  EXPECT_EQ(Run({"--", "-sin(30)", "-pi*0"}).out, "-0.5\n0\n");
  EXPECT_EQ(Run({"-p", "2", "-d", "fixed", "--", "-sin(30)"}).out, "-0.50\n");
  EXPECT_EQ(Run({"-sin(30)"}).status, 2);
}

TEST_F(SafetyTest, LastLineWithoutEnd) {
  EXPECT_EQ(Run({}, "1+1\n2+2").out, "2\n4\n");
}

TEST_F(SafetyTest, NothingToRead) {
  const VexaRun run = Run({"-"});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, "");
}

TEST_F(SafetyTest, NoHome) {
  const VexaRun run = test::RunVexa({"1+1"}, "", {.home = ""});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, "2\n");
  EXPECT_EQ(test::RunVexa({"1+1"}, "", {.home = "/nowhere/at/all"}).out, "2\n");
}

TEST_F(SafetyTest, PlaceOfTheFault) {
  EXPECT_EQ(Run({"2+#"}).errors, "vexa: # is not supported.\n  2+#\n    ^\n");
  EXPECT_EQ(Run({"1/0"}).errors, "vexa: Division exceeded calculation limit.\n");
  const VexaRun run = Run({"-"}, "1\n2+*3\n");
  EXPECT_EQ(run.errors, "vexa: line 2: Expression error.\n  2+*3\n    ^\n");
  // A long expression is shown around the place.
  const auto lines = Lines(Run({std::string(500, ' ') + "2+#"}).errors);
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_LE(lines[1].size(), 80u);
  EXPECT_EQ(lines[1][lines[2].find('^')], '#');
}

TEST_F(SafetyTest, WrongUse) {
  for (const std::vector<std::string>& words :
       std::vector<std::vector<std::string>>{{"eval", "--nonsense"},
                                             {"eval", "-b", "ten", "1"},
                                             {"eval", "-p", "13", "1"},
                                             {"eval", "-p"},
                                             {"convert", "1", "Miles"},
                                             {"macro"},
                                             {"macro", "other"},
                                             {"plot"},
                                             {"plot", "x", "x^2", "x^3", "x^4"},
                                             {"plot", "x", "-o", "graph.txt"},
                                             {"table", "x", "--step", "0"},
                                             {"memory", "get", "21"},
                                             {"regress", "cubic", "-"}}) {
    const VexaRun run = Run(words);
    EXPECT_EQ(run.status, 2) << words[0] << " " << words.back();
    EXPECT_EQ(run.out, "");
    EXPECT_TRUE(run.errors.starts_with("vexa: ")) << run.errors;
  }
}

TEST_F(SafetyTest, FilesThatCannotBeUsed) {
  EXPECT_EQ(Run({"stats", home / "none"}).errors,
            "vexa: " + (home / "none").string() + ": No such file or directory\n");
  EXPECT_EQ(Run({"stats", home.path}).status, 1);
  const VexaRun run = Run({"plot", "x", "-o", home / "none/graph.bmp"});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.errors,
            "vexa: " + (home / "none/graph.bmp").string() + ": No such file or directory\n");
}

TEST_F(SafetyTest, HeadingsAreNoRows) {
  // An "e" alone would be read as a number's text.
  const auto stats = [&](std::string_view input) {
    return Run({"stats", "--tsv", "-"}, input).out;
  };
  EXPECT_EQ(stats("weight\n1\n2\n"), stats("1\n2\n"));
  EXPECT_EQ(stats("height, number\n\n1.5, 3\n2.5, 4"), stats("1.5, 3\n2.5, 4\n"));
  EXPECT_NE(stats("1\n2\n"), stats("1\n3\n"));
  const auto fit = [&](std::string_view input) {
    return Run({"regress", "linear", "--tsv", "-"}, input);
  };
  EXPECT_EQ(fit("height age\n1 2\n2 4\n").out, fit("1 2\n2 4\n").out);
  EXPECT_EQ(fit("height age\n1 2\n2 4\n").status, 0);
}

TEST_F(SafetyTest, HugeTable) {
  EXPECT_EQ(Run({"table", "x", "--x", "0", "1", "--step", "1e-300"}).errors,
            "vexa: The table has more than 1000000 rows.\n");
  EXPECT_EQ(Run({"table", "x", "--x", "-1e308", "1e308"}).status, 1);
}

TEST_F(SafetyTest, ShellCompletes) {
  // As the shell calls it, with the program in its path.
  test::PutBytes(
      home / "try",
      "PATH=$(dirname '" VEXA_PROGRAM
      "'):$PATH\n"
      "source <(vexa completion bash)\n"
      "for words in 'vexa conv' 'vexa convert_1_Square.F' 'vexa eval_-d_f' 'vexa macro_'; do\n"
      "  IFS='_ ' read -r -a COMP_WORDS <<<\"$words\"\n"
      "  COMP_WORDS=(\"${COMP_WORDS[@]//./ }\")\n"
      "  [[ $words == *_ ]] && COMP_WORDS+=('')\n"
      "  COMP_CWORD=$((${#COMP_WORDS[@]} - 1))\n"
      "  _vexa\n"
      "  echo \"${COMPREPLY[@]}\"\n"
      "done\n");
  FILE* const shell = popen(("bash '" + (home / "try").string() + "'").c_str(), "r");
  ASSERT_NE(shell, nullptr);
  std::string out(200, '\0');
  out.resize(fread(out.data(), 1, out.size(), shell));
  EXPECT_EQ(pclose(shell), 0);
  EXPECT_EQ(out, "convert\nSquare\\ Feet\nfloat fixed\nlist show set delete\n");
}

TEST_F(SafetyTest, StoreIsSharedAndKept) {
  EXPECT_EQ(Run({"macro", "set", "hyp", "sqrt(x^2+y^2)"}).status, 0);
  EXPECT_EQ(Run({"M:hyp(3,4)"}).out, "5\n");
  EXPECT_EQ(Run({"memory", "set", "3", "M:hyp(3,4)*100"}).status, 0);
  EXPECT_EQ(Run({"memory", "get", "3"}).out, "500\n");
  EXPECT_EQ(Run({"macro", "set", "a(b", "x"}).errors,
            "vexa: Can not use '(',')',':' in Macro Name.\n");
  EXPECT_EQ(Run({"macro", "set", "none", "x+z"}).errors,
            "vexa: Argument error : Missing variable Y\n");
  EXPECT_EQ(Run({"macro", "list"}).out, "hyp(X,Y) = sqrt(x^2+y^2)\n");
  EXPECT_EQ(Run({"macro", "delete", "hyp"}).status, 0);
  EXPECT_EQ(Run({"macro", "show", "hyp"}).status, 1);
  EXPECT_EQ(Run({"memory", "clear"}).status, 0);
  EXPECT_EQ(Run({"memory", "get", "3"}).out, "0\n");
}

}  // namespace
}  // namespace vexa
