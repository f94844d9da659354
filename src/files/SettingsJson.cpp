#include "files/SettingsJson.h"

#include <cstdint>
#include <nlohmann/json.hpp>
#include <utility>

#include "files/Utf8.h"

namespace vexa {
namespace {

using Json = nlohmann::json;

/// Takes what the reader comes upon, and stops it at what no settings file holds.
class Collector : public nlohmann::json_sax<Json> {
 public:
  bool null() override { return IsInSection(); }
  bool boolean(bool value) override { return Take(value ? L"true" : L"false"); }
  bool number_integer(std::int64_t value) override { return TakeInteger(value); }
  bool number_unsigned(std::uint64_t value) override { return TakeInteger(value); }
  bool number_float(double, const std::string& text) override {
    // The reader hands the user's own decimal sign on in the place of the file's point.
    std::string number = text;
    const std::size_t sign = number.find_first_not_of("0123456789+-eE");
    if (sign != number.npos) number[sign] = '.';
    return TakeText(number);
  }
  bool string(std::string& text) override { return TakeText(text); }
  bool binary(binary_t&) override { return false; }
  bool start_object(std::size_t) override { return ++depth <= 2; }
  bool end_object() override { return depth-- > 0; }
  bool start_array(std::size_t) override { return false; }
  bool end_array() override { return false; }
  bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override {
    return false;
  }
  bool key(std::string& text) override {
    auto name = DecodeUtf8(text);
    if (name) (depth == 1 ? section : entry) = *std::move(name);
    return name.has_value();
  }

  SettingsValues values;

 private:
  bool IsInSection() const { return depth == 2; }
  bool Take(SettingValue value) {
    if (!IsInSection()) return false;
    values.insert_or_assign({section, entry}, std::move(value));
    return values.size() <= kMostSettings;
  }
  bool TakeText(std::string_view bytes) {
    auto text = DecodeUtf8(bytes);
    return text && Take(*std::move(text));
  }
  template <typename Integer>
  bool TakeInteger(Integer value) {
    if (std::in_range<int>(value)) return Take(static_cast<int>(value));
    return Take(std::to_wstring(value));
  }

  int depth = 0;
  std::wstring section;
  std::wstring entry;
};

std::string Encoded(std::wstring_view text) {
  constexpr wchar_t kReplacement = L'\xFFFD';
  std::string bytes;
  for (const wchar_t c : text) AppendUtf8(bytes, IsUnicodeScalar(c) ? c : kReplacement);
  return bytes;
}

}  // namespace

std::optional<SettingsValues> ParseSettings(std::string_view bytes) {
  if (bytes.find_first_not_of(" \t\r\n") == bytes.npos) return SettingsValues();
  // A NUL would end the text for the reader, whatever follows.
  if (bytes.find('\0') != bytes.npos) return {};
  Collector collector;
  if (!Json::sax_parse(bytes, &collector)) return {};
  return std::move(collector.values);
}

std::string FormatSettings(const SettingsValues& values) {
  Json root = Json::object();
  for (const auto& [name, value] : values) {
    Json& item = root[Encoded(name.first)][Encoded(name.second)];
    if (const int* const number = std::get_if<int>(&value)) {
      item = *number;
    } else {
      item = Encoded(std::get<std::wstring>(value));
    }
  }
  constexpr int kIndent = 2;
  return root.dump(kIndent) + '\n';
}

}  // namespace vexa
