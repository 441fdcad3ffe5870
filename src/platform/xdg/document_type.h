#pragma once

#include <string>

/// How the free desktop is told of a type of documents and of the program that opens them.
namespace zel {

struct DocumentType {
  std::string name;       // "zel"
  std::string extension;  // ".zel"
  std::string description;
  std::string program_path;    // of the program that opens a document
  std::string working_folder;  // in which it is started, so that it finds its configuration
};

/// Whether a desktop entry can name the program and the folder: in UTF-8, without control
/// characters, and the program without "=", which no entry may hold, and without "%": some desktops
/// look for the program before they make one of the two that "%" is written as.
bool canBeNamed(const DocumentType& type);

/// "application/x-zel"
std::string mimeType(const DocumentType& type);

/// The name of the type's icons, without an ending: "application-x-zel".
std::string iconName(const DocumentType& type);

/// The package of the shared MIME database that declares the type.
std::string mimePackageText(const DocumentType& type);

/// The desktop entry of a program that can be named. It is passed over once the program is gone.
std::string desktopEntryText(const DocumentType& type);

}  // namespace zel
