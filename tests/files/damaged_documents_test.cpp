// Documents with any damage: what a load makes of each is what a second reading of the rules says.

#include <random>

#include "base/code_page.h"
#include "document_fixture.h"
#include "second_reading.h"

namespace zel::test {
namespace {

class DamagedDocuments : public DocumentTest {
 protected:
  /// Loads the bytes over an old graph and compares everything with the second reading.
  void expectAsReadTwice(const std::string& bytes) {
    view = MainView();
    graphs.clearGraphs();
    putOldGraph();
    header.removeAll();
    header.Add("old", "pair");
    SecondReading second(fromCodePage(bytes), view);
    const bool loaded = loadDocumentBytes(bytes, view, graphs, header, message);
    ++(loaded ? loads_ : failures_[message]);
    EXPECT_EQ(loaded, second.loaded());
    EXPECT_EQ(message, second.message.value_or(""));
    EXPECT_EQ(view, second.view);
    expectGraphs(second);
    EXPECT_EQ(pairsOf(header), second.header.value_or(SecondReading::Pairs{{"old", "pair"}}));
    if (HasFailure()) ADD_FAILURE() << "of this document:\n" << fromCodePage(bytes);
  }

  /// The number of documents that were loaded, and of those that ended with each message.
  int loads() const { return loads_; }
  int failures(std::string_view with) { return failures_[std::string(with)]; }

 private:
  static SecondReading::Pairs pairsOf(const Parameters& parameters) {
    SecondReading::Pairs pairs;
    for (const auto& [key, value] : parameters) pairs.emplace_back(key, value);
    return pairs;
  }

  void expectGraphs(const SecondReading& second) {
    std::string expected;
    for (const auto& [letter, graph] : second.graphs) expected += letter;
    EXPECT_EQ(letters(), second.clears ? expected : "z");
    EXPECT_EQ(graphs.count(), second.clears ? static_cast<int>(expected.size()) : 1);
    for (const auto& [letter, graph] : second.graphs) {
      const auto def = graphs.graph(letter);
      EXPECT_EQ(def->ecuacion, graph.ecuacion);
      EXPECT_EQ(def->codigo, graph.codigo);
      EXPECT_EQ(def->color, graph.color);
      EXPECT_EQ(def->carpeta, "");
      EXPECT_EQ(kindText(*def), graph.tipo == 0 ? "" : utf8(graph.tipo));
      EXPECT_EQ(pairsOf(*def->parameters), graph.parameters);
    }
  }

  static std::string utf8(char32_t character) {
    const auto six = [&](int shift) {
      return static_cast<char>(0x80 | ((character >> shift) & 0x3F));
    };
    if (character < 0x80) return {static_cast<char>(character)};
    if (character < 0x800) return {static_cast<char>(0xC0 | (character >> 6)), six(0)};
    return {static_cast<char>(0xE0 | (character >> 12)), six(6), six(0)};
  }

  int loads_ = 0;
  std::map<std::string, int> failures_;
};

/// The sample with a curve, a family and a parabola behind its two graphs.
std::string longSample() {
  std::string text = sampleText();
  text.resize(text.size() - 1);
  const auto add = [&](const std::string& name, const std::string& kind, const std::string& pairs) {
    text += "[GRAFICO]\r\n[PROPIEDADES]\r\nnombre=" + name + "\r\ncodigo=1*x\r\ncolor=7\r\n" +
            "ecuacion=Sen(x)*P\r\ntipo=" + kind + "\r\n \r\n[PARAMETROS]\r\n" + pairs +
            " \r\n \r\n";
  };
  add("c", "T", "ecuacion_xt=Cos(t)\r\necuacion_yt=t\r\ncodigo_xt=stale\r\n");
  add("d", "Z", "parametro=P\r\n");
  add("e", "P", "h=0\r\n");
  add("f", "\xF1", "");
  return text + " ";
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t begin = 0; begin <= text.size();) {
    const std::size_t end = std::min(text.find("\r\n", begin), text.size());
    lines.push_back(text.substr(begin, end - begin));
    begin = end + 2;
  }
  return lines;
}

std::string textOf(const std::vector<std::string>& lines) {
  std::string text = lines.front();
  for (std::size_t i = 1; i < lines.size(); ++i) text += "\r\n" + lines[i];
  return text;
}

TEST_F(DamagedDocuments, AreReadAsTheRulesSayWhateverByteIsWrongOrWhereverTheyEnd) {
  const std::string sample = longSample();
  for (std::size_t i = 0; i < sample.size(); i += 2) {
    std::string damaged = sample;
    damaged[i] = static_cast<char>(i * 37);
    expectAsReadTwice(damaged);
    expectAsReadTwice(sample.substr(0, i));
  }
  expectAsReadTwice(std::string("\0versiones_compatibles=2.0\0", 27));
  EXPECT_GT(loads(), 100);
  EXPECT_GT(failures(""), 100);
  EXPECT_GT(failures(messages::kUnexpectedFormat), 50);
  EXPECT_GT(failures(messages::kNotCompatible), 50);
}

TEST_F(DamagedDocuments, AreReadAsTheRulesSayWhateverLinesAreMovedLostOrThereTwice) {
  const std::vector<std::string> sample = linesOf(longSample());
  std::mt19937 random(2008);
  const auto any = [&] { return random() % sample.size(); };
  for (int round = 0; round < 1500; ++round) {
    std::vector<std::string> lines = sample;
    for (auto changes = 1 + random() % 3; changes > 0; --changes) {
      std::string& line = lines[any() % lines.size()];
      switch (random() % 5) {
        case 0: line = sample[any()]; break;
        case 1: std::swap(line, lines[any() % lines.size()]); break;
        case 2:
          line = line.substr(0, line.find('=')) + "=" + std::to_string(random() % 70000);
          break;
        case 3: line += random() % 2 == 0 ? "\r\n" + line : " "; break;
        default: lines.erase(lines.begin() + (&line - lines.data())); break;
      }
    }
    expectAsReadTwice(textOf(lines));
  }
  EXPECT_GT(loads(), 100);
  EXPECT_GT(failures(""), 100);
  EXPECT_GT(failures(messages::kUnexpectedFormat), 50);
}

TEST_F(DamagedDocuments, AreReadAsTheRulesSayWhateverANumberIs) {
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
      expectAsReadTwice(replaceAll(longSample(), key, name + number));
    }
  }
  EXPECT_GT(loads(), 40);
  EXPECT_GT(failures(""), 40);
}

}  // namespace
}  // namespace zel::test
