// Every table of expected results that the program has a door for, through the program itself: one
// process for a table where its cases can share one, in the C locale and in two with other rules.

#include <gtest/gtest.h>

#include <charconv>
#include <fstream>
#include <nlohmann/json.hpp>

#include "plotter/GraphBitmap.h"
#include "plotter/GraphFunction.h"
#include "support/TemporaryFolder.h"
#include "support/Vectors.h"
#include "terminal/Texts.h"
#include "terminal/VexaProcess.h"

namespace vexa {
namespace {

using nlohmann::json;
using terminal::ExactText;
using test::HexDouble;
using test::Integer;
using test::ReadTable;
using test::UlpDistance;

constexpr const char* kBases[] = {"", "dec", "hex", "bin", "oct"};
constexpr const char* kAngles[] = {"", "deg", "rad"};
constexpr const char* kDisplays[] = {"float", "fixed", "sci", "currency", "eng"};
constexpr const char* kOverflow = "Out of range(overflow or underflow)";

/// Functions and powers of another C library may differ in the last bits.
constexpr std::uint64_t kUlps = 4;

std::vector<json> ReadJsonLines(const std::string& name) {
  std::ifstream file(test::VectorPath(name));
  std::vector<json> lines;
  for (std::string line; std::getline(file, line);) lines.push_back(json::parse(line));
  return lines;
}

double Number(const json& text) {
  return HexDouble(text.get<std::string>());
}

/// A number of an answer; null stands for none.
double Answered(const json& number) {
  return number.is_null() ? std::numeric_limits<double>::quiet_NaN() : number.get<double>();
}

bool IsSame(double answered, double expected, std::uint64_t ulps = kUlps) {
  if (!std::isfinite(expected)) return !std::isfinite(answered);
  return UlpDistance(answered, expected) <= ulps;
}

/// What "=" says of an expression for which the engine alone has this sentence: it takes blanks
/// away and looks for macros first.
std::string ErrorOf(const std::string& expression, const std::string& engineError) {
  if (expression.find_first_not_of(' ') == std::string::npos) return "Expression is null.";
  return expression.starts_with("M:") ? "Macro Name error" : engineError;
}

/// Whether a file can hold the rows: it separates by what is no part of a number.
bool FitIntoAFile(const json& rows) {
  for (const json& row : rows) {
    for (const json& cell : row) {
      const auto text = cell.get<std::string>();
      if (text.empty() || text.find_first_not_of("0123456789.e+-") != std::string::npos)
        return false;
    }
  }
  return true;
}

/// Runs the program under a locale, with a home of its own.
class VectorsTest : public testing::TestWithParam<std::string> {
 protected:
  test::VexaRun Run(const std::vector<std::string>& words, const std::string& input = "") {
    return test::RunVexa(
        words, input,
        {.home = home.path,
         .environment = {"LC_ALL=" + GetParam(), "LOCPATH=" + test::LocaleFolder()}});
  }

  void Store(const json& settings) {
    test::PutBytes(home / ".config/Vexa Calculator/settings.json", settings.dump());
  }

  std::string PutRows(const json& rows, const std::string& name) {
    std::string bytes;
    for (const json& row : rows) {
      for (const json& cell : row) bytes += cell.get<std::string>() + "\t";
      bytes += "\n";
    }
    test::PutBytes(home / name, bytes);
    return home / name;
  }

  test::TemporaryFolder home;
};

TEST_P(VectorsTest, Evaluation) {
  const auto rows = ReadTable("eval.tsv");
  ASSERT_GT(rows.size(), 2900u);
  std::string input;
  for (const auto& row : rows) {
    input += std::string(":base ") + kBases[Integer(row[0])] + "\n:angle " +
             kAngles[Integer(row[1])] + "\n" + row[2] + "\n";
  }
  const auto run = Run({"eval", "--json"}, input);
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.errors, "");
  const auto lines = test::Lines(run.out);
  ASSERT_EQ(lines.size(), 3 * rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const json answer = json::parse(lines[3 * i + 2]);
    EXPECT_EQ(answer["expression"], rows[i][2]);
    EXPECT_EQ(answer.value("error", ""), ErrorOf(rows[i][2], rows[i][4])) << rows[i][2];
    if (rows[i][3] == "-") continue;
    EXPECT_TRUE(IsSame(answer.value("value", 0.1), HexDouble(rows[i][3]))) << rows[i][2];
  }
}

TEST_P(VectorsTest, Formats) {
  const auto rows = ReadTable("format.tsv");
  ASSERT_GT(rows.size(), 2900u);
  std::string input;
  for (const auto& row : rows) {
    const double value = HexDouble(row[0]);
    // What is no number, an expression can only come near.
    const std::string expression = std::isfinite(value) ? ExactText(value) : "1e999";
    input += std::string(":base dec\n:display ") + kDisplays[Integer(row[1])] + "\n:precision " +
             row[2] + "\n" + expression + "\n:base " + kBases[Integer(row[3])] + "\n";
  }
  const auto run = Run({"-"}, input);
  const auto lines = test::Lines(run.out);
  ASSERT_EQ(lines.size(), 5 * rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const bool refused = rows[i][4] == kOverflow;
    EXPECT_EQ(lines[5 * i + (refused ? 3 : 4)], refused ? "" : rows[i][4]) << rows[i][0];
  }
}

TEST_P(VectorsTest, Decimals) {
  const auto rows = ReadTable("decimals.tsv");
  std::string input;
  for (const auto& row : rows) input += ExactText(HexDouble(row[0])) + "\n";
  const auto lines = test::Lines(Run({"-d", "float"}, input).out);
  ASSERT_EQ(lines.size(), rows.size());
  std::size_t compared = 0;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const double size = std::abs(HexDouble(rows[i][0]));
    // Only these are written with all their decimals, whatever their number.
    if (size < 1e-12 || size > 1e12) continue;
    const std::size_t point = lines[i].find('.');
    const std::size_t decimals = point == std::string::npos ? 0 : lines[i].size() - point - 1;
    EXPECT_EQ(decimals, static_cast<std::size_t>(Integer(rows[i][1]))) << rows[i][0];
    ++compared;
  }
  EXPECT_GT(compared, 800u);
}

TEST_P(VectorsTest, Units) {
  const auto rows = ReadTable("units.tsv");
  ASSERT_GT(rows.size(), 3800u);
  json settings;
  std::string input;
  int users = 0;
  for (const auto& row : rows) {
    std::string from = row[4];
    std::string to = row[5];
    if (row[0] == "user") {
      // The table has the rate in the place of the output unit.
      from = "Input" + std::to_string(users);
      to = "Output" + std::to_string(users);
      const std::string section = "UserDefine_Convert_" + std::to_string(users++);
      settings[section] = {{"ConvType", from + " -> " + to}, {"Rate", row[5]}};
    }
    input += ExactText(HexDouble(row[6])) + "\t" + from + "\t" + to + "\n";
  }
  settings["Converter"] = {{"UserDefine_TotalNumber", users}};
  Store(settings);
  const auto run = Run({"convert", "-"}, input);
  const auto lines = test::Lines(run.out);
  ASSERT_EQ(lines.size(), rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(lines[i], rows[i][8] == kOverflow ? "" : rows[i][8])
        << rows[i][4] << " " << rows[i][6];
  }
}

TEST_P(VectorsTest, Statistics) {
  const std::pair<const char*, const char*> kNames[] = {{"sum_x", "\u03A3X"},
                                                        {"sum2_x", "\u03A3X^2"},
                                                        {"mean_x", "Mean of X"},
                                                        {"sigma_n1_x", "\u03C3(n-1) of X"},
                                                        {"sigma_n_x", "\u03C3(n) of X"},
                                                        {"sum_y", "\u03A3Y"},
                                                        {"sum2_y", "\u03A3Y^2"},
                                                        {"mean_y", "Mean of Y"},
                                                        {"sigma_n1_y", "\u03C3(n-1) of Y"},
                                                        {"sigma_n_y", "\u03C3(n) of Y"},
                                                        {"sum_xy", "\u03A3XY"}};
  int compared = 0;
  for (const int variables : {1, 2}) {
    std::vector<json> cases;
    std::vector<std::string> words{"stats", "--json", "--rows", variables == 1 ? "xn" : "xyn"};
    for (json& one : ReadJsonLines("stats.jsonl")) {
      if (one["var"] != variables || !FitIntoAFile(one["rows"])) continue;
      words.push_back(PutRows(one["rows"], "rows" + std::to_string(cases.size())));
      cases.push_back(std::move(one));
    }
    const auto run = Run(words);
    EXPECT_EQ(run.errors, "");
    const auto lines = test::Lines(run.out);
    ASSERT_EQ(lines.size(), cases.size());
    for (std::size_t i = 0; i < cases.size(); ++i) {
      const json answer = json::parse(lines[i]);
      EXPECT_EQ(answer["Total"]["value"], cases[i]["n"]);
      for (const auto& [name, caption] : kNames) {
        if (!cases[i]["statistics"].contains(name)) continue;
        const json& expected = cases[i]["statistics"][name];
        EXPECT_TRUE(IsSame(Answered(answer[caption]["value"]), Number(expected[0])))
            << cases[i]["id"] << " " << name;
        EXPECT_EQ(answer[caption]["text"], expected[1]) << cases[i]["id"] << " " << name;
        ++compared;
      }
    }
  }
  EXPECT_GT(compared, 600);
}

TEST_P(VectorsTest, Regression) {
  const char* const kModels[] = {"linear",      "power",       "inverse",
                                 "logarithmic", "exponential", "quadratic"};
  std::vector<json> cases;
  std::vector<std::string> files;
  for (json& one : ReadJsonLines("regress.jsonl")) {
    if (!FitIntoAFile(one["rows"])) continue;
    files.push_back(PutRows(one["rows"], "points" + std::to_string(cases.size())));
    cases.push_back(std::move(one));
  }
  ASSERT_GT(cases.size(), 100u);
  for (int model = 1; model <= 6; ++model) {
    std::vector<std::string> words{"regress", "--json", kModels[model - 1]};
    words.insert(words.end(), files.begin(), files.end());
    const auto lines = test::Lines(Run(words).out);
    ASSERT_EQ(lines.size(), cases.size());
    for (std::size_t i = 0; i < cases.size(); ++i) {
      const json& expected = cases[i]["models"][std::to_string(model)];
      json answer = json::parse(lines[i]);
      if (i % 10 == 0) {
        // Predictions need a process for each pair of X and Y.
        answer = json::parse(
            Run({"regress", "--json", kModels[model - 1], files[i], "--y-at",
                 ExactText(Number(cases[i]["x"])), "--x-at", ExactText(Number(cases[i]["y"]))})
                .out);
        EXPECT_TRUE(answer.contains("Y'"));
      }
      for (const auto& [name, number] : expected.items()) {
        if (!answer.contains(name)) continue;
        EXPECT_TRUE(IsSame(Answered(answer[name]["value"]), Number(number)))
            << cases[i]["id"] << " model " << model << " " << name;
      }
      EXPECT_EQ(answer.contains("C"), model == 6);
      EXPECT_EQ(answer.contains("r"), model == 1);
    }
  }
}

TEST_P(VectorsTest, DataFiles) {
  int compared = 0;
  for (const int variables : {1, 2}) {
    std::vector<json> cases;
    std::vector<std::string> words{"stats", "--json", "--rows", variables == 1 ? "xn" : "xyn"};
    for (json& one : ReadJsonLines("datafile.jsonl")) {
      if (one["var"] != variables || one["complete"] == 0) continue;
      // The table writes each byte as one character.
      std::string bytes;
      for (const wchar_t c : test::Wide(one["bytes"].get<std::string>()))
        bytes += static_cast<char>(c);
      const std::string name = "data" + std::to_string(cases.size());
      test::PutBytes(home / name, bytes);
      words.push_back(home / name);
      cases.push_back(std::move(one));
    }
    const auto lines = test::Lines(Run(words).out);
    ASSERT_EQ(lines.size(), cases.size());
    for (std::size_t i = 0; i < cases.size(); ++i) {
      const json answer = json::parse(lines[i]);
      EXPECT_EQ(answer["Rows"]["value"], cases[i]["rows"].size()) << cases[i]["id"];
      EXPECT_EQ(answer["Total"]["value"], cases[i]["total"]) << cases[i]["id"];
      ++compared;
    }
  }
  EXPECT_GT(compared, 150);
}

TEST_P(VectorsTest, Sessions) {
  int steps = 0;
  for (const json& session : ReadJsonLines("session.jsonl")) {
    SCOPED_TRACE("session " + session["id"].dump());
    json settings = {{"Config",
                      {{"Angle Type", session["settings"]["angle"]},
                       {"Base Type", session["settings"]["base"]},
                       {"Display Type", session["settings"]["display_type"]},
                       {"Precision", session["settings"]["precision"]}}},
                     {"MacroInfo", {{"TotalNumber", session["macros"].size()}}}};
    for (std::size_t i = 0; i < session["macros"].size(); ++i) {
      const json& macro = session["macros"][i];
      settings["Macro" + std::to_string(i)] = {
          {"Name", macro["name"]}, {"Type", macro["type"]}, {"Formula", macro["formula"]}};
    }
    Store(settings);
    std::string input;
    std::vector<const json*> answered;
    const auto command = [&](const json& step, const char* key, const char* name,
                             const auto& names) {
      if (!step.contains(key)) return;
      input += std::string(name) + names[step[key].get<std::size_t>()] + "\n";
      answered.push_back(nullptr);
    };
    for (const json& step : session["steps"]) {
      command(step, "angle", ":angle ", kAngles);
      command(step, "display_type", ":display ", kDisplays);
      command(step, "base", ":base ", kBases);
      input += step["input"].get<std::string>() + "\n";
      answered.push_back(&step);
    }
    const auto lines = test::Lines(Run({"--json"}, input).out);
    ASSERT_EQ(lines.size(), answered.size());
    for (std::size_t i = 0; i < lines.size(); ++i) {
      if (!answered[i]) continue;
      const json answer = json::parse(lines[i]);
      const json& step = *answered[i];
      EXPECT_EQ(answer.contains("error") ? answer["error"] : answer["result"], step["result_line"])
          << step["input"];
      EXPECT_TRUE(IsSame(answer.value("value", 0.0), Number(step["answer"]))) << step["input"];
      ++steps;
    }
  }
  EXPECT_EQ(steps, 1557);
}

/// A process and a file for each graph.
class PlotVectorsTest : public VectorsTest {};

TEST_P(PlotVectorsTest, PlotsAreTheDesktopProgramsBitmaps) {
  int compared = 0;
  for (const json& graph : ReadJsonLines("sample.jsonl")) {
    if (!graph.value("data_points", json::array()).empty() || graph["functions"].empty()) continue;
    GraphData data{.angleType = static_cast<AngleType>(graph["angle"].get<int>())};
    const json& ranges = graph["ranges"];
    data.ranges = {Number(ranges[0]), Number(ranges[1]), Number(ranges[2]), Number(ranges[3])};
    const std::string file = home / "graph.bmp";
    std::vector<std::string> words{"plot",
                                   "-o",
                                   file,
                                   "-a",
                                   kAngles[graph["angle"].get<int>()],
                                   "--x",
                                   ExactText(data.ranges.xMin),
                                   ExactText(data.ranges.xMax),
                                   "--y",
                                   ExactText(data.ranges.yMin),
                                   ExactText(data.ranges.yMax),
                                   "--"};
    bool valid = data.ranges.xMin < data.ranges.xMax && data.ranges.yMin < data.ranges.yMax;
    for (const json& text : graph["functions"]) {
      GraphFunction function;
      std::wstring formula = test::Wide(text.get<std::string>());
      std::erase(formula, L' ');
      valid = valid && ParseGraphFunction(data.functions.size(), formula, function).empty();
      data.functions.push_back(function);
      words.push_back(text);
    }
    std::filesystem::remove(file);
    const auto run = Run(words);
    EXPECT_EQ(run.status, valid ? 0 : 1) << graph["id"] << run.errors;
    if (!valid) continue;
    const GraphModel model(data, DisplayType::Currency, 5);
    const auto bytes = BitmapFile(DrawPicture(model));
    EXPECT_TRUE(test::Bytes(file) == std::string(bytes.begin(), bytes.end())) << graph["id"];
    ++compared;
  }
  EXPECT_GT(compared, 100);
}

std::string LocaleName(const testing::TestParamInfo<std::string>& locale) {
  return locale.param.substr(0, locale.param.find('_'));
}

INSTANTIATE_TEST_SUITE_P(Locales, VectorsTest, testing::Values("C", "de_DE.UTF-8", "tr_TR.UTF-8"),
                         LocaleName);
INSTANTIATE_TEST_SUITE_P(Locales, PlotVectorsTest, testing::Values("tr_TR.UTF-8"), LocaleName);

}  // namespace
}  // namespace vexa
