#include "forms/numeric_keys.h"

#include <QToolTip>
#include <QWindow>

#include "forms/window_fixture.h"
#include "support/patience.h"

namespace zel::test {
namespace {

class NumericKeysOfABox : public WindowTest {
 protected:
  /// The note that is shown for a key in a box with this text; empty for a key that passes.
  static std::string noteOn(const char* before, char key, bool refuses_minus = false) {
    QLineEdit box;
    filterNumericKeys(box, refuses_minus);
    box.show();
    box.setText(QString::fromLatin1(before));
    QTest::keyClick(&box, key);
    const std::string note = QToolTip::isVisible() ? fromQt(QToolTip::text()) : std::string();
    EXPECT_EQ(note.empty(), fromQt(box.text()) != before);
    return note;
  }
};

TEST_F(NumericKeysOfABox, SayWhyAKeyIsSwallowedInBothLanguages) {
  struct Row {
    const char* text;
    char key;
    bool refuses_minus;
    const char *spanish, *english;
  };
  const Row rows[] = {
      {"1", '-', true, "Aquí no va un número negativo", "No negative number goes here"},
      {"-1", '-', false, "Ya hay un signo menos", "There is a minus sign already"},
      {"1", ' ', false, "Un número no lleva espacios", "A number has no blanks"},
      {"2", 'e', false, "El exponente se escribe con E mayúscula: 2E3",
       "The exponent is written with a capital E: 2E3"},
      {"", 'E', false, "La E va detrás de un número: 2E3", "The E comes after a number: 2E3"},
      {"2E", 'E', false, "Ya hay una E", "There is an E already"},
      {"1,5", '.', false, "Ya hay un separador decimal", "There is a decimal separator already"},
      {"1", 'x', false, "Aquí va un número, sin letras", "A number goes here, without letters"},
  };
  for (const bool english : {false, true}) {
    SetCurrentLanguage(english ? "EN" : "ES");
    for (const Row& row : rows)
      EXPECT_EQ(noteOn(row.text, row.key, row.refuses_minus), english ? row.english : row.spanish);
  }
}

TEST_F(NumericKeysOfABox, SayNothingOfAKeyThatPasses) {
  // On Windows a note outlives its box.
  ASSERT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }, kPatience));
  for (const char key : {'1', ',', '-', '+'}) EXPECT_EQ(noteOn("", key), "");
}

TEST_F(NumericKeysOfABox, LetTheMouseThroughTheirNoteToTheBoxBelow) {
  QLineEdit box;
  filterNumericKeys(box, false);
  box.show();
  for (int time = 0; time < 2; ++time) {  // a note that is there already is shown anew
    QTest::keyClick(&box, 'x');
    int notes = 0;
    for (const QWindow* window : QGuiApplication::topLevelWindows()) {
      if (!window->isVisible() || window->type() != Qt::ToolTip) continue;
      ++notes;
      EXPECT_TRUE(window->flags() & Qt::WindowTransparentForInput);
    }
    EXPECT_EQ(notes, 1);
  }
}

TEST_F(NumericKeysOfABox, TakeTheirNoteAwayAfterAWhile) {
  QLineEdit box;
  filterNumericKeys(box, false);
  box.show();
  QTest::keyClick(&box, 'x');
  EXPECT_TRUE(QToolTip::isVisible());
  EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }, kPatience));
}

}  // namespace
}  // namespace zel::test
