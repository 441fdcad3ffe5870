// Every allocation of a command fails once: it has done its work, or says that it has not.

#include <iostream>
#include <sstream>

#include "cli/cli.h"
#include "failing_new.h"
#include "files/document_fixture.h"

namespace zel::test {
namespace {

TEST(CommandsInWantOfMemory, AreDoneOrSayThatTheyAreNot) {
  const TemporaryFolder folder;
  const std::string path = folder / "sample.zel";
  putBytes(path, sampleText());
  const std::vector<std::vector<std::string>> commands = {
      {"check", path}, {"resave", path, folder / "out.zel"}, {"evaluate", "x^2", "3"}};
  for (const auto& arguments : commands) {
    std::istringstream in;
    int status = 0;
    std::ostringstream out, err;
    const long failures = failEachAllocation(
        false,
        [&] {
          out.str({});
          err.str({});
          out.clear();
          err.clear();
          status = runCli(arguments, in, out, err);
        },
        [&] {
          EXPECT_TRUE(status == 0 || !err.str().empty()) << status;
          if (arguments[0] == "resave" && std::filesystem::exists(arguments[2])) {
            EXPECT_EQ(bytesOf(arguments[2]), sampleText());
          }
          std::filesystem::remove(folder / "out.zel");
        });
    EXPECT_EQ(status, 0);
    std::cout << failures << " failures of " << arguments[0] << '\n';
    EXPECT_GT(failures, 100);
  }
}

}  // namespace
}  // namespace zel::test
