// Every allocation of what the main window does fails once: it is done or told, and the document is
// the one before or the one after, in the window as in the program, and on the disk.
#include <QFileInfo>
#include <QMenu>

#include "files/document.h"
#include "memory/failing_new.h"
#include "windows_fixture.h"

namespace zel::test {
namespace {

class MainWindowInWantOfMemory : public WindowsInWantOfMemory {
 protected:
  MainWindowInWantOfMemory() {
    GraphTable graphs;
    graphs.rebuildGraph('b', "cos(x)+" + std::string(40, '3'), "", 255, 'F', nullptr);
    graphs.rebuildGraph('d', "x+P+" + std::string(40, '4'), "", 0, 'Z', NewDictionary());
    MainView view;
    view.xi = "-7,000000000000000";
    view.escala_x = "2";
    view.definicion = 50;
    newer_ = documentText(view, graphs);
    path_ = "the name of a document that needs memory.zel";
  }

  Deed command(const char* name) {
    return {[this] { putDocument(); }, [this, name] { choose(mainWindow(), name); },
            [this] { return document(); }};
  }

  /// One whose dialog is answered with the path. A refused one may have taken the answer.
  Deed answered(const char* name) {
    Deed deed = command(name);
    deed.prepare = [this] {
      putDocument();
      services.files.paths = {path_};
    };
    deed.act = [this, act = deed.act] {
      if (services.files.paths.empty()) services.files.paths = {path_};
      act();
    };
    return deed;
  }

  /// What a document leaves that cannot be opened: its name, for one thing, is the document's then.
  void refuse(Deed& open) {
    putBytes(path_, "no document");
    open.prepare();
    open.act();
    settle();
    open.refused = document();
    EXPECT_EQ(services.boxes.shown.size(), 1u);
    putBytes(path_, newer_);
  }

  std::string newer_;
  std::string path_;
};

TEST_F(MainWindowInWantOfMemory, OpensADocumentWholeOrNotAtAll) {
  Deed open = answered("mAbrir");
  refuse(open);
  EXPECT_GT(expectDoneOrTold(open), 30);
  EXPECT_EQ(bytesOf(path_), newer_);
}

TEST_F(MainWindowInWantOfMemory, OpensARecentDocumentWholeOrNotAtAll) {
  services.recent.listed = {path_};
  auto& menu = control<QMenu>(mainWindow(), "mArchivo");
  Deed open = command("mAbrir");
  open.prepare = [&] {
    putDocument();
    menu.popup({});
    settle();
    menu.hide();
  };
  open.act = [this] {
    const auto actions = control<QMenu>(mainWindow(), "mRecientes").actions();
    QMetaObject::invokeMethod(actions.front(), "trigger", Qt::QueuedConnection);
  };
  refuse(open);
  EXPECT_GT(expectDoneOrTold(open), 30);
}

TEST_F(MainWindowInWantOfMemory, BeginsANewDocument) {
  EXPECT_GT(expectDoneOrTold(command("mNuevo")), 0);
}

TEST_F(MainWindowInWantOfMemory, SavesTheDocumentWholeOrNotAtAll) {
  Deed save = command("mGuardar");
  save.prepare = [this] {
    putDocument();
    program.document_path = absolutePath(path_);
    program.document_name = fromQt(QFileInfo(toQt(path_)).fileName());
    dynamic_cast<FormWindow&>(mainWindow()).showForm();
    putBytes(path_, newer_);
  };
  save.held = [this] { return bytesOf(path_); };
  EXPECT_GT(expectDoneOrTold(save), 30);
}

TEST_F(MainWindowInWantOfMemory, SavesTheDocumentUnderAnotherNameWholeOrNotAtAll) {
  Deed save = answered("mGuardarComo");
  save.prepare = [this, prepare = save.prepare] {
    prepare();
    putBytes(path_, newer_);
  };
  save.held = [this] { return bytesOf(path_); };
  EXPECT_GT(expectDoneOrTold(save), 30);
}

TEST_F(MainWindowInWantOfMemory, DeletesGraphs) {
  EXPECT_GT(expectDoneOrTold(command("mBorrar")), 5);
}

TEST_F(MainWindowInWantOfMemory, KeepsTheWayForwardUnlessGraphsAreDeleted) {
  Deed remove = command("mBorrar");
  remove.prepare = [this] {
    putDocument();
    choose(mainWindow(), "mDuplicar");
    settle();
    choose(mainWindow(), "mDeshacer");
    settle();
    ASSERT_NE(program.history.redoable(), nullptr);
    list().selectLetters("a");
  };
  EXPECT_GT(expectDoneOrTold(remove), 5);
}

/// Nobody is told of a session that is not kept: it is the next time.
TEST_F(MainWindowInWantOfMemory, KeepsTheSessionBeforeOrTheOneAfterWhole) {
  program.last_session = LastSession("state");
  const auto kept = [] { return bytesOf("state/session.zel"); };
  const auto remove = [this] {
    choose(mainWindow(), "mBorrar");
    settle();
  };
  putDocument();
  const std::string older = kept();
  remove();
  const std::string newer = kept();
  ASSERT_NE(older, newer);
  putDocument();
  const long failures = failEachAllocation(false, remove, [&] {
    EXPECT_TRUE(kept() == older || kept() == newer) << kept();
    dynamic_cast<FormWindow&>(mainWindow()).showForm();
    EXPECT_EQ(kept(), program.graphs.slot('a')->defined ? older : newer);
    putDocument();
    EXPECT_EQ(kept(), older);
  });
  EXPECT_GT(failures, 30);
  std::cout << failures << " failures\n";
}

TEST_F(MainWindowInWantOfMemory, DuplicatesGraphs) {
  Deed duplicate = command("mDuplicar");
  duplicate.prepare = [this] {
    putDocument();
    list().selectLetters("ac");
  };
  EXPECT_GT(expectDoneOrTold(duplicate), 5);
}

TEST_F(MainWindowInWantOfMemory, TakesAnOpenedDocumentBackAndMakesItAgain) {
  putBytes(path_, newer_);
  const auto open = [this] {
    putDocument();
    services.files.paths = {path_};
    choose(mainWindow(), "mAbrir");
    settle();
  };
  Deed undo = command("mDeshacer");
  undo.prepare = open;
  EXPECT_GT(expectDoneOrTold(undo), 5);
  Deed redo = command("mRehacer");
  redo.prepare = [this, open] {
    open();
    choose(mainWindow(), "mDeshacer");
    settle();
  };
  EXPECT_GT(expectDoneOrTold(redo), 5);
}

}  // namespace
}  // namespace zel::test
