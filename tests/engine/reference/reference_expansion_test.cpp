#include "engine/reference/reference_expansion.h"

#include <cmath>

#include "engine/engine_fixture.h"

namespace zel::test {
namespace {

class References : public EngineTest {
 protected:
  std::string expand(std::string_view code) {
    const auto expanded = ExpandReferences(
        code, [this](char letter) -> std::string_view { return graphCode(letter); },
        Engine::kMaxExpandedCode);
    return expanded.value_or("outgrown");
  }
};

TEST_F(References, PutTheCodeInThePlaceOfTheCallWithoutParentheses) {
  graphCode('f') = "x+1";
  EXPECT_EQ(expand("2*f(3)"), "2*(3)+1");
  EXPECT_EQ(evaluate("2*f(3)"), "= 7");
}

TEST_F(References, PutTheArgumentWithItsParenthesesInThePlaceOfEachX) {
  graphCode('g') = "x^2-x";
  EXPECT_EQ(expand("g(x+1)"), "(x+1)^2-(x+1)");
  EXPECT_EQ(expand("g((x+1)*2)"), "((x+1)*2)^2-((x+1)*2)");
}

TEST_F(References, ReplaceEachCallWithTheFirstArgumentAndNoOther) {
  graphCode('f') = "x+1";
  EXPECT_EQ(expand("f(1)+f(2)+f(1)"), "(1)+1+f(2)+(1)+1");
  EXPECT_EQ(evaluate("f(1)+f(2)+f(1)"), kNoOperator);
}

TEST_F(References, GoThroughTheLettersOnceInOrder) {
  graphCode('a') = "b(x)*2";
  graphCode('b') = "x+1";
  EXPECT_EQ(expand("a(3)"), "((3))+1*2");
  graphCode('b') = "a(x)";
  EXPECT_EQ(expand("b(3)"), "a((3))");
  EXPECT_EQ(evaluate("b(3)"), kNoOperator);
}

TEST_F(References, ExcludeNoLetterThatIsAlsoAName) {
  graphCode('e') = "x*10";
  graphCode('x') = "5";
  EXPECT_EQ(expand("e(2)"), "(2)*10");
  EXPECT_EQ(expand("x(2)"), "5");
}

TEST_F(References, TakeTheCodeOfASlotThatHoldsNothing) {
  EXPECT_EQ(expand("2*h(x)"), "2*");
  EXPECT_EQ(evaluate("2*h(x)"), "! Error: No se entiende el elemento: '2*'");
}

TEST_F(References, LeaveACallThatIsNeverClosed) {
  graphCode('f') = "x+1";
  EXPECT_EQ(expand("f(3"), "f(3");
  EXPECT_EQ(evaluate("f(3"), kNoOperator);
}

TEST_F(References, OfAGraphToItselfEndAfterOneStep) {
  graphCode('f') = "f(x)+1";
  EXPECT_EQ(expand("f(2)"), "f((2))+1");
}

TEST_F(References, AreKeptWhileTheGraphsChangeUntilAnotherCodeComes) {
  graphCode('f') = "x+1";
  EXPECT_EQ(evaluate("f(1)"), "= 2");
  graphCode('f') = "x+2";
  EXPECT_EQ(evaluate("f(1)"), "= 2");
  EXPECT_EQ(evaluate("1+f(1)"), "= 4");
  EXPECT_EQ(evaluate("f(1)"), "= 3");
}

TEST_F(References, ThatDoubleAtEachLetterOutgrowTheirLimit) {
  for (char letter = 'a'; letter < 'z'; ++letter) {
    const std::string next = std::string(1, static_cast<char>(letter + 1)) + "(x)";
    graphCode(letter) = next + "+" + next;
  }
  graphCode('z') = "x";
  EXPECT_EQ(expand("a(x)"), "outgrown");
  EXPECT_EQ(evaluate("a(x)"), kFault);
  EXPECT_EQ(evaluate("a(x)"), kFault);
  EXPECT_EQ(evaluate("z(x)+1"), "= 2");
}

class Bounds : public EngineTest {};

TEST_F(Bounds, OfACodeAreKeptToTheByte) {
  std::string code(Engine::kMaxExpandedCode - 2, '0');
  EXPECT_EQ(evaluateCode("x+" + code, 1), "= 1");
  EXPECT_EQ(evaluateCode("x+0" + code, 1), kFault);
}

TEST_F(Bounds, CountAsAnotherCodeForTheParseCache) {
  EXPECT_EQ(evaluateCode("x+1", 1), "= 2");
  EXPECT_EQ(evaluateCode(std::string(Engine::kMaxExpandedCode + 1, 'x'), 1), kFault);
  EXPECT_EQ(engine.parseCache().code(), "");
  EXPECT_EQ(evaluateCode("x+1", 2), "= 3");
}

TEST_F(Bounds, LetDeepCodesThroughWithoutRecursion) {
  constexpr std::size_t kDepth = 3000;
  std::string nested;
  for (std::size_t i = 0; i < kDepth; ++i) nested += "2@(";
  nested += "x" + std::string(kDepth, ')');
  EXPECT_EQ(evaluateCode(nested, -2), "= 2");
  EXPECT_EQ(evaluateCode(nested, -3), "= 3");
  const std::string parentheses = std::string(8000, '(') + "x" + std::string(8000, ')');
  EXPECT_EQ(evaluateCode(parentheses, 4), "= 4");
  std::string signs;
  for (std::size_t i = 0; i < kDepth; ++i) signs += "-(";
  EXPECT_EQ(evaluateCode(signs + "x" + std::string(kDepth, ')'), 4), "= 4");
}

TEST_F(Bounds, LetLongSumsThrough) {
  std::string sum = "x";
  for (int i = 0; i < 5000; ++i) sum += "+x";
  EXPECT_EQ(evaluateCode(sum, 2), "= 10002");
}

}  // namespace
}  // namespace zel::test
