#pragma once

#include <QString>
#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "files/document.h"
#include "support/damaged_documents.h"
#include "support/temporary_folder.h"

/// What a stranger might type, paste or send as a document.
namespace zel::test {

/// Markup, control characters, huge numbers, and formulas that are long or deep.
inline const std::vector<QString>& hostileTexts() {
  static const std::vector<QString> texts = {
      "<b>x</b>&amp;<img src=\"file:///dev/zero\">",
      "<a href='x:y'>&lt;</a><table><tr><td>",
      "[*]%1%n&&\\",
      QString::fromUtf8("\x01\x02\x1b[31m\x7f\r\n\t"),
      QString(QChar(0)) + "x" + QChar(0),
      QString::fromUtf8("\u202Ex+1\u202C\u200B\uFEFF\u0301\U0001F600"),
      QString(QChar(0xD800)) + "x" + QChar(0xDC00),
      "1e308",
      "-1e308",
      "1e999",
      "1e-999",
      QString(400, '9'),
      "-0,0000000000000000000000000000000000000000000000000000001",
      "2147483648",
      "-32769",
      QString(3000, '(') + "x" + QString(3000, ')'),
      QString("x+sen(").repeated(700) + "x" + QString(")").repeated(700),
      QString("9^").repeated(2000) + "9",
      "x^2^9*10^300-inv(x-1e-300)",
      ""};
  return texts;
}

/// The documents that writeHostileDocuments puts into the current folder, and one that is missing.
inline constexpr auto kHostileDocuments = std::to_array<std::string_view>(
    {"sano.zel", "lento.zel", "largo.zel", "&amp;[*].zel", "danado.zel", "no/falta.zel"});

/// One of the documents with damages, in the place of the one before.
inline void writeDamagedDocument(std::size_t number) {
  static DamagedDocuments documents;
  putBytes("danado.zel", documents.document(number));
}

/// A family of many members, drawn in some tenths of a second.
inline std::string slowDocument() {
  GraphTable graphs;
  auto family = std::make_shared<Parameters>();
  family->Add("parametro", "P");
  family->Add("inicio", "-3");
  family->Add("fin", "3");
  family->Add("variacion", "0,01");
  graphs.rebuildGraph('a', "P*sen(60*x*P)+raiz2(abs(x-P))", "", 255, 'Z', family);
  graphs.rebuildGraph('b', "a(x)+x", "", 0, 'F', nullptr);
  return documentText({}, graphs);
}

/// All letters, with formulas that are as long as they may be.
inline std::string longDocument() {
  GraphTable graphs;
  std::string formula = "x";
  while (formula.size() < 16'000) formula += "+1/9*x";
  for (char letter = 'a'; letter <= 'z'; ++letter)
    graphs.rebuildGraph(letter, formula, "", letter * 1000, 'F', nullptr);
  return documentText({}, graphs);
}

/// Markup in every text that a document has.
inline std::string markupDocument() {
  const std::string markup = hostileTexts().front().toStdString();
  GraphTable graphs;
  for (const char kind : {'F', 'C', 'E', 'P', 'T', 'H', 'Z'}) {
    auto parameters = std::make_shared<Parameters>();
    for (const char* key : {"h", "k", "r", "a", "b", "c", "p", "parametro", "inicio", "fin",
                            "variacion", "ecuacion_xt", "ecuacion_yt"})
      parameters->Add(key, markup);
    graphs.rebuildGraph(kind == 'Z' ? 'z' : static_cast<char>(kind - 'A' + 'a'), markup, markup,
                        255, kind, parameters);
  }
  return documentText({}, graphs);
}

inline void writeHostileDocuments() {
  putBytes("sano.zel", DamagedDocuments::sound());
  putBytes("lento.zel", slowDocument());
  putBytes("largo.zel", longDocument());
  putBytes("&amp;[*].zel", markupDocument());
  writeDamagedDocument(0);
}

}  // namespace zel::test
