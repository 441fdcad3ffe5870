#pragma once

class QWidget;

namespace zel {

/// The page of a kind in the graph editor: its frame, its labels and its fields under their control
/// names, in reading order, without captions. The "Tag" of a field is the name of the label that
/// stands for it in messages. Numeric fields filter their keys.
QWidget* makeEditorPage(char kind);

}  // namespace zel
