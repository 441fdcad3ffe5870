#include "base/language.h"

#include <gtest/gtest.h>

#include "support/language_guard.h"

namespace zel::test {
namespace {

TEST(Language, IsSpanishAtTheStart) { EXPECT_EQ(CurrentLanguage(), "ES"); }

TEST(Language, TranslatesMessagesInEnglishOnly) {
  const LanguageGuard english("EN");
  EXPECT_EQ(Localize("Causa: "), "Reason: ");
  SetCurrentLanguage("ES");
  EXPECT_EQ(Localize("Causa: "), "Causa: ");
}

TEST(Language, ShowsSpanishUnderAnyOtherCode) {
  const LanguageGuard guard("EN");
  for (const char* const code : {"", "en", "es", "FR", "ENG"}) {
    SetCurrentLanguage(code);
    EXPECT_EQ(Localize("Error de sintaxis."), "Error de sintaxis.") << code;
  }
}

TEST(Language, LeavesATextThatIsNotInTheTable) {
  const LanguageGuard english("EN");
  EXPECT_EQ(Localize("Error de sintaxis"), "Error de sintaxis");
  EXPECT_EQ(Localize(""), "");
  EXPECT_EQ(Localize("Un error en la configuración impidió que el programa se inicie "
                     "correctamente."),
            "Un error en la configuración impidió que el programa se inicie correctamente.");
}

TEST(Language, ComparesTheCaseOfMessages) {
  const LanguageGuard english("EN");
  EXPECT_EQ(Localize("GRAFICANDO"), "GRAPHING");
  EXPECT_EQ(Localize("Graficando"), "Graficando");
}

TEST(Language, TakesTheFirstOfTwoRowsWithTheSameText) {
  EXPECT_EQ(SpanishToEnglish("No se puede encontrar el programa asociado."),
            "Cannot find related program.");
}

TEST(Language, TranslatesByTheTableWhateverTheCurrentLanguage) {
  const LanguageGuard spanish("ES");
  EXPECT_EQ(SpanishToEnglish("RECORRIDO"), "PATH");
  EXPECT_EQ(SpanishToEnglish("PATH"), "PATH");
}

TEST(Language, PutsTheArgumentInTheTranslatedText) {
  const LanguageGuard guard("ES");
  EXPECT_EQ(LocalizeWithArg("El campo %1 no puede estar vacío.", "X"),
            "El campo X no puede estar vacío.");
  SetCurrentLanguage("EN");
  EXPECT_EQ(LocalizeWithArg("El campo %1 no puede estar vacío.", "X"),
            "Text field X can't be empty.");
}

TEST(Language, ReplacesEveryPlaceholderAndNoneOfTheArgument) {
  const LanguageGuard spanish("ES");
  EXPECT_EQ(LocalizeWithArg("%1, %1 y %2", "<%1>"), "<%1>, <%1> y %2");
  EXPECT_EQ(LocalizeWithArg("sin argumento", "X"), "sin argumento");
}

}  // namespace
}  // namespace zel::test
