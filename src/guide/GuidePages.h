#pragma once

#include <span>
#include <string_view>

namespace vexa {

/// A page of the guide: the name of its file without the ending, and its title.
struct GuidePage {
  std::string_view name;
  std::string_view title;
};

/// The pages in the order of reading. The first is the table of contents.
std::span<const GuidePage> GuidePages();

/// The page that is made from the program's own tables, not written.
inline constexpr std::string_view kKeysAndFunctionsPage = "keys-and-functions";

/// The page that explains the screen or dialog of this class (its name without the namespace);
/// empty for any other class.
std::string_view GuidePageOf(std::string_view screenClass);

}  // namespace vexa
