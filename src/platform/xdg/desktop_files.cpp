#include "platform/xdg/desktop_files.h"

#include <QFile>
#include <QString>

#include "files/whole_file.h"
#include "platform/icons/icons.h"
#include "platform/xdg/user_folders.h"

namespace zel {
namespace {

// Each does its work whether or not the one before is installed.
constexpr const char* kTools = R"(
  update-mime-database "$1"
  update-desktop-database "$2"
  xdg-mime default "$3" "$4")";

void putFile(const std::string& folder, const std::string& name, const std::string& bytes) {
  if (makeFolder(folder)) writeWholeFile(folder + "/" + name, bytes);
}

std::string resourceBytes(const char* path) {
  QFile file(QString::fromLatin1(path));
  if (!file.open(QIODevice::ReadOnly)) return {};
  return file.readAll().toStdString();
}

void putIcons(const std::string& theme, const std::string& kind, const std::string& name,
              const IconPaths& icon) {
  putFile(theme + "/scalable/" + kind, name + ".svg", resourceBytes(icon.svg));
  putFile(theme + "/48x48/" + kind, name + ".png", resourceBytes(icon.png48));
  putFile(theme + "/256x256/" + kind, name + ".png", resourceBytes(icon.png256));
}

}  // namespace

void publishDocumentType(const DocumentType& type, const std::string& data_folder,
                         const Launcher& launcher) {
  const std::string mime = data_folder + "/mime";
  const std::string applications = data_folder + "/applications";
  const std::string entry = type.name + ".desktop";
  initIcons();
  putIcons(data_folder + "/icons/hicolor", "apps", "zel", kProgramIcon);
  putIcons(data_folder + "/icons/hicolor", "mimetypes", iconName(type), kDocumentIcon);
  putFile(mime + "/packages", type.name + ".xml", mimePackageText(type));
  putFile(applications, entry, desktopEntryText(type));
  launcher("sh", {"-c", kTools, "sh", mime, applications, entry, mimeType(type)});
}

}  // namespace zel
