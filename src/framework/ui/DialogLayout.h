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

// Parts of dialogs in grids, whose cells grow with the font.

struct GridPlace {
    int row = 0, column = 0, columns = 1;
};

// Adds a grid that covers the page, with its rows at the top.
QGridLayout& AddPageGrid(QWidget& page);
// Adds a frame with a title and a grid inside.
QGridLayout& AddGroupBox(QGridLayout& grid, GridPlace place, const char* title);
QLabel& AddText(QGridLayout& grid, GridPlace place, const char* text);
// Adds the icon in the usual size for dialogs.
void AddIcon(QGridLayout& grid, GridPlace place, const QIcon& icon);
// Adds a text followed by a rule.
void AddHeading(QGridLayout& grid, GridPlace place, const char* text);

// Adds a label with a mnemonic in the first column of `place` and the control that it names in the others.
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
