// Documents with any damage on the command line: the status and the message of each are those of a
// second reading of the rules, and no command changes the file.

#include "support/damaged_documents.h"

#include <cstdio>

#include "base/code_page.h"
#include "cli/console/console.h"
#include "cli_fixture.h"
#include "files/loaded_twice.h"

namespace zel::test {
namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr std::size_t kStep = 7;
#else
constexpr std::size_t kStep = 1;
#endif

/// How each line of a listing begins and what its code is: "a\tF\t#070000\t", "\tx".
std::string beginningOf(char letter, const SecondReading::Graph& graph) {
  char colour[8];
  const auto bits = static_cast<unsigned>(graph.color);
  std::snprintf(colour, sizeof colour, "#%02x%02x%02x", bits & 0xFF, bits >> 8 & 0xFF,
                bits >> 16 & 0xFF);
  const std::string kind = graph.tipo == 0 ? "" : utf8Of(graph.tipo);
  return std::string(1, letter) + "\t" + onOneLine(kind) + "\t" + colour + "\t";
}

class DamagedDocumentCommands : public CliTest {
 protected:
  void expectAsReadTwice(const std::string& bytes) {
    const std::string file = write("damaged.zel", bytes);
    const SecondReading second(fromCodePage(bytes), MainView());
    const Run result = run({"check", file});
    EXPECT_EQ(bytesOf(file), bytes);
    ++(second.loaded() ? loads : failures);
    if (second.loaded()) {
      EXPECT_EQ(result.err, "");
      EXPECT_EQ(result.status, 0);
      expectListed(second, result.out);
    } else {
      EXPECT_EQ(result.out, "");
      EXPECT_EQ(result.status, 1);
      EXPECT_EQ(result.err, std::string(openFailureMessage(*second.message)) + "\n");
    }
  }

  static void expectListed(const SecondReading& second, const std::string& out) {
    std::istringstream lines(out);
    std::string line;
    for (const auto& [letter, graph] : second.graphs) {
      ASSERT_TRUE(std::getline(lines, line));
      EXPECT_TRUE(line.starts_with(beginningOf(letter, graph))) << line;
      EXPECT_NE(line.find("\t" + onOneLine(graph.codigo)), std::string::npos) << line;
    }
    EXPECT_FALSE(std::getline(lines, line)) << line;
  }

  int loads = 0;
  int failures = 0;
};

TEST_F(DamagedDocumentCommands, SayWhatTheRulesSayAndLeaveTheFileAsItIs) {
  DamagedDocuments documents;
  for (std::size_t number = 0; number < DamagedDocuments::kCount && !HasFailure();
       number += kStep) {
    SCOPED_TRACE(number);
    expectAsReadTwice(documents.document(number));
  }
  EXPECT_GT(loads, 2000 / static_cast<int>(kStep));
  EXPECT_GT(failures, 3000 / static_cast<int>(kStep));
}

}  // namespace
}  // namespace zel::test
