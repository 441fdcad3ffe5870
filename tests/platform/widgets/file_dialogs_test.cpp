#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QScreen>
#include <QTest>
#include <QTreeView>
#include <algorithm>
#include <filesystem>
#include <functional>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/widgets/file_icons.h"
#include "platform/widgets/modal_driver.h"
#include "platform/widgets/widget_file_dialogs.h"
#include "support/environment_guard.h"
#include "support/fake_services.h"
#include "support/language_guard.h"
#include "support/patience.h"
#include "support/qt_application.h"
#include "support/temporary_folder.h"

namespace zel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using DialogStep = std::function<void(QFileDialog&)>;

constexpr const char* kDocuments = "Declaraciones ZEL (*.zel)|*.zel";

/// Types a name and accepts.
DialogStep type(const std::string& name) {
  return [name](QFileDialog& dialog) {
    auto* const field = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    ASSERT_NE(field, nullptr);
    field->setText(QString::fromStdString(name));
    emit field->textEdited(field->text());  // the list is to select no other file
    QTest::keyClick(field, Qt::Key_Return);
  };
}

const DialogStep kCancel = [](QFileDialog& dialog) { dialog.reject(); };

class FileDialogsOfWidgets : public ::testing::Test {
 protected:
  FileDialogsOfWidgets() {
    application();
    std::filesystem::create_directory(folder_ / "inner");
    putBytes(folder_ / "old.zel", "x");
  }

  std::optional<std::string> open(const std::vector<DialogStep>& steps) {
    const ModalDriver<QFileDialog> driver(steps);
    return files.askOpen(kDocuments, proposal);
  }
  std::optional<std::string> save(const std::vector<DialogStep>& steps) {
    const ModalDriver<QFileDialog> driver(steps);
    return files.askSave(kDocuments, proposal);
  }

  LanguageGuard language_{"ES"};
  TemporaryFolder folder_;
  CurrentFolderGuard current_{folder_.path()};
  FakeMessageBoxes boxes;
  WidgetFileDialogs files{boxes};
  std::string proposal = folder_ / "";  // the folder alone
};

TEST_F(FileDialogsOfWidgets, OpenAnExistingFile) {
  EXPECT_EQ(open({[](QFileDialog& dialog) {
              EXPECT_EQ(dialog.windowTitle(), "Abrir");
              EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
              EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
              EXPECT_EQ(dialog.nameFilters(), QStringList("Declaraciones ZEL (*.zel)"));
              type("old.zel")(dialog);
            }}),
            folder_ / "old.zel");
}

TEST_F(FileDialogsOfWidgets, BeginInTheFolderOfTheDocumentWithItsName) {
  proposal = folder_ / "inner/mine.zel";
  const DialogStep look = [&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory().absolutePath().toStdString(), folder_ / "inner");
    EXPECT_EQ(dialog.selectedFiles(), QStringList(QString::fromStdString(proposal)));
    dialog.reject();
  };
  save({look});
  putBytes(proposal, "x");
  open({look});
}

TEST_F(FileDialogsOfWidgets, BeginInTheUsersDocumentsWithoutADocumentOrItsFolder) {
#ifdef _WIN32
  GTEST_SKIP() << "the system knows its documents folder by other means";
#endif
  const EnvironmentGuard config("XDG_CONFIG_HOME", utf8Of(folder_.path()).c_str());
  putBytes(folder_ / "user-dirs.dirs", "XDG_DOCUMENTS_DIR=\"" + folder_ / "inner" + "\"\n");
  const DialogStep look = [&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory().absolutePath().toStdString(), folder_ / "inner");
    dialog.reject();
  };
  for (const std::string& without : {std::string(), folder_ / "gone/mine.zel"}) {
    proposal = without;
    save({look});
    open({look});
  }
}

/// No column of the list and no place beside it is cut off, unless the screen is small.
void expectRoom(const QFileDialog& dialog) {
  auto* const tree = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
  const QAbstractItemView* const list = tree;
  const auto* const places = dialog.findChild<QListView*>(QStringLiteral("sidebar"));
  ASSERT_TRUE(list != nullptr && places != nullptr);
  const QHeaderView& header = *tree->header();
  const auto is_narrow = [&](int column) {
    return header.sectionSize(column) <
           std::max(list->sizeHintForColumn(column), header.sectionSizeHint(column));
  };
  const auto has_room = [&] {
    return list->model()->rowCount(list->rootIndex()) > 0 && !is_narrow(0) && !is_narrow(1) &&
           !is_narrow(2) && !is_narrow(3);
  };
  EXPECT_TRUE(QTest::qWaitFor(has_room, kPatience));
  EXPECT_TRUE(header.length() <= list->viewport()->width() ||
              dialog.width() >= dialog.screen()->availableSize().width() * 9 / 10);
  EXPECT_LE(places->sizeHintForColumn(0), places->viewport()->width());
}

TEST_F(FileDialogsOfWidgets, OpenWideEnoughForTheirColumnsAndPlaces) {
  putBytes(folder_ / "a text whose name is long.zel", "x");
  const DialogStep look = [](QFileDialog& dialog) {
    expectRoom(dialog);
    dialog.reject();
  };
  for (const char* const language : {"ES", "EN"}) {
    SetCurrentLanguage(language);
    open({look});
    save({look});
  }
}

TEST_F(FileDialogsOfWidgets, FitTheirColumnsWhateverWidthsAreRemembered) {
  open({[](QFileDialog& dialog) {
    for (int column = 0; column < 4; ++column)
      dialog.findChild<QTreeView*>(QStringLiteral("treeView"))
          ->header()
          ->resizeSection(column, 900);
    dialog.reject();
  }});
  open({[](QFileDialog& dialog) {
    const auto* const list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
          return list->header()->length() <= list->viewport()->width() &&
                 list->header()->sectionSize(0) > list->header()->sectionSize(1);
        },
        kPatience));
    dialog.reject();
  }});
}

TEST_F(FileDialogsOfWidgets, GiveNothingWhenCancelled) {
  EXPECT_EQ(open({kCancel}), std::nullopt);
  EXPECT_EQ(save({kCancel}), std::nullopt);
}

TEST_F(FileDialogsOfWidgets, SpeakTheCurrentLanguage) {
  SetCurrentLanguage("EN");
  open({[](QFileDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Open");
    dialog.reject();
  }});
  save({[](QFileDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Save As");
    dialog.reject();
  }});
}

TEST_F(FileDialogsOfWidgets, AppendTheEndingToANewFile) {
  EXPECT_EQ(save({type("new")}), folder_ / "new.zel");
  EXPECT_EQ(save({type("new.zel")}), folder_ / "new.zel");
  EXPECT_EQ(save({type("new.txt")}), folder_ / "new.txt");
  EXPECT_THAT(boxes.shown, IsEmpty());
}

TEST_F(FileDialogsOfWidgets, AskBeforeAFileIsReplaced) {
  boxes.answers = {BoxAnswer::ok};
  EXPECT_EQ(save({type("old.zel")}), folder_ / "old.zel");
  EXPECT_THAT(boxes.shown, ElementsAre(FakeMessageBoxes::Box{
                               "El archivo «old.zel» ya existe.\r\n¿Desea reemplazarlo?", "ZEL",
                               BoxStyle::ok_cancel}));
}

TEST_F(FileDialogsOfWidgets, AskForTheNameThatTheEndingMakes) {
  boxes.answers = {BoxAnswer::ok};
  EXPECT_EQ(save({type("old")}), folder_ / "old.zel");
  EXPECT_EQ(boxes.shown.size(), 1U);
}

TEST_F(FileDialogsOfWidgets, ComeAgainWhenAFileIsNotToBeReplaced) {
  boxes.answers = {BoxAnswer::cancel};
  EXPECT_EQ(save({type("old"),
                  [&](QFileDialog& dialog) {
                    EXPECT_EQ(dialog.selectedFiles(),
                              QStringList(QString::fromStdString(folder_ / "old.zel")));
                    dialog.reject();
                  }}),
            std::nullopt);
  EXPECT_EQ(boxes.shown.size(), 1U);
}

TEST_F(FileDialogsOfWidgets, WantAnExistingFolder) {
  SetCurrentLanguage("EN");
  EXPECT_EQ(save({type("nowhere/new"), kCancel}), std::nullopt);
  const auto nowhere = pathOf(folder_ / "nowhere").make_preferred();  // as the system writes it
  EXPECT_THAT(boxes.shown, ElementsAre(FakeMessageBoxes::Box{
                               "The folder “" + utf8Of(nowhere) + "” does not exist.",
                               "ZEL - NOTIFY", BoxStyle::stop}));
}

TEST_F(FileDialogsOfWidgets, KeepANameThatWasTypedWithAFolderThatIsMissing) {
  save({type("nowhere/new"), [](QFileDialog& dialog) {
          ASSERT_EQ(dialog.selectedFiles().size(), 1);
          EXPECT_EQ(QFileInfo(dialog.selectedFiles().constFirst()).fileName(), "new.zel");
          dialog.reject();
        }});
}

TEST_F(FileDialogsOfWidgets, LookIntoNoFileForItsIcon) {
  open({[](QFileDialog& dialog) {
    EXPECT_NE(dynamic_cast<const FileIcons*>(dialog.iconProvider()), nullptr);
    dialog.reject();
  }});
}

TEST_F(FileDialogsOfWidgets, ProposeNoNameThatWouldComeBackAsAnother) {
  proposal = folder_ / "n\xFF.zel";
  save({[&](QFileDialog& dialog) {
    EXPECT_FALSE(dialog.selectedFiles().join(u' ').contains(QStringLiteral(".zel")));
    dialog.reject();
  }});
}

}  // namespace
}  // namespace zel::test
