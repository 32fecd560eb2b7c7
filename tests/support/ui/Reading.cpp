#include "support/ui/Reading.h"

#include "framework/ui/DialogControls.h"

#include <QAccessible>
#include <QMetaEnum>
#include <QWidget>

#include <algorithm>
#include <stdexcept>
#include <tuple>
#include <vector>

namespace keltavlo {

namespace {

bool IsItem(const DialogControls& controls, unsigned id, const QWidget& control) try {
    return &controls.GetDlgItem(id) == &control;
} catch (const std::out_of_range&) {
    return false;
}

QString IdOf(const QWidget& control) {
    for (QWidget* parent = control.parentWidget(); parent; parent = parent->parentWidget())
        if (const auto* controls = dynamic_cast<const DialogControls*>(parent))
            for (unsigned id = 1000; id < 2850; id += id == 1100 ? 1700 : 1)
                if (IsItem(*controls, id, control)) return QString(" #%1").arg(id);
    return {};
}

// Empty for what has nothing to say.
QString Describe(QWidget& widget) {
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&widget);
    if (!face || face->role() == QAccessible::ScrollBar) return {};
    QString text;
    for (const auto part :
         {QAccessible::Name, QAccessible::Accelerator, QAccessible::Description, QAccessible::Value})
        if (const QString said = face->text(part); !said.isEmpty() && !said.contains('\n'))
            text += " '" + said + '\'';
    if (QAccessibleValueInterface* value = face->valueInterface())
        text += QString(" %1..%2 by %3")
                    .arg(value->minimumValue().toInt())
                    .arg(value->maximumValue().toInt())
                    .arg(value->minimumStepSize().toInt());
    if (!widget.statusTip().isEmpty()) text += " prompt '" + widget.statusTip() + '\'';
    if (text.isEmpty()) return text;
    const QAccessible::State state = face->state();
    for (const auto& [holds, name] : {std::pair(bool(state.disabled), " disabled"),
                                      {bool(state.checked), " checked"},
                                      {bool(state.readOnly), " read-only"},
                                      {bool(state.focusable), " focusable"}})
        if (holds) text += name;
    return QMetaEnum::fromType<QAccessible::Role>().valueToKey(face->role()) + text + IdOf(widget);
}

struct Item {
    int y, x;
    QString text;
};

} // namespace

std::string ReadingOf(const QWidget& window) {
    std::vector<Item> items;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        const QString text = widget->isVisibleTo(&window) ? Describe(*widget) : QString();
        const QPoint place = widget->mapTo(&window, widget->rect().center());
        if (!text.isEmpty()) items.push_back({place.y(), place.x(), text});
    }
    constexpr int sameRow = 8; // pixels
    std::ranges::sort(items, {}, &Item::y);
    for (std::size_t i = 1; i < items.size(); ++i)
        if (items[i].y - items[i - 1].y < sameRow) items[i].y = items[i - 1].y;
    std::ranges::sort(items, {}, [](const Item& item) { return std::tie(item.y, item.x, item.text); });
    QString reading = window.windowTitle();
    for (std::size_t i = 0; i < items.size(); ++i)
        reading += (i > 0 && items[i].y == items[i - 1].y ? "   " : "\n") + items[i].text;
    return reading.toStdString() + '\n';
}

} // namespace keltavlo
