#pragma once

#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "base/text.h"
#include "files/document.h"
#include "support/language_guard.h"
#include "support/temporary_folder.h"

namespace zel::test {

inline constexpr std::string_view kSampleHead =
    "Archivo creado con ZEL - https://zel.example/\r\n"
    "Advertencia: Se recomienda no modificar estos valores.\r\n"
    "\r\n"
    "[PRINCIPAL]\r\n"
    "version=2.8\r\n"
    "01.versiones_compatibles=2.0\r\n"
    "02.versiones_compatibles=2.1\r\n"
    "03.versiones_compatibles=2.2\r\n"
    "04.versiones_compatibles=2.3\r\n"
    "05.versiones_compatibles=2.4\r\n"
    "06.versiones_compatibles=2.5\r\n"
    "07.versiones_compatibles=2.6\r\n"
    "08.versiones_compatibles=2.7\r\n"
    "09.versiones_compatibles=2.8\r\n"
    "sistema=Windows\r\n"
    "usuario=desconocido\r\n"
    " \r\n";

inline constexpr std::string_view kSampleView =
    "[VISTA PRINCIPAL]\r\n"
    "xi=-10\r\n"
    "xf=10\r\n"
    "yi=-10\r\n"
    "yf=10\r\n"
    "definicion=5\r\n"
    "proporcional=1\r\n"
    "escala_x=1\r\n"
    "escala_y=1\r\n"
    " \r\n";

inline constexpr std::string_view kSampleGraphs =
    "[GRAFICOS PRINCIPAL]\r\n"
    "[GRAFICO]\r\n"
    "[PROPIEDADES]\r\n"
    "nombre=a\r\n"
    "carpeta=\r\n"
    "codigo=x^2\r\n"
    "color=255\r\n"
    "ecuacion=x^2\r\n"
    "tipo=F\r\n"
    " \r\n"
    "[PARAMETROS]\r\n"
    " \r\n"
    " \r\n"
    "[GRAFICO]\r\n"
    "[PROPIEDADES]\r\n"
    "nombre=b\r\n"
    "carpeta=\r\n"
    "codigo=7@((3)^2-((0)-x)^2)+(0)\r\n"
    "color=16711680\r\n"
    "ecuacion=b(0;0;3)\r\n"
    "tipo=C\r\n"
    " \r\n"
    "[PARAMETROS]\r\n"
    "h=0\r\n"
    "k=0\r\n"
    "r=3\r\n"
    "codigo1=7@((3)^2-((0)-x)^2)+(0)\r\n"
    "codigo2=-7@((3)^2-((0)-x)^2)+(0)\r\n"
    " \r\n"
    " \r\n"
    " ";

/// A document with a function "a" and a circumference "b".
inline std::string sampleText() {
  return std::string(kSampleHead).append(kSampleView).append(kSampleGraphs);
}

inline MainView sampleView() {
  MainView view;
  view.definicion = 5;
  view.proporcional = true;
  return view;
}

/// Puts documents in a folder and loads them.
class DocumentTest : public ::testing::Test {
 protected:
  bool load(std::string_view bytes) {
    putBytes(path, bytes);
    return loadDocument(path, view, graphs, header, message);
  }

  /// Loads the sample with one text replaced by another.
  bool loadSampleWith(std::string_view from, std::string_view to) {
    const std::string sample = sampleText();
    EXPECT_NE(sample.find(from), std::string::npos) << from;
    return load(replaceAll(sample, from, to));
  }

  /// The letters of the graphs in use.
  std::string letters() const {
    std::string result;
    for (char letter = 'a'; letter <= 'z'; ++letter) {
      if (graphs.graph(letter)->defined) result += letter;
    }
    return result;
  }

  /// A load that must fail with this message (empty for an error inside a section), after the old
  /// graphs were cleared; `left` are the letters that were read before the failure.
  void expectFailure(bool loaded, std::string_view expected, std::string_view left) {
    EXPECT_FALSE(loaded);
    EXPECT_EQ(message, expected);
    EXPECT_EQ(letters(), left);
  }

  void putOldGraph() { graphs.rebuildGraph('z', "old", "", 0, 'F', nullptr); }

  TemporaryFolder folder;
  std::string path = folder / "sample.zel";
  MainView view;
  GraphTable graphs;
  DocumentHeader header;
  std::string message = "not yet";

 private:
  LanguageGuard guard_{"ES"};
};

}  // namespace zel::test
