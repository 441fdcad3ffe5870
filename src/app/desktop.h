#pragma once

#include <string>
#include <string_view>

#include "app/services.h"

/// The program's ties to the desktop around it: help, the document type, web and mail.
namespace zel {

/// The commands of the help viewer.
inline constexpr int kHelpTopics = 15;
inline constexpr int kHelpClose = 2;

/// "ayuda_es.hlp" or "ayuda_en.hlp", without a folder; empty for any other language.
std::string HelpFileName();

/// Shows the topics of the help file of the current language.
void ShowHelpTopics(HelpViewer& help);

/// Closes the help viewer if it is open.
void CloseHelp(HelpViewer& help);

/// Where the program itself lies.
struct ProgramPlace {
  std::string folder;  // without a separator at its end
  std::string name;    // of the program file, without ".exe"
};

/// Writes the four entries of a document type: its description, its extension, the command that
/// opens a document and its icon. No result is looked at and the command is not quoted: both are
/// meant. Always true.
bool RegisterDocumentType(ClassRegistry& registry, const ProgramPlace& place,
                          std::string_view extension, std::string_view description,
                          std::string_view icon_path);

/// What the first start registers: ".zel" with the icon "doc.ico" in the program's folder.
bool registerZelDocuments(ClassRegistry& registry, const ProgramPlace& place);

/// Opens the program's home page in the language of the user, and gives up quietly when that
/// fails. A browser that stays busy is asked 101 times at the most.
void OpenWebPage(Browser& browser);

/// Makes a mail to the maker with the subject "ZEL" and sends it; ends quietly at a failure.
void SendMailToMaker(MailClient& mail);

}  // namespace zel
