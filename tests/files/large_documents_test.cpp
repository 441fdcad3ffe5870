// Documents of a size that no user makes: reading them takes time and memory in proportion to it.

#include <random>

#include "document_fixture.h"
#include "files/document_parser.h"

namespace zel::test {
namespace {

constexpr std::size_t kLarge = std::size_t{8} << 20;

class LargeDocuments : public DocumentTest {
 protected:
  static std::string repeated(std::string_view part) {
    std::string text;
    while (text.size() < kLarge) text.append(part);
    return text;
  }

  static std::string numberedPairs(std::size_t count) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) text += std::to_string(i) + "=\r\n";
    return text;
  }

  /// Loads the sample with so many pairs in one section, of which it holds some already.
  bool loadPairs(std::size_t count, std::size_t already, const std::string& before) {
    return loadSampleWith(before, numberedPairs(count - already) + before);
  }
};

constexpr std::size_t kHeaderPairs = 12;
constexpr std::size_t kPropertyPairs = 6;
constexpr std::size_t kCircleParameters = 5;

TEST_F(LargeDocuments, MayHoldManyHeaderPairsAndNotOneMore) {
  ASSERT_EQ(kMostPairs, 16'384u);
  ASSERT_TRUE(loadPairs(kMostPairs, kHeaderPairs, "usuario="));
  EXPECT_EQ(header.Count(), kMostPairs);
  EXPECT_EQ(header.Item("usuario"), "desconocido");
  expectFailure(loadPairs(kMostPairs + 1, kHeaderPairs, "usuario="), "", "");
}

TEST_F(LargeDocuments, MayHoldManyPropertiesAndNotOneMore) {
  EXPECT_TRUE(loadPairs(kMostPairs, kPropertyPairs, "nombre=b"));
  expectFailure(loadPairs(kMostPairs + 1, kPropertyPairs, "nombre=b"), "", "a");
}

TEST_F(LargeDocuments, MayHoldManyParametersAndGivesThemBackAndNotOneMore) {
  ASSERT_TRUE(loadPairs(kMostPairs, kCircleParameters, "codigo2="));
  EXPECT_NE(documentText(view, graphs).find(numberedPairs(kMostPairs - kCircleParameters)),
            std::string::npos);
  EXPECT_TRUE(writeDocument(path, view, graphs).written);
  expectFailure(loadPairs(kMostPairs + 1, kCircleParameters, "codigo2="), "", "a");
}

TEST_F(LargeDocuments, AreNotWrittenWithMoreParametersThanAreRead) {
  const auto many = NewDictionary();
  for (std::size_t i = 0; i <= kMostPairs; ++i) many->Add(std::to_string(i), "");
  graphs.rebuildGraph('a', "x", "", 0, 'F', many);
  EXPECT_EQ(documentBytes(view, graphs), std::nullopt);
}

TEST_F(LargeDocuments, MayHoldManyGraphs) {
  const std::string graph(kSampleGraphs.substr(kSampleGraphs.find("[GRAFICO]\r\n")));
  ASSERT_TRUE(loadSampleWith("[GRAFICOS PRINCIPAL]\r\n",
                             "[GRAFICOS PRINCIPAL]\r\n" + repeated(graph + "\r\n")));
  EXPECT_EQ(letters(), "ab");
}

TEST_F(LargeDocuments, MayHoldManyLinesBetweenSections) {
  for (const std::string_view line :
       {"\r\n", " \r\n", "[PRINCIPAL]\r\n", "[PROPIEDADES]\r\n", "\r", "\n", "="}) {
    load(std::string(kSampleHead) + repeated(line));
    EXPECT_EQ(message, std::string_view("No es posible cargar las funciones en memoria porque el "
                                        "formato del archivo no es el esperado."));
  }
}

TEST_F(LargeDocuments, MayRepeatSectionHeadersWhereGraphsAreExpected) {
  const std::string section = "[GRAFICOS PRINCIPAL]\r\n";
  const std::string empty = "[PROPIEDADES]\r\n \r\n";
  // Two lines without "=" are two pairs of one key; a graph without a colour is none.
  for (const std::string& lines :
       {std::string("[PROPIEDADES]\r\n"), empty, empty + "[PARAMETROS]\r\n \r\n"})
    expectFailure(loadSampleWith(section, section + repeated(lines)), "", "");
  for (const std::string_view passed_over : {"[GRAFICO]\r\n", "[PARAMETROS]\r\n", "[x]\r\n \r\n"}) {
    EXPECT_TRUE(loadSampleWith(section, section + repeated(passed_over))) << passed_over;
    EXPECT_EQ(letters(), "ab");
  }
  EXPECT_TRUE(loadSampleWith("tipo=F\r\n \r\n", "tipo=F\r\n \r\n" + repeated(empty)));
  EXPECT_EQ(letters(), "ab");
  EXPECT_TRUE(load(sampleText() + "\r\n" + repeated(empty)));
  EXPECT_EQ(letters(), "ab");
}

TEST_F(LargeDocuments, MayHoldALongValue) {
  const std::string value = repeated("x+");
  ASSERT_TRUE(loadSampleWith("ecuacion=x^2", "ecuacion=" + value));
  EXPECT_EQ(graphs.codeOf('a'), value);
}

TEST_F(LargeDocuments, MayBeNoise) {
  std::mt19937 random(2008);
  std::string bytes = sampleText();
  while (bytes.size() < kLarge) bytes += static_cast<char>(random());
  EXPECT_TRUE(load(bytes));
  load(bytes.substr(kSampleHead.size()));
  EXPECT_NE(message, "");
}

}  // namespace
}  // namespace zel::test
