#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "files/Descriptor.h"

namespace vexa {

/// How a running copy took the wish to come to the front.
enum class Answered {
  Nobody,  ///< None listens: none runs, or it is starting or ending.
  No,      ///< One listens and does not answer.
  Yes,
};

/// Asks the copy that listens in `folder` to come to the front, with the desktop's permission
/// `token`, and waits up to a second for its answer.
Answered AskRunningCopy(const std::filesystem::path& folder, std::string token);

/// Takes the place in `folder` where other copies ask, from one that does not answer, too. No
/// descriptor: there is none.
Descriptor ListenForCopies(const std::filesystem::path& folder);

/// What another copy asked, waiting for its answer.
struct CopyRequest {
  Descriptor connection;
  std::string token;

  void Grant() const;
};

/// The next request, or nothing when there is none. What is no request is dropped.
std::optional<CopyRequest> TakeRequest(const Descriptor& listener);

}  // namespace vexa
