#include "WatchedDisplay.h"

#include <X11/Xutil.h>
#include <poll.h>
#include <sys/ipc.h>
#include <sys/shm.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <stdexcept>
#include <thread>

namespace vexa::bench {
namespace {

constexpr int kWidth = 1024;
constexpr int kHeight = 768;
constexpr std::size_t kPixels = std::size_t{kWidth} * kHeight;
constexpr int kDepth = 24;
constexpr int kPixelBytes = 4;
constexpr std::uint32_t kColour = 0xFFFFFF;
constexpr Milliseconds kPatience{20000};
constexpr Milliseconds kBetweenReads{50};

std::array<int, 2> OpenPipe() {
  std::array<int, 2> ends;
  if (pipe(ends.data()) != 0) throw std::runtime_error("no pipe to the display's server");
  return ends;
}

/// The display's name, e.g. ":1", once its server is ready.
std::string ReadDisplayName(int numberEnd) {
  std::string name = ":";
  for (char c = 0; read(numberEnd, &c, 1) == 1 && c != '\n';) name += c;
  return name;
}

}  // namespace

bool FinishedPicture::Matches(const Picture& picture) const {
  for (std::size_t i = 0; i < pixels.size(); ++i) {
    if (((pixels[i] ^ picture[i]) & steady[i]) != 0) return false;
  }
  return true;
}

WatchedDisplay::WatchedDisplay()
    : numberPipe(OpenPipe()),
      server({"Xvfb", "-displayfd", std::to_string(numberPipe[1]), "-screen", "0",
              std::to_string(kWidth) + "x" + std::to_string(kHeight) + "x" + std::to_string(kDepth),
              "-nolisten", "tcp"}) {
  close(numberPipe[1]);
  setenv("DISPLAY", ReadDisplayName(numberPipe[0]).c_str(), 1);
  display = XOpenDisplay(nullptr);
  int firstEvent = 0;
  int firstError = 0;
  if (display == nullptr || !XDamageQueryExtension(display, &firstEvent, &firstError)) {
    throw std::runtime_error("no display to watch");
  }
  const int screen = DefaultScreen(display);
  image = XShmCreateImage(display, DefaultVisual(display, screen), kDepth, ZPixmap, nullptr,
                          &shared, kWidth, kHeight);
  if (image == nullptr || image->bytes_per_line != kWidth * kPixelBytes) {
    throw std::runtime_error("the display's pixels are not as expected");
  }
  shared.shmid = shmget(IPC_PRIVATE, kPixels * kPixelBytes, IPC_CREAT | 0600);
  shared.shmaddr = image->data = static_cast<char*>(shmat(shared.shmid, nullptr, 0));
  XShmAttach(display, &shared);
  XSync(display, False);
  shmctl(shared.shmid, IPC_RMID, nullptr);  // goes with its last user
  damage = XDamageCreate(display, DefaultRootWindow(display), XDamageReportNonEmpty);
  empty.pixels = Read();
  empty.steady.assign(empty.pixels.size(), kColour);
}

WatchedDisplay::~WatchedDisplay() {
  XDestroyImage(image);
  XCloseDisplay(display);
  shmdt(shared.shmaddr);
  close(numberPipe[0]);
}

Picture WatchedDisplay::Read() const {
  const auto start = Clock::now();
  if (!XShmGetImage(display, DefaultRootWindow(display), image, 0, 0, AllPlanes)) {
    throw std::runtime_error("the display cannot be read");
  }
  Picture picture(kPixels);
  std::memcpy(picture.data(), shared.shmaddr, picture.size() * kPixelBytes);
  longestRead = std::max(longestRead, Milliseconds(Clock::now() - start));
  return picture;
}

FinishedPicture WatchedDisplay::ReadFinished(Milliseconds settling, Milliseconds watching) const {
  std::this_thread::sleep_for(settling);
  FinishedPicture finished{Read(), Picture(kPixels, kColour)};
  for (const auto start = Clock::now(); Clock::now() - start < watching;) {
    std::this_thread::sleep_for(kBetweenReads);
    const Picture later = Read();
    for (std::size_t i = 0; i < later.size(); ++i) {
      if (later[i] != finished.pixels[i]) finished.steady[i] = 0;
    }
  }
  return finished;
}

Clock::time_point WatchedDisplay::WaitFor(const FinishedPicture& expected) {
  const auto start = Clock::now();
  auto reported = start;
  while (true) {
    // What was drawn up to here is in the picture; what comes later is reported again.
    XDamageSubtract(display, damage, None, None);
    if (expected.Matches(Read())) return reported;
    do {
      if (Clock::now() - start > kPatience) throw std::runtime_error("a picture never came");
      pollfd connection{ConnectionNumber(display), POLLIN, 0};
      if (XPending(display) == 0) poll(&connection, 1, 100);
    } while (XPending(display) == 0);
    reported = Clock::now();
    for (XEvent event; XPending(display) != 0;) XNextEvent(display, &event);
  }
}

void WatchedDisplay::Save(const Picture& picture, const std::string& file) {
  std::ofstream out(file, std::ios::binary);
  out << "P6\n" << kWidth << " " << kHeight << "\n255\n";
  for (const std::uint32_t pixel : picture) {
    out.put(static_cast<char>(pixel >> 16))
        .put(static_cast<char>(pixel >> 8))
        .put(static_cast<char>(pixel));
  }
}

}  // namespace vexa::bench
