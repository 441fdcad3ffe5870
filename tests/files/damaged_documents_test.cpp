// Documents with any damage: what a load makes of each is what a second reading of the rules says,
// and no load changes a file.

#include "support/damaged_documents.h"

#include <map>

#include "base/code_page.h"
#include "document_fixture.h"
#include "files/loaded_twice.h"

namespace zel::test {
namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr std::size_t kStep = 3;
#else
constexpr std::size_t kStep = 1;
#endif

class DamagedDocument : public DocumentTest {
 protected:
  void expectAsReadTwice(const std::string& bytes) {
    putBytes(path, bytes);
    const SecondReading second(fromCodePage(bytes), MainView());
    LoadedDocument document;
    document.loadFile(path);
    ++(document.loaded ? loads : failures[document.message]);
    EXPECT_EQ(differenceFrom(second, document), "") << "of this document:\n" << bytes;
    EXPECT_EQ(bytesOf(path), bytes);
  }

  int loads = 0;
  std::map<std::string, int, std::less<>> failures;  // by message
};

TEST_F(DamagedDocument, IsReadAsTheRulesSayAndStaysAsItIsWhateverTheDamage) {
  DamagedDocuments documents;
  for (std::size_t number = 0; number < DamagedDocuments::kCount && !HasFailure();
       number += kStep) {
    SCOPED_TRACE(number);
    expectAsReadTwice(documents.document(number));
  }
  expectAsReadTwice(DamagedDocuments::sound());
  expectAsReadTwice(std::string("\0versiones_compatibles=2.0\0", 27));
  EXPECT_EQ(folder.names().size(), 1u);
  constexpr int kMany = 2000 / static_cast<int>(kStep);
  EXPECT_GT(loads, kMany);
  EXPECT_GT(failures[""], kMany);
  EXPECT_GT(failures[std::string(messages::kUnexpectedFormat)], kMany / 4);
  EXPECT_GT(failures[std::string(messages::kNotCompatible)], kMany / 4);
}

TEST_F(DamagedDocument, IsReadAsTheRulesSayWhateverANumberIs) {
  for (const char* const number : {"",           " ",           "0",
                                   "-0",         "1",           "+1",
                                   "0,5",        "1,5",         "2.5",
                                   "-2,5",       ",5",          "5,",
                                   ",",          "-",           "1e2",
                                   "1E-2",       "1e",          "1,5e1,5",
                                   "32767",      "32767,5",     "32767,4",
                                   "32768",      "-32768",      "-32768,5",
                                   "-32769",     "2147483647",  "2147483647,5",
                                   "2147483648", "-2147483648", "-2147483649",
                                   "1e999",      "-1e999",      "1e-999",
                                   "inf",        "nan",         "0x10",
                                   "1 ",         " 1",          "1_0",
                                   "1.000,5"}) {
    for (const char* const key : {"definicion=5", "proporcional=1", "color=7"}) {
      const std::string name(key, std::string_view(key).find('=') + 1);
      expectAsReadTwice(replaceAll(DamagedDocuments::sound(), key, name + number));
    }
  }
  EXPECT_GT(loads, 40);
  EXPECT_GT(failures[""], 40);
}

}  // namespace
}  // namespace zel::test
