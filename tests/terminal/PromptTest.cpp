// The prompt on a terminal of its own, typed at as a user does.

#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>

#include "support/TemporaryFolder.h"

namespace vexa {
namespace {

constexpr std::chrono::seconds kPatience(30);
constexpr std::chrono::milliseconds kMoment(100);

class PromptTest : public testing::Test {
 protected:
  /// Starts the prompt on a terminal that is `columns` wide.
  void Start(unsigned short columns) {
    winsize size{24, columns, 0, 0};
    pid = forkpty(&terminal, nullptr, nullptr, &size);
    if (pid != 0) return;
    const std::string homeVariable = "HOME=" + home.path.string();
    const char* const environment[] = {homeVariable.c_str(), "TERM=vt100", "LC_ALL=C.UTF-8",
                                       nullptr};
    const char* const arguments[] = {VEXA_PROGRAM, nullptr};
    execve(VEXA_PROGRAM, const_cast<char**>(arguments), const_cast<char**>(environment));
    _exit(127);
  }
  ~PromptTest() override {
    if (pid > 0) {
      kill(pid, SIGKILL);
      waitpid(pid, nullptr, 0);
    }
    if (terminal >= 0) close(terminal);
  }

  void Type(std::string_view keys) {
    ASSERT_EQ(write(terminal, keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
  }

  /// Waits until the terminal shows `text` behind what was waited for before.
  testing::AssertionResult Shows(std::string_view text,
                                 std::chrono::milliseconds patience = kPatience) {
    const auto end = std::chrono::steady_clock::now() + patience;
    while (std::chrono::steady_clock::now() < end) {
      const std::size_t at = shown.find(text, seen);
      if (at != std::string::npos) {
        seen = at + text.size();
        return testing::AssertionSuccess();
      }
      if (Read(patience) != Reading::Text) break;
    }
    return testing::AssertionFailure() << "not \"" << text << "\" but: " << shown.substr(seen);
  }

  /// Presses Ctrl and a letter until `done`: what is pressed between a prompt and the moment from
  /// which keys are read one by one is the terminal's.
  template <typename Done>
  bool PressUntil(std::string_view key, Done done) {
    const auto end = std::chrono::steady_clock::now() + kPatience;
    while (std::chrono::steady_clock::now() < end) {
      if (write(terminal, key.data(), key.size()) < 0) return done();
      if (Read(kMoment) == Reading::Nothing) continue;
      if (done()) return true;
    }
    return false;
  }

  test::TemporaryFolder home;

 private:
  enum class Reading { Text, Nothing, End };

  /// Reads what the program writes within a time.
  Reading Read(std::chrono::milliseconds patience) {
    pollfd file{terminal, POLLIN, 0};
    if (poll(&file, 1, static_cast<int>(patience.count())) <= 0) return Reading::Nothing;
    std::array<char, 4096> piece;
    const ssize_t size = read(terminal, piece.data(), piece.size());
    if (size <= 0) return Reading::End;
    shown.append(piece.data(), static_cast<std::size_t>(size));
    return Reading::Text;
  }

  int terminal = -1;
  pid_t pid = -1;
  std::string shown;
  std::size_t seen = 0;
};

TEST_F(PromptTest, Answers) {
  Start(80);
  ASSERT_TRUE(Shows("> "));
  Type("2+3*4\n");
  ASSERT_TRUE(Shows("\r\n14\r\n"));
  Type("2+#\n");
  ASSERT_TRUE(Shows("# is not supported.\r\n  2+#\r\n    ^\r\n"));
  Type("\n");
  ASSERT_TRUE(Shows("> "));
}

TEST_F(PromptTest, CommandsStayUntilTheNext) {
  Start(80);
  ASSERT_TRUE(Shows("> "));
  Type("255\n");
  ASSERT_TRUE(Shows("\r\n255\r\n"));
  Type(":base hex\n");
  ASSERT_TRUE(Shows("\r\nFF\r\n"));
  Type("FF+1\n");
  ASSERT_TRUE(Shows("\r\n100\r\n"));
  Type(":convert 1 Kilobytes to Bytes\n");
  ASSERT_TRUE(Shows("\r\n1,024\r\n"));
  Type(":help\n");
  ASSERT_TRUE(Shows(":precision N"));
  Type(":base ten\n");
  ASSERT_TRUE(Shows(":base needs one of dec hex bin oct"));
}

TEST_F(PromptTest, CompletesFunctionsMacrosAndUnits) {
  test::PutBytes(home / ".config/Vexa Calculator/settings.json",
                 R"-({"MacroInfo":{"TotalNumber":1},
                      "Macro0":{"Name":"hyp","Type":"TYPE2 : F(X,Y)","Formula":"sqrt(x^2+y^2)"}})-");
  Start(80);
  ASSERT_TRUE(Shows("> "));
  Type("sq\t49)\n");
  ASSERT_TRUE(Shows("\r\n7\r\n"));
  Type("M:h\t3,4)\n");
  ASSERT_TRUE(Shows("\r\n5\r\n"));
  // Several are listed, and nothing is chosen for the user.
  Type(":conv\t2 Megab\t");
  ASSERT_TRUE(Shows("Megabits  Megabytes"));
  Type("yt\t to Kilob\tyt\t\n");
  ASSERT_TRUE(Shows("\r\n2,048\r\n"));
}

TEST_F(PromptTest, InterruptLeavesTheLineOnly) {
  Start(80);
  ASSERT_TRUE(Shows("> "));
  Type("1+1");
  ASSERT_TRUE(Shows("1+1"));
  ASSERT_TRUE(PressUntil("\x03", [&] { return Shows("> ", kMoment); }));
  Type("3+4\n");
  ASSERT_TRUE(Shows("\r\n7\r\n"));
}

TEST_F(PromptTest, RecallsWhatWasTyped) {
  test::PutBytes(
      home / ".config/Vexa Calculator/settings.json",
      R"-({"History":{"CalHistoryCount":2,"CalHistory1":"=[D]42","CalHistory2":"6*7"}})-");
  Start(80);
  ASSERT_TRUE(Shows("> "));
  Type("\x10\n");
  ASSERT_TRUE(Shows("\r\n42\r\n"));
  Type("\x10+1\n");
  ASSERT_TRUE(Shows("\r\n43\r\n"));
}

TEST_F(PromptTest, NarrowTerminal) {
  Start(20);
  ASSERT_TRUE(Shows("> "));
  Type("1+2+3+4+5+6+7+8+9+10+11+12+13\n");
  ASSERT_TRUE(Shows("\r\n91\r\n"));
  Type("1+2+3+4+5+6+7+8+9+10+11+12+#\n");
  ASSERT_TRUE(Shows("^\r\n"));
}

TEST_F(PromptTest, ExpressionsThatAreNoText) {
  Start(80);
  ASSERT_TRUE(Shows("> "));
  Type(
      "2\xc3\x97"
      "3\n");
  ASSERT_TRUE(Shows("\u00d7 is not supported."));
  Type("7*6\n");
  ASSERT_TRUE(Shows("\r\n42\r\n"));
}

}  // namespace
}  // namespace vexa
