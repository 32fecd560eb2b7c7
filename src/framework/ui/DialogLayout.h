#pragma once

#include <QGridLayout>

class QCheckBox;
class QIcon;
class QLabel;
class QLineEdit;
class QPushButton;

namespace keltavlo {

class CSpinEdit;
class DialogControls;

// Parts of dialogs, placed in grids, whose cells grow with the font.

struct GridPlace {
    int row = 0, column = 0, columns = 1;
};

// A grid over the whole page, its rows at the top.
QGridLayout& AddPageGrid(QWidget& page);
// A frame with a title on the page, with a grid inside.
QGridLayout& AddGroupBox(QGridLayout& grid, GridPlace place, const char* title);
QLabel& AddText(QGridLayout& grid, GridPlace place, const char* text);
// As large as icons are in dialogs.
void AddIcon(QGridLayout& grid, GridPlace place, const QIcon& icon);
// A text with a rule behind it.
void AddHeading(QGridLayout& grid, GridPlace place, const char* text);

// A label with its mnemonic in the place's first column, and in the others what it names.
void AddLabelled(QGridLayout& grid, GridPlace place, const char* label, QWidget& control);
QLineEdit& AddEdit(DialogControls& controls, QGridLayout& grid, GridPlace place, const char* label,
                   unsigned id);
CSpinEdit& AddSpinEdit(DialogControls& controls, QGridLayout& grid, GridPlace place, const char* label,
                       unsigned id, unsigned spinId);
QCheckBox& AddCheckBox(DialogControls& controls, QGridLayout& grid, GridPlace place, const char* label,
                       unsigned id);
QPushButton& AddButton(DialogControls& controls, QGridLayout& grid, GridPlace place, const char* label,
                       unsigned id);

} // namespace keltavlo
