#include "toolkit/CopiedText.h"

#include "toolkit/NumberBox.h"

namespace vexa {

std::wstring CopiedText(std::wstring_view shown, std::wstring_view selected) {
  std::wstring copied(selected);
  if (ReadNumberBox(shown) || ReadNumberBox(selected)) std::erase_if(copied, IsGroupMark);
  return copied;
}

}  // namespace vexa
