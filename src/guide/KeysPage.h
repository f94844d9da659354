#pragma once

#include <span>
#include <string>
#include <string_view>

#include "toolkit/Key.h"

namespace vexa {

/// A screen's keys under a heading.
struct KeyGroup {
  std::string_view heading;
  std::span<const Key> keys;
};

/// The page "Keys and Functions" in Markdown: what each key does, and every function's name, made
/// from the tables that the program itself works with. A row that several keys share stands once.
std::string KeysPage(std::span<const KeyGroup> groups);

}  // namespace vexa
