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

TEST_F(KeptSession, TakesThePlaceOfNoneThatCannotBeReadYet) {
  const std::string previous = bytes();
  addFunction('b', "x+" + std::string(100, '1'));
  LastSession next(folder.path().string());
  const long failures = failEachAllocation(
      false,
      [&] {
        try {
          next.keep(view, program.graphs);
        } catch (const std::bad_alloc&) {  // of what looks whether it is kept already
        }
      },
      [&] {
        MainView recovered_view;
        GraphTable recovered;
        std::string message;
        EXPECT_TRUE(next.recover(recovered_view, recovered, message)) << message;
        EXPECT_EQ(toCodePage(documentText(recovered_view, recovered)), previous);
        putBytes(path, previous);
        next = LastSession(folder.path().string());
      });
  EXPECT_GT(failures, 50);
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
