#include "framework/ui/DialogLayout.h"

#include "framework/ui/CSpinEdit.h"
#include "framework/ui/DialogControls.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace keltavlo {

namespace {

void Add(QGridLayout& grid, GridPlace place, QWidget& widget) {
    grid.addWidget(&widget, place.row, place.column, 1, place.columns);
}

template <class Control>
Control& AddControl(DialogControls& controls, QGridLayout& grid, GridPlace place, const char* label,
                    unsigned id) {
    auto* control = new Control(QString::fromUtf8(label), grid.parentWidget());
    controls.AddControl(id, *control);
    Add(grid, place, *control);
    return *control;
}

} // namespace

QGridLayout& AddPageGrid(QWidget& page) {
    auto* column = new QVBoxLayout(&page);
    auto* grid = new QGridLayout;
    column->addLayout(grid);
    column->addStretch();
    return *grid;
}

QGridLayout& AddGroupBox(QGridLayout& grid, GridPlace place, const char* title) {
    auto* box = new QGroupBox(QString::fromUtf8(title), grid.parentWidget());
    Add(grid, place, *box);
    return *new QGridLayout(box);
}

QLabel& AddText(QGridLayout& grid, GridPlace place, const char* text) {
    auto* label = new QLabel(QString::fromUtf8(text), grid.parentWidget());
    Add(grid, place, *label);
    return *label;
}

void AddIcon(QGridLayout& grid, GridPlace place, const QIcon& icon) {
    constexpr QSize size(32, 32);
    auto* label = new QLabel(grid.parentWidget());
    label->setPixmap(icon.pixmap(size, grid.parentWidget()->devicePixelRatioF()));
    Add(grid, place, *label);
}

void AddHeading(QGridLayout& grid, GridPlace place, const char* text) {
    auto* row = new QHBoxLayout;
    auto* rule = new QFrame(grid.parentWidget());
    rule->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    row->addWidget(new QLabel(QString::fromUtf8(text), grid.parentWidget()));
    row->addWidget(rule, 1);
    grid.addLayout(row, place.row, place.column, 1, place.columns);
}

void AddLabelled(QGridLayout& grid, GridPlace place, const char* label, QWidget& control) {
    AddText(grid, {place.row, place.column}, label).setBuddy(&control);
    Add(grid, {place.row, place.column + 1, place.columns - 1}, control);
}

QLineEdit& AddEdit(DialogControls& controls, QGridLayout& grid, GridPlace place, const char* label,
                   unsigned id) {
    auto* edit = new QLineEdit(grid.parentWidget());
    controls.AddControl(id, *edit);
    AddLabelled(grid, place, label, *edit);
    return *edit;
}

CSpinEdit& AddSpinEdit(DialogControls& controls, QGridLayout& grid, GridPlace place, const char* label,
                       unsigned id, unsigned spinId) {
    auto* spin = new CSpinEdit(grid.parentWidget());
    controls.AddControl(id, spin->GetEdit());
    controls.AddControl(spinId, *spin);
    AddLabelled(grid, place, label, *spin);
    return *spin;
}

QCheckBox& AddCheckBox(DialogControls& controls, QGridLayout& grid, GridPlace place, const char* label,
                       unsigned id) {
    return AddControl<QCheckBox>(controls, grid, place, label, id);
}

QPushButton& AddButton(DialogControls& controls, QGridLayout& grid, GridPlace place, const char* label,
                       unsigned id) {
    return AddControl<QPushButton>(controls, grid, place, label, id);
}

} // namespace keltavlo
