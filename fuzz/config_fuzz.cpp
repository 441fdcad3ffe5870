// config.ini of any bytes: what is read of it, beside a second reading, that the read changes no
// file, and that what is then written is read again.
#include <algorithm>

#include "base/code_page.h"
#include "base/language.h"
#include "files/config.h"
#include "fuzz.h"
#include "support/temporary_folder.h"

namespace zel::fuzz {
namespace {

struct SecondReading {
  explicit SecondReading(const std::string& bytes) {
    if (bytes.empty()) return;
    const std::size_t end = bytes.find("\r\n");
    language = bytes.substr(0, std::min<std::size_t>(end, 2));
    if (end == std::string::npos) return;
    is_damaged = false;
    std::string word;
    for (const char character : bytes.substr(end + 2, bytes.find("\r\n", end + 2) - end - 2))
      word +=
          character >= 'a' && character <= 'z' ? static_cast<char>(character - 0x20) : character;
    while (word.starts_with(' ')) word.erase(0, 1);
    while (word.ends_with(' ')) word.pop_back();
    confirms = word == "TRUE" || word == "VERDADERO";
  }

  bool is_damaged = true;
  std::string language = "old";
  bool confirms = false;
};

void check(const std::string& path, const std::string& bytes) {
  test::putBytes(path, bytes);
  SetCurrentLanguage("old");
  Configuration configuration;
  const ConfigRead outcome = readConfig(path, configuration);
  const SecondReading second(bytes);
  require(outcome == (second.is_damaged ? ConfigRead::damaged : ConfigRead::read), "the outcome");
  require(toCodePage(CurrentLanguage()) == second.language, "the language", CurrentLanguage());
  require(configuration.confirm_deletion == second.confirms, "whether deletions are confirmed");
  require(test::bytesOf(path) == bytes, "a read changes no file");
  if (outcome == ConfigRead::damaged) return;
  const std::string language = CurrentLanguage();
  require(writeConfig(path, configuration), "it is written");
  Configuration again;
  SetCurrentLanguage("old");
  require(readConfig(path, again) == ConfigRead::read, "what is written is read");
  require(again == configuration && CurrentLanguage() == language, "and is what it was", language);
}

}  // namespace
}  // namespace zel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zel::fuzz;
  static const zel::test::TemporaryFolder folder;
  static const std::string path = folder / "config.ini";
  check(path, std::string(Input(data, size).rest()));
  return 0;
}
