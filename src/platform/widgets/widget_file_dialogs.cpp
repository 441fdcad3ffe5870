#include "platform/widgets/widget_file_dialogs.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QListView>
#include <QPointer>
#include <QScopeGuard>
#include <QScreen>
#include <QSplitter>
#include <QStandardPaths>
#include <QStyle>
#include <QTreeView>
#include <algorithm>

#include "base/message_table.h"
#include "platform/widgets/dialog_filter.h"
#include "platform/widgets/file_icons.h"
#include "platform/widgets/qt_texts.h"

namespace zel {
namespace {

QString toQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString fileName(const std::string& path) { return QFileInfo(toQt(path)).fileName(); }

/// A question or a remark about a path, its two texts with "%1" for the file's name.
std::string aboutFile(const std::string& path, const char* spanish, const char* english) {
  return inLanguage(spanish, english).arg(fileName(path)).toStdString();
}

/// Lets the dialog begin with this path where there is such a folder, otherwise in the user's
/// documents, where a name that is to be saved stays. A name that is no UTF-8 would come back as
/// another one, and is not proposed.
void begin(QFileDialog& dialog, const std::string& proposal) {
  const QFileInfo file(toQt(proposal));
  const bool is_whole = !proposal.empty() && file.filePath().toStdString() == proposal;
  const bool has_folder = is_whole && file.dir().exists();
  const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  const QDir otherwise = documents.exists() ? documents : QDir::home();
  dialog.setDirectory(has_folder ? file.dir() : otherwise);
  const bool keeps_name =
      has_folder || (is_whole && dialog.acceptMode() == QFileDialog::AcceptSave);
  if (keeps_name && !file.fileName().isEmpty()) dialog.selectFile(file.fileName());
}

/// The columns are as wide as what they hold, the longest kinds of files excepted, whatever the
/// toolkit remembers of them. The names have the rest.
void fitColumns(const QAbstractItemView& list, QHeaderView& header) {
  const int letter = list.fontMetrics().averageCharWidth();
  const int bar = list.style()->pixelMetric(QStyle::PM_ScrollBarExtent);  // it may come later
  int rest = list.width() - 2 * list.frameWidth() - bar;
  for (int column = 1; column < header.count(); ++column) {
    const int wanted = std::max(list.sizeHintForColumn(column), header.sectionSizeHint(column));
    header.resizeSection(column, std::min(wanted, 30 * letter));
    rest -= header.sectionSize(column);
  }
  header.resizeSection(0, std::max(rest, 20 * letter));
}

/// The toolkit's own dialog opens too narrow for dates, kinds of files and places in most
/// languages. It has these parts; a dialog of the desktop has none.
void giveRoom(QFileDialog& dialog) {
  auto* const list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
  auto* const places = dialog.findChild<QListView*>(QStringLiteral("sidebar"));
  auto* const splitter = dialog.findChild<QSplitter*>(QStringLiteral("splitter"));
  const auto* const files = dialog.findChild<QFileSystemModel*>();
  if (list == nullptr || places == nullptr || splitter == nullptr || files == nullptr) return;
  const QFontMetrics letters = dialog.fontMetrics();
  const QSize first(130 * letters.averageCharWidth(), 32 * letters.lineSpacing());
  dialog.resize(
      first.expandedTo(dialog.sizeHint()).boundedTo(dialog.screen()->availableSize() * 0.9));
  const int for_places =
      std::clamp(std::max(places->sizeHintForColumn(0) + 2 * places->frameWidth(),
                          splitter->sizes().constFirst()),
                 20 * letters.averageCharWidth(), 40 * letters.averageCharWidth());
  splitter->setSizes({for_places, dialog.width() - for_places});
  QObject::connect(files, &QFileSystemModel::directoryLoaded, list,
                   [list] { fitColumns(*list, *list->header()); });
}

}  // namespace

std::optional<std::string> WidgetFileDialogs::askOpen(std::string_view filter,
                                                      const std::string& proposal) {
  std::optional<std::string> path = ask(filter, Mode::open, proposal);
  while (path && !mayOpen(*path)) path = ask(filter, Mode::open, *path);
  return path;
}

std::optional<std::string> WidgetFileDialogs::askSave(std::string_view filter,
                                                      const std::string& proposal) {
  const std::string ending = filterEnding(filter);
  std::string begins_with = proposal;
  for (;;) {
    const std::optional<std::string> chosen = ask(filter, Mode::save, begins_with);
    if (!chosen) return std::nullopt;
    std::string path = withEnding(*chosen, ending);
    if (maySave(path)) return path;
    begins_with = path;
  }
}

bool WidgetFileDialogs::mayOpen(const std::string& path) {
  if (QFileInfo(toQt(path)).isFile()) return true;
  boxes_.show(aboutFile(path, "No existe el archivo «%1».", "The file “%1” does not exist."),
              Localize("ZEL - ATENCIÓN"), BoxStyle::stop);
  return false;
}

bool WidgetFileDialogs::maySave(const std::string& path) {
  const QFileInfo file(toQt(path));
  if (!file.dir().exists()) {
    boxes_.show(inLanguage("No existe la carpeta «%1».", "The folder “%1” does not exist.")
                    .arg(QDir::toNativeSeparators(file.path()))
                    .toStdString(),
                Localize("ZEL - ATENCIÓN"), BoxStyle::stop);
    return false;
  }
  if (!file.exists()) return true;
  const std::string question =
      aboutFile(path, "El archivo «%1» ya existe.\r\n¿Desea reemplazarlo?",
                "The file “%1” already exists.\r\nDo you want to replace it?");
  return boxes_.show(question, "ZEL", BoxStyle::ok_cancel) == BoxAnswer::ok;
}

std::optional<std::string> WidgetFileDialogs::ask(std::string_view filter, Mode mode,
                                                  const std::string& proposal) {
  const bool saves = mode == Mode::save;
  FileIcons icons;
  // The dialog goes away with the window below it, wherever that may be taken down.
  const QPointer<QFileDialog> dialog = new QFileDialog(QApplication::activeWindow());
  const auto end = qScopeGuard([&] { delete dialog; });  // before its icons go
  dialog->setWindowTitle(saves ? inLanguage("Guardar como", "Save As")
                               : inLanguage("Abrir", "Open"));
  dialog->setIconProvider(&icons);
  dialog->setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog->setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  // We ask ourselves, and in the program's language, once the ending is there.
  dialog->setOption(QFileDialog::DontConfirmOverwrite);
  QStringList filters;
  for (const std::string& each : dialogFilters(filter)) filters << toQt(each);
  dialog->setNameFilters(filters);
  begin(*dialog, proposal);
  giveRoom(*dialog);
  const bool accepted = dialog->exec() == QDialog::Accepted;
  std::optional<std::string> path;
  if (dialog && accepted && !dialog->selectedFiles().isEmpty())
    path = dialog->selectedFiles().constFirst().toStdString();
  return path;
}

}  // namespace zel
