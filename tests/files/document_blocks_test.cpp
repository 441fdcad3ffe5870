// The block of each kind, as the editor's fields give it: the expected lines are typed by hand.

#include "document_fixture.h"
#include "graphs/graph_builders.h"

namespace zel::test {
namespace {

class DocumentBlocks : public DocumentTest {
 protected:
  /// Accepts the fields as a graph and saves the document; `block` are its lines.
  void expectBlock(char letter, std::int32_t color, const GraphFields& fields,
                   std::string_view block) {
    ASSERT_EQ(acceptGraph(graphs, engine_, letter, color, fields, message), Accepted::stored)
        << message;
    ASSERT_TRUE(writeDocument(path, sampleView(), graphs).written);
    const std::string expected = std::string(kSampleHead)
                                     .append(kSampleView)
                                     .append("[GRAFICOS PRINCIPAL]\r\n")
                                     .append(block)
                                     .append(" ");
    EXPECT_EQ(bytesOf(path), expected);
    EXPECT_TRUE(loadDocument(path, view, graphs, header, message)) << message;
    ASSERT_TRUE(writeDocument(path, view, graphs).written);
    EXPECT_EQ(bytesOf(path), expected);
  }

  static Field field(const char* text) { return {text, "X="}; }

 private:
  Engine engine_{[this](char letter) { return graphs.codeOf(letter); }};
};

TEST_F(DocumentBlocks, OfAParabolaHoldItsVertexDistanceAndCoefficient) {
  expectBlock('a', 255, ParabolaFields{field("1,0"), field("2.50"), field("2")},
              "[GRAFICO]\r\n"
              "[PROPIEDADES]\r\n"
              "nombre=a\r\n"
              "carpeta=\r\n"
              "codigo=(0,25)*x^2-2*(1)*(0,25)*x+(0,25)*(1)^2+(1,5)\r\n"
              "color=255\r\n"
              "ecuacion=a(1,0;2.50;2)\r\n"
              "tipo=P\r\n"
              " \r\n"
              "[PARAMETROS]\r\n"
              "h=1\r\n"
              "k=1,5\r\n"
              "p=2\r\n"
              "a=0,25\r\n"
              " \r\n"
              " \r\n");
}

TEST_F(DocumentBlocks, OfAnEllipseHoldItsSemiAxesAndBranches) {
  expectBlock('b', 0, EllipseFields{field("1"), field("-2"), field("5.0"), field("3")},
              "[GRAFICO]\r\n"
              "[PROPIEDADES]\r\n"
              "nombre=b\r\n"
              "carpeta=\r\n"
              "codigo=7@((1-(x-(1))^2/(5.0)^2)*(3)^2)+(-2)\r\n"
              "color=0\r\n"
              "ecuacion=b(1;-2;5.0;3)\r\n"
              "tipo=E\r\n"
              " \r\n"
              "[PARAMETROS]\r\n"
              "h=1\r\n"
              "k=-2\r\n"
              "a=5.0\r\n"
              "b=3\r\n"
              "codigo1=7@((1-(x-(1))^2/(5.0)^2)*(3)^2)+(-2)\r\n"
              "codigo2=-7@((1-(x-(1))^2/(5.0)^2)*(3)^2)+(-2)\r\n"
              " \r\n"
              " \r\n");
}

TEST_F(DocumentBlocks, OfAHyperbolaHoldItsDistancesAndBranches) {
  expectBlock('h', 16711680, HyperbolaFields{field("0,5"), field("0"), field("3"), field("5")},
              "[GRAFICO]\r\n"
              "[PROPIEDADES]\r\n"
              "nombre=h\r\n"
              "carpeta=\r\n"
              "codigo=7@(((x-(0,5))^2/(3)^2-1)*((5)^2-(3)^2))+(0)\r\n"
              "color=16711680\r\n"
              "ecuacion=h(0,5;0;3;5)\r\n"
              "tipo=H\r\n"
              " \r\n"
              "[PARAMETROS]\r\n"
              "h=0,5\r\n"
              "k=0\r\n"
              "a=3\r\n"
              "c=5\r\n"
              "codigo1=7@(((x-(0,5))^2/(3)^2-1)*((5)^2-(3)^2))+(0)\r\n"
              "codigo2=-7@(((x-(0,5))^2/(3)^2-1)*((5)^2-(3)^2))+(0)\r\n"
              " \r\n"
              " \r\n");
}

TEST_F(DocumentBlocks, OfAFamilyNameItsParameterAndRange) {
  expectBlock('y', -1, FamilyFields{field("Sen(P*x) + 1"), field("-2"), field("2"), field("0,5")},
              "[GRAFICO]\r\n"
              "[PROPIEDADES]\r\n"
              "nombre=y\r\n"
              "carpeta=\r\n"
              "codigo=10@(p*x)+1\r\n"
              "color=-1\r\n"
              "ecuacion=Sen(P*x) + 1\r\n"
              "tipo=Z\r\n"
              " \r\n"
              "[PARAMETROS]\r\n"
              "parametro=P\r\n"
              "inicio=-2\r\n"
              "fin=2\r\n"
              "variacion=0,5\r\n"
              " \r\n"
              " \r\n");
}

TEST_F(DocumentBlocks, OfAParametricCurveHaveItsCodesLast) {
  expectBlock(
      'z', 1,
      ParametricFields{field("3*Cos(t)"), field("Raiz2(t)"), field("0"), field("360"), field("1")},
      "[GRAFICO]\r\n"
      "[PROPIEDADES]\r\n"
      "nombre=z\r\n"
      "carpeta=\r\n"
      "codigo=\r\n"
      "color=1\r\n"
      "ecuacion=[X(t)=3*Cos(t);Y(t)=Raiz2(t)]\r\n"
      "tipo=T\r\n"
      " \r\n"
      "[PARAMETROS]\r\n"
      "ecuacion_xt=3*Cos(t)\r\n"
      "ecuacion_yt=Raiz2(t)\r\n"
      "inicio=0\r\n"
      "fin=360\r\n"
      "variacion=1\r\n"
      "codigo_xt=3*11@(t)\r\n"
      "codigo_yt=7@(t)\r\n"
      " \r\n"
      " \r\n");
}

}  // namespace
}  // namespace zel::test
