#include "app/desktop.h"

#include "base/language.h"
#include "base/text.h"

namespace zel {
namespace {

constexpr const char* kSpanishPage = "https://zel.example/es/";
constexpr const char* kEnglishPage = "https://zel.example/en/";
constexpr const char* kMakerAddress = "zel@zel.example";
constexpr int kMostBusyReads = 101;

}  // namespace

std::string HelpFileName() {
  if (CurrentLanguage() == "ES") return "ayuda_es.hlp";
  if (CurrentLanguage() == "EN") return "ayuda_en.hlp";
  return {};
}

void ShowHelpTopics(HelpViewer& help) { help.show(HelpFileName(), kHelpTopics); }

void CloseHelp(HelpViewer& help) { help.show(HelpFileName(), kHelpClose); }

bool RegisterDocumentType(ClassRegistry& registry, const ProgramPlace& place,
                          std::string_view extension, std::string_view description,
                          std::string_view icon_path) {
  const auto type = registry.createKey(replaceAll(extension, ".", ""));
  registry.setValue(type, "", Localize(description));
  const auto ending = registry.createKey(std::string(extension));
  registry.setValue(ending, "", "zel");
  registry.setValue(type, "shell\\open\\command", place.folder + "\\" + place.name + ".exe %1");
  registry.setValue(type, "DefaultIcon", std::string(icon_path));
  return true;
}

bool registerZelDocuments(ClassRegistry& registry, const ProgramPlace& place) {
  return RegisterDocumentType(registry, place, ".zel", "Gráfico de funciones",
                              place.folder + "\\doc.ico");
}

void OpenWebPage(Browser& browser) {
  if (!browser.start() || !browser.makeVisible()) return;
  if (!browser.navigate(CurrentLanguage() == "ES" ? kSpanishPage : kEnglishPage)) return;
  for (int reads = 0; reads < kMostBusyReads && browser.isBusy(); ++reads) {
  }
}

void SendMailToMaker(MailClient& mail) {
  if (!mail.start() || !mail.createItem() || !mail.addRecipient(kMakerAddress)) return;
  if (mail.setSubject("ZEL")) mail.send();
}

}  // namespace zel
