#pragma once

#include <QStatusBar>

#include <span>
#include <string>
#include <vector>

class QLabel;

namespace keltavlo {

// A status bar of text panes: pane 0 takes the room that the others leave, and shows the prompt of the
// command that the user points at for as long as there is one.
class CStatusBar : public QStatusBar {
public:
    // A further pane for each sample, as wide as the sample's text.
    CStatusBar(std::span<const unsigned> sampleStringIds, QWidget* parent);

    void SetPaneText(std::size_t pane, const std::string& text);
    // The pane's own text, whether or not a prompt covers it.
    const std::string& GetPaneText(std::size_t pane) const { return texts.at(pane); }
    // What people read in the pane now.
    QString GetShownText(std::size_t pane) const;
    // An empty prompt uncovers pane 0.
    void ShowPrompt(const QString& text);

private:
    void AddPane(const std::string& sample);

    std::vector<std::string> texts;
    std::vector<QLabel*> panes; // children of this window
    QString prompt;
};

} // namespace keltavlo
