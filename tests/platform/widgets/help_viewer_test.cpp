#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/desktop.h"
#include "platform/widgets/help_files.h"
#include "platform/widgets/help_page.h"
#include "platform/widgets/widget_help_viewer.h"
#include "support/language_guard.h"
#include "support/patience.h"
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

  template <class Control>
  static Control& part(const char* name) {
    return *window()->findChild<Control*>(QString::fromLatin1(name));
  }
  /// Of each piece of the text.
  static std::vector<QTextCharFormat> formats() {
    std::vector<QTextCharFormat> result;
    for (QTextBlock block = text().document()->begin(); block.isValid(); block = block.next())
      for (auto it = block.begin(); !it.atEnd(); ++it) result.push_back(it.fragment().charFormat());
    return result;
  }
  static QImage pictureOf(const QString& name) {
    return text().document()->resource(QTextDocument::ImageResource, QUrl(name)).value<QImage>();
  }
  static int scrolled() { return text().verticalScrollBar()->value(); }
  static std::string marked() { return text().textCursor().selectedText().toStdString(); }
  static std::string remark() { return part<QLabel>("LblBuscar").text().toStdString(); }

  /// Headings "One" to "Three" far from one another, the first one with a link to the last.
  void showLongHelp() {
    std::string filler;
    for (int i = 0; i < 100; ++i) filler += "text\n\n";
    putHelp("# Help\n\n## One\n\n[to three](#three)\n\n" + filler + "## Two\n\nParábola\n\n" +
            filler + "## Three\n\nparabola\n\n" + filler);
    viewer.show("h.hlp", kHelpTopics);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window(), kPatience));
  }
  /// Types into the search.
  static void search(const char* words) {
    part<QLineEdit>("txtBuscar").clear();
    QTest::keyClicks(&part<QLineEdit>("txtBuscar"), words);
  }
  static void click(const char* button) {
    QTest::mouseClick(&part<QPushButton>(button), Qt::LeftButton);
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

TEST_F(HelpOfWidgets, ListsTheHeadingsAsItsContents) {
  putHelp("# Help\n\n## One\n\n### Inner\n\n#### Deep\n\n## Two\n");
  viewer.show("h.hlp", kHelpTopics);
  EXPECT_THAT(topicTexts(), ElementsAre("Help", "One", "  Inner", "Two"));
}

TEST_F(HelpOfWidgets, OpensAtItsTopAlsoWhenItIsOpenedAgain) {
  showLongHelp();
  EXPECT_EQ(scrolled(), 0);
  topics().setFocus();
  QApplication::processEvents();
  EXPECT_EQ(scrolled(), 0);
  topics().setCurrentRow(2);
  EXPECT_GT(scrolled(), 0);
  viewer.show("h.hlp", kHelpTopics);
  QApplication::processEvents();
  EXPECT_EQ(scrolled(), 0);
  EXPECT_FALSE(part<QPushButton>("CmdAtras").isEnabled());
}

TEST_F(HelpOfWidgets, GoesToATopicAndBack) {
  showLongHelp();
  topics().setCurrentRow(2);
  const int two = scrolled();
  EXPECT_GT(two, 0);
  topics().setCurrentRow(3);
  EXPECT_GT(scrolled(), two);
  click("CmdAtras");
  EXPECT_EQ(scrolled(), two);
  QTest::keyClick(window(), Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(scrolled(), 0);
  EXPECT_FALSE(part<QPushButton>("CmdAtras").isEnabled());
}

TEST_F(HelpOfWidgets, FollowsLinksToItsHeadings) {
  showLongHelp();
  topics().setCurrentRow(3);
  const int three = scrolled();
  click("CmdAtras");
  emit text().anchorClicked(QUrl("#three"));
  EXPECT_EQ(scrolled(), three);
  emit text().anchorClicked(QUrl("#nowhere"));
  EXPECT_EQ(scrolled(), three);
}

TEST_F(HelpOfWidgets, FollowsLinksByTheKeyboard) {
  showLongHelp();
  ASSERT_EQ(window()->focusWidget(), &text());
  QTest::keyClick(&text(), Qt::Key_Tab);
  QTest::keyClick(&text(), Qt::Key_Return);
  EXPECT_GT(scrolled(), 0);
  EXPECT_TRUE(part<QPushButton>("CmdAtras").isEnabled());
}

TEST_F(HelpOfWidgets, HasLinksThatLeadToItsHeadings) {
  for (const char* const language : {"ES", "EN"}) {
    SetCurrentLanguage(language);
    ShowHelpTopics(viewer);
    std::set<QString> names;
    for (const auto& heading : part<HelpPage>("txtAyuda").headings())
      EXPECT_TRUE(names.insert(headingName(heading.text)).second) << heading.text.toStdString();
    int links = 0;
    for (const QTextCharFormat& format : formats()) {
      if (!format.isAnchor()) continue;
      ++links;
      const QString name = QUrl(format.anchorHref()).fragment(QUrl::FullyDecoded);
      EXPECT_EQ(names.count(name), 1U) << language << " " << name.toStdString();
    }
    EXPECT_GT(links, 10);
  }
}

TEST_F(HelpOfWidgets, ShowsItsPictures) {
  for (const char* const language : {"ES", "EN"}) {
    SetCurrentLanguage(language);
    ShowHelpTopics(viewer);
    int pictures = 0;
    for (const QTextCharFormat& format : formats()) {
      if (!format.isImageFormat()) continue;
      ++pictures;
      const QString name = format.toImageFormat().name();
      EXPECT_FALSE(pictureOf(name).isNull()) << name.toStdString();
    }
    EXPECT_GT(pictures, 20);
  }
}

TEST_F(HelpOfWidgets, MakesWidePicturesAsWideAsTheView) {
  QImage(3000, 30, QImage::Format_RGB32).save(QString::fromStdString(folder_ / "wide.png"));
  QImage(30, 30, QImage::Format_RGB32).save(QString::fromStdString(folder_ / "small.png"));
  putHelp("# Help\n\n![wide](wide.png)\n\n![small](small.png)\n");
  viewer.show("h.hlp", kHelpTopics);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(window(), kPatience));
  const int width = pictureOf("wide.png").width();
  EXPECT_GT(width, 100);
  EXPECT_EQ(text().horizontalScrollBar()->maximum(), 0);
  EXPECT_EQ(pictureOf("small.png").width(), 30);
  window()->resize(window()->width() + 100, window()->height());
  QApplication::processEvents();
  EXPECT_GT(pictureOf("wide.png").width(), width);
  EXPECT_EQ(text().horizontalScrollBar()->maximum(), 0);
}

TEST_F(HelpOfWidgets, FindsWordsWhileTheyAreTyped) {
  showLongHelp();
  search("PARÁ");
  EXPECT_EQ(marked(), "Pará");
  EXPECT_GT(scrolled(), 0);
  QTest::keyClicks(&part<QLineEdit>("txtBuscar"), "bola");
  EXPECT_EQ(marked(), "Parábola");
  EXPECT_EQ(remark(), "");
}

TEST_F(HelpOfWidgets, GoesFromPlaceToPlaceAndRound) {
  showLongHelp();
  search("parabola");
  EXPECT_EQ(marked(), "Parábola");
  click("CmdBuscarSiguiente");
  EXPECT_EQ(marked(), "parabola");
  QTest::keyClick(&part<QLineEdit>("txtBuscar"), Qt::Key_Return);
  EXPECT_EQ(marked(), "Parábola");
  click("CmdBuscarAnterior");
  EXPECT_EQ(marked(), "parabola");
  QTest::keyClick(window(), Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(marked(), "Parábola");
  QTest::keyClick(window(), Qt::Key_F3);
  EXPECT_EQ(marked(), "parabola");
}

TEST_F(HelpOfWidgets, SaysThatWordsAreNotThere) {
  showLongHelp();
  search("nada");
  EXPECT_EQ(remark(), "No se encuentra.");
  EXPECT_EQ(marked(), "");
  part<QLineEdit>("txtBuscar").selectAll();
  QTest::keyClick(&part<QLineEdit>("txtBuscar"), Qt::Key_Delete);
  EXPECT_EQ(remark(), "");
  SetCurrentLanguage("EN");
  viewer.show("h.hlp", kHelpTopics);
  search("zzz");
  EXPECT_EQ(remark(), "Not found.");
}

TEST_F(HelpOfWidgets, PutsTheFocusOnTheSearchByItsKey) {
  showLongHelp();
  QTest::keyClick(&text(), Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(window()->focusWidget(), &part<QLineEdit>("txtBuscar"));
}

TEST(HelpPage, CallsHeadingsByTheirWords) {
  EXPECT_EQ(headingName("What a picture (of x) is: 2_a-b?"), "what-a-picture-of-x-is-2_a-b");
  EXPECT_EQ(headingName("Máximos y mínimos"), "máximos-y-mínimos");
}

TEST_F(HelpOfWidgets, ReadsHtmlToo) {
  putHelp("<h1>Help</h1><h2>Topic</h2><p>a&lt;b</p>");
  viewer.show("h.hlp", kHelpTopics);
  EXPECT_THAT(topicTexts(), ElementsAre("Help", "Topic"));
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
  const auto textOf = [&folders] { return readHelpFile(folders, "ayuda_es.hlp")->text; };
#ifdef _WIN32
  EXPECT_THAT(folders, ElementsAre(program.path().string()));
#else
  EXPECT_THAT(folders,
              ElementsAre(program.path().string(), program.path().string() + "/../share/zel/help",
                          std::string(ZEL_SOURCE_DIR) + "/help"));
  EXPECT_EQ(textOf(), bytesOf(folders.back() + "/ayuda_es.hlp"));
  EXPECT_EQ(readHelpFile(folders, "ayuda_es.hlp")->folder, folders.back());
#endif
  putBytes(program / "ayuda_es.hlp", "beside the program");
  EXPECT_EQ(textOf(), "beside the program");
  EXPECT_FALSE(readHelpFile(folders, ""));
  EXPECT_FALSE(readHelpFile(folders, "nada.hlp"));
}

}  // namespace
}  // namespace zel::test
