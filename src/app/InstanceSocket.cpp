#include "app/InstanceSocket.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

namespace vexa {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr const char* kSocketName = "vexa-calculator.socket";
/// What a wish may hold at most.
constexpr std::size_t kLongestToken = 512;
constexpr char kGranted = '\n';
constexpr milliseconds kAnswerPatience{1000};
/// A copy writes its wish at once; one that does not must not hold the running one up.
constexpr milliseconds kWishPatience{100};

/// The socket's address in a folder whose name may be longer than an address: by way of the opened
/// folder, while that is open.
struct Address {
  explicit Address(const std::filesystem::path& path)
      : folder(open(path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)) {
    const std::string name = "/proc/self/fd/" + std::to_string(folder.Number()) + '/' + kSocketName;
    name.copy(socket.sun_path, sizeof socket.sun_path - 1);
  }
  const sockaddr* Get() const { return reinterpret_cast<const sockaddr*>(&socket); }

  Descriptor folder;
  sockaddr_un socket{.sun_family = AF_UNIX, .sun_path = {}};
};

Descriptor NewSocket() {
  return Descriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
}

/// True when something can be read, the end included, before `end`.
bool WaitUntilReadable(const Descriptor& file, Clock::time_point end) {
  for (;;) {
    const auto left = std::chrono::ceil<milliseconds>(end - Clock::now()).count();
    pollfd wanted{.fd = file.Number(), .events = POLLIN, .revents = 0};
    const int count = poll(&wanted, 1, static_cast<int>(std::max<long>(left, 0)));
    if (count >= 0 || errno != EINTR) return count > 0;
  }
}

/// A line without its end; nothing when none comes in time, or one too long.
std::optional<std::string> ReadLine(const Descriptor& file, Clock::time_point end) {
  std::string line;
  while (line.size() <= kLongestToken && WaitUntilReadable(file, end)) {
    std::array<char, kLongestToken + 1> piece;
    const ssize_t count = recv(file.Number(), piece.data(), piece.size(), 0);
    if (count <= 0) return {};
    line.append(piece.data(), static_cast<std::size_t>(count));
    if (line.ends_with('\n')) return line.substr(0, line.size() - 1);
  }
  return {};
}

}  // namespace

Answered AskRunningCopy(const std::filesystem::path& folder, std::string token) {
  const Address address(folder);
  const Descriptor connection = NewSocket();
  if (connect(connection.Number(), address.Get(), sizeof address.socket) != 0) {
    return Answered::Nobody;
  }
  const bool isUsable = token.size() < kLongestToken && token.find('\n') == token.npos;
  const std::string wish = (isUsable ? token : "") + '\n';
  send(connection.Number(), wish.data(), wish.size(), MSG_NOSIGNAL);
  if (!WaitUntilReadable(connection, Clock::now() + kAnswerPatience)) return Answered::No;
  char answer = 0;
  const bool isGranted = recv(connection.Number(), &answer, 1, 0) == 1 && answer == kGranted;
  return isGranted ? Answered::Yes : Answered::Nobody;
}

Descriptor ListenForCopies(const std::filesystem::path& folder) {
  const Address address(folder);
  unlink(address.socket.sun_path);
  Descriptor listener = NewSocket();
  const bool isListening = bind(listener.Number(), address.Get(), sizeof address.socket) == 0 &&
                           listen(listener.Number(), SOMAXCONN) == 0;
  return isListening ? std::move(listener) : Descriptor();
}

void CopyRequest::Grant() const {
  send(connection.Number(), &kGranted, 1, MSG_NOSIGNAL);
}

std::optional<CopyRequest> TakeRequest(const Descriptor& listener) {
  for (;;) {
    Descriptor connection(
        accept4(listener.Number(), nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
    if (!connection) return {};
    auto token = ReadLine(connection, Clock::now() + kWishPatience);
    if (token) return CopyRequest{std::move(connection), *std::move(token)};
  }
}

}  // namespace vexa
