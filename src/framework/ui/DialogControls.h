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

// Exchanges values between controls and members, in one direction. It reads and checks only edits whose text
// the user changed, so a value that an edit would refuse survives if it is left alone. The exchange stops at
// the first value that is refused.
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
    // A text of at most `mostBytes` bytes in its stored form.
    void Text(unsigned id, std::string& member,
              std::size_t mostBytes = std::numeric_limits<std::size_t>::max());
    void Check(unsigned id, bool& member);

    bool WasRefused() const { return refusedEdit != nullptr; }
    // The message for the user and the edit to show. Only after a refusal.
    const std::string& GetRefusal() const { return refusal; }
    QLineEdit& GetRefusedEdit() const { return *refusedEdit; }

private:
    QLineEdit& GetEdit(unsigned id) const;
    void Fill(unsigned id, const QString& text);
    // Returns what the user entered, or null if there is nothing to read.
    std::optional<QString> ReadChanged(unsigned id) const;
    std::int64_t ExchangeNumber(unsigned id, std::int64_t value, Range range);
    void Refuse(unsigned id, std::string message);

    DialogControls& controls;
    bool saving;
    QLineEdit* refusedEdit = nullptr;
    std::string refusal;
};

// The controls of a dialog or page by id. Exchanges their values with the members of the derived class.
class DialogControls {
public:
    virtual ~DialogControls();

    void AddControl(unsigned id, QWidget& control) { controls[id] = &control; }
    // Returns the control with that id, which must exist.
    QWidget& GetDlgItem(unsigned id) const { return *controls.at(id); }

    // Fills the controls from the members or, if `saveAndValidate`, reads the user's changes into the
    // members. If a value is refused, returns false after telling the user and focusing the control.
    bool UpdateData(bool saveAndValidate);

protected:
    // Exchanges each control once.
    virtual void DoDataExchange(CDataExchange&) {}

private:
    friend class CDataExchange;

    std::map<unsigned, QWidget*> controls;
    std::map<unsigned, QString> exchangedTexts; // when controls and members last agreed
};

} // namespace keltavlo
