// The session that is kept: in want of memory, and how little it takes to see that it was kept.

#include <limits>
#include <new>

#include <gtest/gtest.h>

#include "app/last_session.h"
#include "app/program_fixture.h"
#include "base/code_page.h"
#include "failing_new.h"
#include "files/document.h"

namespace zel::test {
namespace {

class KeptSession : public ProgramTest {
 protected:
  KeptSession() {
    addFunction('a', "x^2");
    keep();
  }

  void keep() { last.keep(view, program.graphs); }
  std::string bytes() const { return toCodePage(documentText(view, program.graphs)); }

  TemporaryFolder folder;
  std::string path = folder / "session.zel";
  LastSession last{folder.path().string()};
  MainView view;
};

TEST_F(KeptSession, StaysAsItIsWhereThereIsNoMemoryAtAll) {
  putBytes(path, "other");
  addFunction('b', "x");
  withFailingMemory(1, true, [this] { keep(); });
  EXPECT_EQ(bytesOf(path), "other");
}

TEST_F(KeptSession, IsNotReadBackToSeeThatItWas) {
  const auto allocations = [](const std::function<void()>& attempt) {
    return withFailingMemory(std::numeric_limits<long>::max(), false, attempt);
  };
  EXPECT_EQ(allocations([this] { keep(); }), 0);
  addFunction('b', "x");
  const long of_its_text = allocations([this] { bytes(); });
  EXPECT_GT(allocations([this] { keep(); }), 2 * of_its_text);
}

}  // namespace
}  // namespace zel::test
