#include "terminal/UnitSearch.h"

#include <algorithm>

#include "converter/UnitConversion.h"
#include "engine/AsciiCase.h"
#include "terminal/Texts.h"

namespace vexa::terminal {
namespace {

constexpr std::wstring_view kBetweenUnits = L" to ";
/// As many candidates as a complaint names.
constexpr std::size_t kMostNamed = 8;

/// How a unit is named: not, by its beginning, by that of its only word or its last one, or whole.
enum NameMatch : int { kNone, kBeginning, kWord, kWhole };

NameMatch Match(std::wstring_view name, std::wstring_view word) {
  if (word.empty() || word.size() > name.size()) return kNone;
  if (ToLowerAscii(name.substr(0, word.size())) != ToLowerAscii(word)) return kNone;
  const std::wstring_view rest = name.substr(word.size());
  if (rest.empty()) return kWhole;
  return rest.find_first_of(L" /") == std::wstring_view::npos ? kWord : kBeginning;
}

bool IsNamed(const std::vector<std::wstring>& names, std::wstring_view word) {
  return std::ranges::any_of(names, [&](const auto& name) { return Match(name, word) != kNone; });
}

/// Calls `take` with every whole conversion of a category: its name and its position.
template <typename Take>
void ForEachConversion(int category, const UserConversions& users, Take take) {
  if (CategoryOf(category).kind == CategoryKind::UserDefined) {
    for (int i = 0; i < users.Count(); ++i) take(std::wstring_view(users.At(i).name), i);
  }
  int position = 0;
  for (const UnitEntry& unit : CategoryOf(category).units) take(unit.name, position++);
}

}  // namespace

bool ReadConversionLine(std::wstring_view line, ConversionRequest& request) {
  line = Trimmed(line);
  const bool tabs = line.find(L'\t') != std::wstring_view::npos;
  const std::size_t valueEnd = line.find(tabs ? L'\t' : L' ');
  if (valueEnd == std::wstring_view::npos) return false;
  const std::wstring_view units = line.substr(valueEnd + 1);
  const std::wstring_view between = tabs ? std::wstring_view(L"\t") : kBetweenUnits;
  const std::size_t fromEnd = units.find(between);
  if (fromEnd == std::wstring_view::npos) return false;
  request = {std::wstring(line.substr(0, valueEnd)),
             std::wstring(Trimmed(units.substr(0, fromEnd))),
             std::wstring(Trimmed(units.substr(fromEnd + between.size())))};
  return true;
}

UnitSearch::UnitSearch(SettingsStore& settingsStore)
    : store(settingsStore), userConversions(settingsStore), converter(settingsStore) {
  userConversions.Load();
}

ConversionAnswer UnitSearch::Convert(const ConversionRequest& request) {
  const std::vector<Pair> pairs = Find(request.from, request.to);
  if (pairs.size() != 1) return {.error = Refusal(pairs, request)};
  const Pair& pair = pairs.front();
  converter.Open(pair.positions, 0.0, request.value);
  if (!converter.InputNotice().empty()) return {.error = converter.InputNotice()};
  if (!converter.HasResult()) return {.error = converter.LastError()};
  return {.shown = converter.ResultText(),
          .value = converter.Result(),
          .from = std::wstring(pair.from),
          .to = std::wstring(pair.to)};
}

/// The pairs that fit best: the more of their names is there, and of those the user's own.
std::vector<UnitSearch::Pair> UnitSearch::Find(std::wstring_view from, std::wstring_view to) const {
  std::vector<Pair> pairs;
  const auto add = [&](ConverterPositions positions, std::wstring_view input,
                       std::wstring_view output) {
    const NameMatch first = Match(input, from);
    const NameMatch second = Match(output, to);
    if (first == kNone || second == kNone) return;
    pairs.push_back({positions, input, output, first + second});
  };
  for (int category = kCategoryCount - 1; category >= 0; --category) {
    const auto units = CategoryOf(category).units;
    if (CategoryOf(category).kind != CategoryKind::Factors) {
      ForEachConversion(category, userConversions, [&](std::wstring_view name, int position) {
        const ConversionUnits whole = SplitConversionName(name);
        add({category, position, 0}, whole.input, whole.output);
      });
      continue;
    }
    for (std::size_t i = 0; i < units.size(); ++i) {
      if (Match(units[i].name, from) == kNone) continue;
      for (std::size_t o = 0; o < units.size(); ++o) {
        add({category, static_cast<int>(i), static_cast<int>(o)}, units[i].name, units[o].name);
      }
    }
  }
  if (pairs.empty()) return pairs;
  const int best = std::ranges::max_element(pairs, {}, &Pair::fit)->fit;
  std::erase_if(pairs, [&](const Pair& pair) { return pair.fit < best; });
  const bool usersOwn =
      CategoryOf(pairs.front().positions.category).kind == CategoryKind::UserDefined;
  if (usersOwn && best == kWhole + kWhole) pairs.resize(1, pairs.front());
  return pairs;
}

std::wstring UnitSearch::Refusal(const std::vector<Pair>& pairs,
                                 const ConversionRequest& request) const {
  if (!pairs.empty()) {
    std::wstring sentence = L"The units may be";
    for (std::size_t i = 0; i < std::min(pairs.size(), kMostNamed); ++i) {
      sentence.append(i == 0 ? L" " : L", ")
          .append(pairs[i].from)
          .append(L" to ")
          .append(pairs[i].to);
    }
    return sentence + (pairs.size() > kMostNamed ? L" and others." : L".");
  }
  const std::vector<std::wstring> names = UnitNames(store);
  for (const std::wstring& word : {request.from, request.to}) {
    if (!IsNamed(names, word)) {
      return L"There is no unit \"" + word + L"\"; \"vexa convert --list\" shows all.";
    }
  }
  return L"There is no conversion from \"" + request.from + L"\" to \"" + request.to + L"\".";
}

std::vector<std::wstring> UnitNames(SettingsStore& store) {
  UserConversions users(store);
  users.Load();
  std::vector<std::wstring> names;
  const auto add = [&](std::wstring_view name) {
    if (std::ranges::find(names, name) == names.end()) names.emplace_back(name);
  };
  for (int category = 0; category < kCategoryCount; ++category) {
    const bool whole = CategoryOf(category).kind != CategoryKind::Factors;
    ForEachConversion(category, users, [&](std::wstring_view name, int) {
      if (!whole) return add(name);
      add(SplitConversionName(name).input);
      add(SplitConversionName(name).output);
    });
  }
  return names;
}

}  // namespace vexa::terminal
