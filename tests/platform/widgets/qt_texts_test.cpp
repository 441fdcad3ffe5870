#include "platform/widgets/qt_texts.h"

#include <QCoreApplication>
#include <QFile>
#include <QKeySequence>
#include <QLibraryInfo>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

#include "support/language_guard.h"
#include "support/qt_application.h"

namespace zel::test {
namespace {

QString translated() { return QCoreApplication::translate("QFileDialog", "Directory:"); }

TEST(QtTexts, AreOneOfTwoByTheCurrentLanguage) {
  const LanguageGuard language("ES");
  EXPECT_EQ(inLanguage("uno", "one"), "uno");
  SetCurrentLanguage("EN");
  EXPECT_EQ(inLanguage("uno", "one"), "one");
  SetCurrentLanguage("??");
  EXPECT_EQ(inLanguage("uno", "one"), "uno");
}

TEST(QtTexts, FollowTheLanguageAtTheNextKeyOrButton) {
  application();
  const LanguageGuard language("ES");
  if (!QFile::exists(QLibraryInfo::path(QLibraryInfo::TranslationsPath) + "/qtbase_es.qm"))
    GTEST_SKIP() << "qt6-translations-l10n is not installed";
  {
    const QtTexts texts;
    QWidget window;
    EXPECT_EQ(translated(), "Directory:");
    QTest::mouseClick(&window, Qt::LeftButton);
    EXPECT_EQ(translated(), "Directorio:");
    SetCurrentLanguage("EN");
    EXPECT_EQ(translated(), "Directorio:");
    QTest::keyClick(&window, Qt::Key_A);
    EXPECT_EQ(translated(), "Directory:");
    SetCurrentLanguage("??");
    QTest::mouseClick(&window, Qt::RightButton);
    EXPECT_EQ(translated(), "Directorio:");
  }
  EXPECT_EQ(translated(), "Directory:");
}

TEST(QtTexts, NameKeysAsTheHelpDoes) {
  application();
  const LanguageGuard language("ES");
  const QtTexts texts;
  QWidget window;
  QTest::mouseClick(&window, Qt::LeftButton);
  const auto named = [](QKeyCombination keys) {
    return QKeySequence(keys).toString(QKeySequence::NativeText);
  };
  const QKeyCombination save_as = Qt::CTRL | Qt::SHIFT | Qt::Key_S;
  EXPECT_EQ(named(save_as), "Ctrl+Mayús+S");
  EXPECT_EQ(named(Qt::Key_Delete), "Supr");
  EXPECT_EQ(named(Qt::Key_Insert), "Insertar");
  SetCurrentLanguage("EN");
  QTest::mouseClick(&window, Qt::LeftButton);
  EXPECT_EQ(named(save_as), "Ctrl+Shift+S");
  EXPECT_EQ(named(Qt::Key_Delete), "Del");
}

}  // namespace
}  // namespace zel::test
