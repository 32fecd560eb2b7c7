#pragma once

#include <QAbstractSpinBox>

#include <cstdint>

namespace keltavlo {

// An edit for a whole number with a pair of spin buttons, which step it within a range, as Up and Down do.
// Any text may be typed: it is checked when it is exchanged.
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
