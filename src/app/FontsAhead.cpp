#include "app/FontsAhead.h"

#include <dlfcn.h>

#include <system_error>

namespace vexa {

FontsAhead::FontsAhead() {
  // The toolkit's own font library, where it has this one; the function may run on any thread, and
  // a second call returns at once.
  const auto read = reinterpret_cast<int (*)()>(dlsym(RTLD_DEFAULT, "FcInit"));
  if (!read) return;
  try {
    reading = std::thread([read] { read(); });
  } catch (const std::system_error&) {
    // Without a thread the first text waits.
  }
}

FontsAhead::~FontsAhead() {
  if (reading.joinable()) reading.join();
}

}  // namespace vexa
