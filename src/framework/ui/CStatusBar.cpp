#include "framework/ui/CStatusBar.h"

#include "framework/core/StringTable.h"
#include "framework/core/Text.h"

#include <QLabel>

namespace keltavlo {

CStatusBar::CStatusBar(std::span<const unsigned> sampleStringIds, QWidget* parent) : QStatusBar(parent) {
    AddPane({});
    for (const unsigned id : sampleStringIds) AddPane(LoadString(id));
}

void CStatusBar::AddPane(const std::string& sample) {
    auto* pane = new QLabel(this);
    pane->setTextFormat(Qt::PlainText);
    pane->setIndent(2);
    if (panes.empty()) {
        pane->setSizePolicy(QSizePolicy::Ignored,
                            QSizePolicy::Preferred); // so that a long text does not widen the frame
        addWidget(pane, 1);
    } else {
        pane->setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken));
        pane->setText(ToQString(sample));
        pane->setFixedWidth(pane->sizeHint().width());
        pane->clear();
        addPermanentWidget(pane);
    }
    panes.push_back(pane);
    texts.emplace_back();
}

void CStatusBar::SetPaneText(std::size_t pane, const std::string& text) {
    if (texts.at(pane) == text) return;
    texts[pane] = text;
    if (pane > 0 || prompt.isEmpty()) panes[pane]->setText(ToQString(text));
}

QString CStatusBar::GetShownText(std::size_t pane) const {
    return panes.at(pane)->text();
}

void CStatusBar::ShowPrompt(const QString& text) {
    prompt = text;
    panes.front()->setText(prompt.isEmpty() ? ToQString(texts.front()) : prompt);
}

} // namespace keltavlo
