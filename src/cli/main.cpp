#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <new>

#include "cli/cli.h"
#include "cli/console/console.h"
#include "cli/console/interrupt.h"
#include "cli/console/process.h"
#include "files/failing_writes.h"
#include "files/standard_streams.h"

namespace {

void tellWantOfMemory() { std::fputs("zel-cli: out of memory\n", stderr); }

/// Where there is no memory even for an exception, and where one cannot be handed on, the program
/// ends as a command that failed.
[[noreturn]] void onTerminate() {
  const auto thrown = std::current_exception();
  try {
    if (thrown) std::rethrow_exception(thrown);
  } catch (const std::bad_alloc&) {
  } catch (...) {
    std::abort();
  }
  tellWantOfMemory();
  std::_Exit(zel::kExitFailed);
}

/// Before the static objects of the libraries are made, which is before main begins.
#ifdef __GNUC__
[[gnu::constructor(101)]]
#endif
void watchTermination() {
  std::set_terminate(onTerminate);
}

}  // namespace

int main(int argc, char** argv) {
  zel::fillStandardStreams();
  try {
    watchTermination();
    zel::useByteStreams();
    zel::endOnInterrupt();
    zel::letWritesFail(zel::ClosedPipe::ends_process);
    return zel::runCli(zel::processArguments(argc, argv), std::cin, std::cout, std::cerr);
  } catch (const std::bad_alloc&) {
    tellWantOfMemory();
  } catch (...) {
    std::fputs("zel-cli: unexpected error\n", stderr);
  }
  return zel::kExitFailed;
}
