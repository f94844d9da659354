#pragma once

namespace vexa {

/// The program from start to end: one copy for each user, the settings store, the frame.
class Application {
 public:
  /// Runs the program; returns its exit status.
  static int Run(int argc, char** argv);
};

}  // namespace vexa
