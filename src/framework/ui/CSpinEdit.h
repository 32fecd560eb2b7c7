#pragma once

#include <QAbstractSpinBox>

#include <cstdint>

namespace keltavlo {

// An edit for a whole number. Its two spin buttons, and the keys Up and Down, step the number within a range.
// The user may type any text; it is checked when it is exchanged.
class CSpinEdit : public QAbstractSpinBox {
public:
    explicit CSpinEdit(QWidget* parent);

    QLineEdit& GetEdit() const { return *lineEdit(); }
    void SetRange(std::int64_t newMinimum, std::int64_t newMaximum);

    void stepBy(int steps) override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    StepEnabled stepEnabled() const override;

private:
    std::int64_t minimum = 0;
    std::int64_t maximum = 0;
};

} // namespace keltavlo
