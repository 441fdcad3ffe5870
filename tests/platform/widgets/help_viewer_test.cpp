#include <QApplication>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>
#include <QTextBrowser>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/desktop.h"
#include "platform/widgets/help_files.h"
#include "platform/widgets/widget_help_viewer.h"
#include "support/language_guard.h"
#include "support/qt_application.h"
#include "support/temporary_folder.h"

namespace zel::test {
namespace {

using ::testing::ElementsAre;

class HelpOfWidgets : public ::testing::Test {
 protected:
  HelpOfWidgets() { application(); }

  /// The one help window; null when there is none.
  static QWidget* window() {
    for (QWidget* widget : QApplication::topLevelWidgets())
      if (widget->objectName() == "frmAyuda") return widget;
    return nullptr;
  }

  static QListWidget& topics() {
    return *window()->findChild<QListWidget*>(QStringLiteral("listaTemas"));
  }
  static QTextBrowser& text() {
    return *window()->findChild<QTextBrowser*>(QStringLiteral("txtAyuda"));
  }

  static std::vector<std::string> topicTexts() {
    std::vector<std::string> result;
    for (int i = 0; i < topics().count(); ++i)
      result.push_back(topics().item(i)->text().toStdString());
    return result;
  }

  void putHelp(const std::string& content) { putBytes(folder_ / "h.hlp", content); }

  LanguageGuard language_{"ES"};
  TemporaryFolder folder_;
  WidgetHelpViewer viewer{{folder_.path().string(), ZEL_SOURCE_DIR "/help"}};
};

TEST_F(HelpOfWidgets, ShowsTheFilesOfBothLanguages) {
  for (const char* const language : {"ES", "EN"}) {
    SetCurrentLanguage(language);
    ShowHelpTopics(viewer);
    ASSERT_NE(window(), nullptr);
    EXPECT_TRUE(window()->isVisible());
    EXPECT_GT(topics().count(), 10);
    for (const char* const function : {"raiz2", "sqrt", "lngamma", "atn"})
      EXPECT_TRUE(text().toPlainText().contains(function)) << language << " " << function;
  }
}

TEST_F(HelpOfWidgets, SpeaksTheCurrentLanguage) {
  ShowHelpTopics(viewer);
  EXPECT_EQ(window()->windowTitle(), "Ayuda de ZEL");
  EXPECT_EQ(topics().accessibleName(), "Temas");
  SetCurrentLanguage("EN");
  ShowHelpTopics(viewer);
  EXPECT_EQ(window()->windowTitle(), "ZEL Help");
  EXPECT_EQ(text().accessibleName(), "Help text");
}

TEST_F(HelpOfWidgets, ListsTheHeadingsAsTopicsAndGoesToThem) {
  std::string content = "# Help\n\n## One\n\n";
  for (int i = 0; i < 100; ++i) content += "text\n\n";
  putHelp(content + "## Two\n\nend\n");
  viewer.show("h.hlp", kHelpTopics);
  EXPECT_THAT(topicTexts(), ElementsAre("One", "Two"));
  EXPECT_EQ(text().verticalScrollBar()->value(), 0);
  topics().setCurrentRow(1);
  EXPECT_GT(text().verticalScrollBar()->value(), 0);
}

TEST_F(HelpOfWidgets, ReadsHtmlToo) {
  putHelp("<h1>Help</h1><h2>Topic</h2><p>a&lt;b</p>");
  viewer.show("h.hlp", kHelpTopics);
  EXPECT_THAT(topicTexts(), ElementsAre("Topic"));
  EXPECT_TRUE(text().toPlainText().contains("a<b"));
}

TEST_F(HelpOfWidgets, SaysThatAFileIsMissing) {
  putHelp("## Topic\n");
  viewer.show("h.hlp", kHelpTopics);
  viewer.show("nada.hlp", kHelpTopics);
  EXPECT_TRUE(window()->isVisible());
  EXPECT_EQ(text().toPlainText(), "No se puede encontrar el archivo de ayuda «nada.hlp».");
  EXPECT_EQ(topics().count(), 0);
  SetCurrentLanguage("EN");
  viewer.show("", kHelpTopics);
  EXPECT_EQ(text().toPlainText(), "The help file “” cannot be found.");
}

TEST_F(HelpOfWidgets, ClosesOnlyWhatIsOpen) {
  CloseHelp(viewer);
  EXPECT_EQ(window(), nullptr);
  ShowHelpTopics(viewer);
  CloseHelp(viewer);
  EXPECT_FALSE(window()->isVisible());
  ShowHelpTopics(viewer);
  EXPECT_TRUE(window()->isVisible());
}

TEST_F(HelpOfWidgets, ClosesOnEsc) {
  ShowHelpTopics(viewer);
  QTest::keyClick(&text(), Qt::Key_Escape);
  EXPECT_FALSE(window()->isVisible());
}

TEST_F(HelpOfWidgets, PassesOverOtherCommands) {
  viewer.show("ayuda_es.hlp", 3);
  EXPECT_EQ(window(), nullptr);
}

TEST(HelpFiles, AreLookedForInOrder) {
  const TemporaryFolder program;
  const auto folders = helpFolders(program.path().string());
  EXPECT_THAT(folders,
              ElementsAre(program.path().string(), program.path().string() + "/../share/zel/help",
                          std::string(ZEL_SOURCE_DIR) + "/help"));
  EXPECT_EQ(readHelpFile(folders, "ayuda_es.hlp"), bytesOf(folders.back() + "/ayuda_es.hlp"));
  putBytes(program / "ayuda_es.hlp", "beside the program");
  EXPECT_EQ(readHelpFile(folders, "ayuda_es.hlp"), "beside the program");
  EXPECT_EQ(readHelpFile(folders, ""), std::nullopt);
  EXPECT_EQ(readHelpFile(folders, "nada.hlp"), std::nullopt);
}

}  // namespace
}  // namespace zel::test
