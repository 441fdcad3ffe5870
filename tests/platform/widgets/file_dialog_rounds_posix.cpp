// File dialogs that are shown over and over need no more memory than at first. ZEL_ROUNDS says how
// often.
#include <QFileDialog>
#include <iostream>

#include "platform/widgets/modal_driver.h"
#include "platform/widgets/program_style.h"
#include "platform/widgets/widget_file_dialogs.h"
#include "support/fake_services.h"
#include "support/heap_posix.h"
#include "support/language_guard.h"
#include "support/qt_application.h"
#include "support/temporary_folder.h"

namespace zel::test {
namespace {

class FileDialogRounds : public ::testing::Test {
 protected:
  FileDialogRounds() {
    application();
    style_before_ = QApplication::style()->name();
    QApplication::setStyle(new ProgramStyle);
    putBytes(folder_ / "old.zel", "x");
  }

  ~FileDialogRounds() override { QApplication::setStyle(style_before_); }

  void ask() {
    const ModalDriver<QFileDialog> driver({[](QFileDialog& dialog) { dialog.reject(); }});
    files_.askOpen("Declaraciones ZEL (*.zel)|*.zel", folder_ / "old.zel");
  }

 private:
  QString style_before_;
  LanguageGuard language_{"ES"};
  TemporaryFolder folder_;
  CurrentFolderGuard current_{folder_.path()};
  FakeMessageBoxes boxes_;
  WidgetFileDialogs files_{boxes_};
};

TEST_F(FileDialogRounds, KeepTheMemoryFlat) {
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "the address sanitizer keeps what was freed";
#endif
  constexpr int kWarming = 30;
  constexpr std::size_t kMostBytesEach = 3 * 1024;  // the toolkit's caches take up to 2 kB at first
  for (int i = 0; i < kWarming; ++i) ask();
  const std::size_t before = heapInUse();
  const int rounds = wantedRounds(20);
  for (int i = 0; i < rounds; ++i) ask();
  const std::size_t after = heapInUse();
  std::cout << rounds << " file dialogs: from " << before / 1024 << " kB to " << after / 1024
            << " kB\n";
  EXPECT_LE(after, before + before / 20);
  EXPECT_LE(after, before + static_cast<std::size_t>(rounds) * kMostBytesEach);
}

}  // namespace
}  // namespace zel::test
