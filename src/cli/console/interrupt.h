#pragma once

namespace zel {

/// From now on Ctrl-C ends the program with status 130, unless whoever started it has it ignored.
void endOnInterrupt();

/// While one exists in any thread, Ctrl-C waits: a file that is being put in its place is put there
/// whole. After a Ctrl-C no other comes into being: who asks for one waits for the end.
class DeferInterrupt {
 public:
  DeferInterrupt();
  ~DeferInterrupt();
  DeferInterrupt(const DeferInterrupt&) = delete;
  DeferInterrupt& operator=(const DeferInterrupt&) = delete;

 private:
  static void end();
};

}  // namespace zel
