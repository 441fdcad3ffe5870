#pragma once

#include <QSize>
#include <QString>

class QWidget;

namespace zel {

/// The object name of the line of hints under a field.
QString hintName(const char* field);

/// The object name of the widget of a page, with a layout, in which the preview stands while the
/// page is open.
inline constexpr const char* kPreviewPlace = "LugarVista";

/// The page of a kind in the graph editor: its frame, its labels, its fields under their control
/// names, in reading order, without captions, each with a line for hints, and room for the preview.
/// The "Tag" of a field is the name of the label that stands for it in messages. Numeric fields
/// filter their keys.
QWidget* makeEditorPage(char kind, QSize preview);

/// After a change of captions: the page asks for the room that it needs, shown or not.
void makeRoom(QWidget& page);

}  // namespace zel
