#pragma once

#include <QString>

#include <map>

class QWidget;

namespace keltavlo {

class CDataExchange;

// The controls of a dialog or a page by their ids, and the exchange of their values with the members of the
// class that has them.
class DialogControls {
public:
    virtual ~DialogControls();

    void AddControl(unsigned id, QWidget& control) { controls[id] = &control; }
    // The control of that id; there must be one.
    QWidget& GetDlgItem(unsigned id) const { return *controls.at(id); }

    // Fills the controls from the members, or (`saveAndValidate`) reads into the members what the person
    // changed. False when a value is refused: the person has been told and the control has the keys.
    bool UpdateData(bool saveAndValidate);

protected:
    // One call of the exchange for each control.
    virtual void DoDataExchange(CDataExchange&) {}

private:
    friend class CDataExchange;

    std::map<unsigned, QWidget*> controls;
    std::map<unsigned, QString> exchangedTexts; // of the edits, when they last agreed with the members
};

} // namespace keltavlo
