// Every allocation of a command fails once: it has done its work whole, or says that it has not and
// leaves the file that it was to write as it was.

#include <iostream>
#include <optional>
#include <sstream>

#include "cli/cli.h"
#include "failing_new.h"
#include "files/document_fixture.h"

namespace zel::test {
namespace {

class CommandsInWantOfMemory : public ::testing::Test {
 protected:
  CommandsInWantOfMemory() { putBytes(document, sampleText()); }

  void run(const std::vector<std::string>& arguments) {
    out.str({});
    err.str({});
    out.clear();
    err.clear();
    status = runCli(arguments, in, out, err);
  }

  /// What is in the file of a command's output; nothing where there is none.
  std::optional<std::string> written() const {
    return std::filesystem::exists(output) ? std::optional(bytesOf(output)) : std::nullopt;
  }

  void putBack(const std::optional<std::string>& older) {
    std::filesystem::remove(output);
    if (older) putBytes(output, *older);
  }

  /// Lets each allocation of a command fail in turn, over such a file or none.
  void expectDoneOrTold(const std::vector<std::string>& arguments,
                        const std::optional<std::string>& older = {}) {
    putBack(older);
    run(arguments);
    ASSERT_EQ(status, 0) << err.str();
    const std::string whole = out.str();
    const auto newer = written();
    putBack(older);
    long told = 0;
    const long failures = failEachAllocation(
        false, [&] { run(arguments); },
        [&] {
          EXPECT_TRUE(status == 0 || status == 1) << status;
          EXPECT_EQ(err.str().empty(), status == 0) << err.str();
          EXPECT_TRUE(status == 1 || out.str() == whole) << out.str();
          EXPECT_EQ(written(), status == 0 ? newer : older);
          told += status;
          putBack(older);
        });
    EXPECT_EQ(status, 0);
    std::cout << failures << " failures of " << arguments[0] << ", " << told << " of them told\n";
    EXPECT_GT(failures, 100);
    EXPECT_GT(told, failures / 2);
  }

  const TemporaryFolder folder;
  const std::string document = folder / "sample.zel";
  const std::string output = folder / "out.zel";
  std::istringstream in;
  int status = 0;
  std::ostringstream out, err;
};

TEST_F(CommandsInWantOfMemory, AreDoneOrSayThatTheyAreNot) {
  expectDoneOrTold({"check", document});
  expectDoneOrTold({"evaluate", "x^2", "3"});
}

TEST_F(CommandsInWantOfMemory, WriteTheirFileWholeOrLeaveIt) {
  expectDoneOrTold({"resave", document, output});
  expectDoneOrTold({"resave", document, output}, "older");
}

}  // namespace
}  // namespace zel::test
