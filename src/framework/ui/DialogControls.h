#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <map>
#include <optional>
#include <string>

class QLineEdit;
class QWidget;

namespace keltavlo {

class DialogControls;

// One exchange between controls and members, in one of the two directions. Only edits whose text the user
// changed are read and checked, so a value that no edit would take stays as it is when it is left alone.
// After the first value that is refused nothing more is exchanged.
class CDataExchange {
public:
    struct Range {
        std::int64_t minimum, maximum;
    };

    CDataExchange(DialogControls& window, bool saveAndValidate) : controls(window), saving(saveAndValidate) {}

    bool IsSaving() const { return saving; }
    // A whole number. The spin buttons beside the edit step within the range.
    void Number(unsigned id, std::uint32_t& member, Range range);
    void Number(unsigned id, std::int32_t& member, Range range);
    // A text of at most so many bytes as it is stored.
    void Text(unsigned id, std::string& member,
              std::size_t mostBytes = std::numeric_limits<std::size_t>::max());
    void Check(unsigned id, bool& member);

    bool WasRefused() const { return refusedEdit != nullptr; }
    // What to tell the user, and which edit to show; only after a refusal.
    const std::string& GetRefusal() const { return refusal; }
    QLineEdit& GetRefusedEdit() const { return *refusedEdit; }

private:
    QLineEdit& GetEdit(unsigned id) const;
    void Fill(unsigned id, const QString& text);
    // What the user put into the edit; none when nothing is to be read.
    std::optional<QString> ReadChanged(unsigned id) const;
    std::int64_t ExchangeNumber(unsigned id, std::int64_t value, Range range);
    void Refuse(unsigned id, std::string message);

    DialogControls& controls;
    bool saving;
    QLineEdit* refusedEdit = nullptr;
    std::string refusal;
};

// The controls of a dialog or a page by their ids, and the exchange of their values with the members of the
// class that has them.
class DialogControls {
public:
    virtual ~DialogControls();

    void AddControl(unsigned id, QWidget& control) { controls[id] = &control; }
    // The control of that id; there must be one.
    QWidget& GetDlgItem(unsigned id) const { return *controls.at(id); }

    // Fills the controls from the members, or (`saveAndValidate`) reads into the members what the user
    // changed. False when a value is refused: the user has been told and the control has the keys.
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
