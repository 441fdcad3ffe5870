#pragma once

#include <string>

#include "platform/xdg/document_type.h"
#include "platform/xdg/launcher.h"

namespace zel {

/// Tells the desktop of a type of documents, so that a double click on one opens the program: puts
/// the MIME package, the desktop entry and the icons below the user's data folder, and has the
/// desktop's own tools, where they are installed, take note of them. Nothing is awaited, and what
/// cannot be done is passed over.
void publishDocumentType(const DocumentType& type, const std::string& data_folder,
                         const Launcher& launcher);

}  // namespace zel
