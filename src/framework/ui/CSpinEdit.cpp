#include "framework/ui/CSpinEdit.h"

#include <QLineEdit>

#include <algorithm>

namespace keltavlo {

CSpinEdit::CSpinEdit(QWidget* parent) : QAbstractSpinBox(parent) {
    setFocusPolicy(Qt::StrongFocus); // the wheel alone must not take the focus
}

void CSpinEdit::SetRange(std::int64_t newMinimum, std::int64_t newMaximum) {
    minimum = newMinimum;
    maximum = newMaximum;
}

// A text that is not a number counts as 0.
void CSpinEdit::stepBy(int steps) {
    const std::int64_t value = lineEdit()->text().trimmed().toLongLong();
    const std::int64_t start = std::clamp(value, minimum - 1, maximum + 1); // prevents overflow
    lineEdit()->setText(QString::number(std::clamp(start + steps, minimum, maximum)));
    lineEdit()->selectAll();
}

QAbstractSpinBox::StepEnabled CSpinEdit::stepEnabled() const {
    const std::int64_t value = lineEdit()->text().trimmed().toLongLong();
    return (value < maximum ? StepUpEnabled : StepNone) | (value > minimum ? StepDownEnabled : StepNone);
}

QSize CSpinEdit::sizeHint() const {
    const QString sample = QStringLiteral("-00000000");
    return QAbstractSpinBox::sizeHint() + QSize(fontMetrics().horizontalAdvance(sample), 0);
}

} // namespace keltavlo
